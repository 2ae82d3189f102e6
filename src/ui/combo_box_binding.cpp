#include "ui/combo_box_binding.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include "ui/wheel_filter.h"

namespace tr7 {

ComboBoxBinding::ComboBoxBinding(ComboBox& record, QComboBox& combo)
    : WidgetBinding(record, combo), record_(record), combo_(combo) {
  combo.installEventFilter(this);
  LetWheelPass(combo);
  QObject::connect(&combo, &QComboBox::activated, this, [this](int index) { record_.Pick(index); });
  if (!record.Editable) return;
  combo.setEditable(true);
  combo.setInsertPolicy(QComboBox::NoInsert);
  combo.setCompleter(nullptr);  // a path is taken as it is typed
  QObject::connect(&combo, &QComboBox::editTextChanged, this, [this](const QString& text) {
    if (!pushing_) record_.Type(text.toStdString());
  });
}

/// The text as the record has it, with the cursor where the user left it.
void ComboBoxBinding::PushText(int cursor) {
  const QString text = Q(record_.Text());
  QLineEdit& edit = *combo_.lineEdit();
  if (edit.text() == text) return;
  edit.setText(text);
  edit.setCursorPosition(cursor);
}

void ComboBoxBinding::Push() {
  pushing_ = true;
  WidgetBinding::Push();
  if (Changed(list_, record_.List)) {
    combo_.clear();
    for (const std::string& entry : record_.List) combo_.addItem(Q(entry));
  }
  const int cursor = combo_.isEditable() ? combo_.lineEdit()->cursorPosition() : 0;
  if (combo_.currentIndex() != record_.ListIndex) combo_.setCurrentIndex(record_.ListIndex);
  if (combo_.isEditable()) PushText(cursor);
  pushing_ = false;
}

bool ComboBoxBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && record_.Enter) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      record_.Enter();
      return true;
    }
  }
  const bool done = QObject::eventFilter(watched, event);
  if (!FocusMoves(*event, QEvent::FocusOut) || !record_.LostFocus) return done;
  if (!pushing_) {
    record_.LostFocus();
  } else {
    // The focus went because of what is being drawn: the handler waits until that is done.
    QTimer::singleShot(0, this, [this] {
      if (record_.LostFocus) record_.LostFocus();
    });
  }
  return done;
}

}  // namespace tr7
