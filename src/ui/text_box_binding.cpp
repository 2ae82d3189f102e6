#include "ui/text_box_binding.h"

#include <QKeyEvent>
#include <QTimer>
#include <QValidator>
#include <algorithm>
#include <limits>

namespace tr7 {
namespace {

/// Drops the characters that the field does not take when they are typed or pasted. What logic sets
/// is shown as it is.
class AllowedCharsValidator : public QValidator {
 public:
  AllowedCharsValidator(const TextBox& record, const bool& pushing, QObject* parent)
      : QValidator(parent), record_(record), pushing_(pushing) {}

  State validate(QString& text, int& cursor) const override {
    if (pushing_ || record_.AllowedChars.empty()) return Acceptable;
    const QString allowed = Q(record_.AllowedChars);
    for (auto i = text.size() - 1; i >= 0; --i) {
      if (allowed.contains(text[i])) continue;
      text.remove(i, 1);
      if (cursor > i) --cursor;
    }
    return Acceptable;
  }

 private:
  const TextBox& record_;
  const bool& pushing_;
};

/// Blanks that pad a number to its width are not drawn: they would take the room of its digits.
QString Shown(const TextBox& record) {
  const QString text = Q(record.Text);
  const bool takes_blanks =
      record.AllowedChars.empty() || record.AllowedChars.find(' ') != std::string::npos;
  return takes_blanks ? text : text.trimmed();
}

constexpr int kNoLimit = 32767;

}  // namespace

TextBoxBinding::TextBoxBinding(TextBox& record, QLineEdit& edit)
    : WidgetBinding(record, edit),
      record_(record),
      edit_(edit),
      validator_(new AllowedCharsValidator(record, pushing_, &edit)) {
  edit.setValidator(validator_);
  edit.installEventFilter(this);
  QObject::connect(&edit, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (text == Shown(record_)) return;  // a key that the field did not take
    text_ = text.toStdString();
    record_.Text = *text_;
    if (record_.Change) record_.Change();
  });
}

// A window that goes away loses its focus after its bindings are gone, and asks the validator then.
TextBoxBinding::~TextBoxBinding() { delete validator_; }

void TextBoxBinding::Push() {
  pushing_ = true;
  WidgetBinding::Push();
  // A text that logic has set is shown whole, also where it is longer than what can be typed.
  const QString text = Shown(record_);
  const int limit = record_.MaxLength > 0 ? record_.MaxLength : kNoLimit;
  if (Changed(max_length_, std::max(limit, static_cast<int>(text.size())))) {
    edit_.setMaxLength(*max_length_);
  }
  if (Changed(text_, record_.Text)) edit_.setText(text);
  if (Changed(prompt_, record_.Prompt)) edit_.setPlaceholderText(Q(record_.Prompt));
  if (Changed(input_method_off_, record_.InputMethodOff)) {
    edit_.setAttribute(Qt::WA_InputMethodEnabled, !record_.InputMethodOff);
  }
  pushing_ = false;
}

bool TextBoxBinding::OnKey(const QEvent& event) {
  const auto& key_event = static_cast<const QKeyEvent&>(event);
  if (key_event.matches(QKeySequence::Undo)) return record_.Undo && record_.Undo();
  const int key = key_event.key();
  if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !record_.Enter) return false;
  record_.Enter();
  return true;
}

void TextBoxBinding::OnFocusOut() {
  if (!record_.LostFocus) return;
  if (!pushing_) {
    record_.LostFocus();
    return;
  }
  // The focus went because of what is being drawn: the handler waits until that is done.
  QTimer::singleShot(0, this, [this] {
    if (record_.LostFocus) record_.LostFocus();
  });
}

bool TextBoxBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && OnKey(*event)) return true;
  const bool done = QObject::eventFilter(watched, event);
  if (FocusMoves(*event, QEvent::FocusIn) && record_.GotFocus) record_.GotFocus();
  if (FocusMoves(*event, QEvent::FocusOut)) OnFocusOut();
  return done;
}

}  // namespace tr7
