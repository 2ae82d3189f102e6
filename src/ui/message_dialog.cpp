#include "ui/message_dialog.h"

#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <algorithm>
#include <string>
#include <vector>

#include "state/text.h"
#include "ui/binding.h"
#include "ui/box_details.h"
#include "ui/dialog_room.h"
#include "ui/help_key.h"
#include "ui/icons.h"
#include "ui/tip_text.h"

namespace tr7 {
namespace {

constexpr int kYesText = 5150, kNoText = 5151, kOkText = 5152, kCancelText = 5153;
constexpr int kReadTip = 7210, kOkTip = 7211, kCancelTip = 7212, kYesTip = 7213, kNoTip = 7214;
constexpr int kNoGoesOnTip = 7215, kKeysTip = 7216;

struct AnswerButton {
  MsgAnswer answer;
  MsgId text;
  QMessageBox::ButtonRole role;
  MsgId tip;
};

/// The last one is what Escape means, and Enter too where the first one loses something.
std::vector<AnswerButton> ButtonsOf(const MessageBoxCall& call) {
  const bool alone = call.Buttons == MsgButtons::Ok;
  const AnswerButton ok{MsgAnswer::Ok, kOkText, QMessageBox::AcceptRole,
                        alone ? MsgId(kReadTip) : MsgId(kOkTip)};
  const AnswerButton cancel{MsgAnswer::Cancel, kCancelText, QMessageBox::RejectRole, kCancelTip};
  const AnswerButton yes{MsgAnswer::Yes, kYesText, QMessageBox::YesRole, kYesTip};
  const bool goes_on = call.Buttons == MsgButtons::YesNoCancel;
  // Of a lone button with the role of a No, Escape would be the answer.
  const AnswerButton no{MsgAnswer::No, kNoText,
                        call.NoLoses ? QMessageBox::DestructiveRole : QMessageBox::NoRole,
                        goes_on ? MsgId(kNoGoesOnTip) : MsgId(kNoTip)};
  switch (call.Buttons) {
    case MsgButtons::OkCancel:
      return {ok, cancel};
    case MsgButtons::YesNo:
      return {yes, no};
    case MsgButtons::YesNoCancel:
      return {yes, no, cancel};
    case MsgButtons::Ok:
      break;
  }
  return {ok};
}

/// What the answer leads to, and the keys that give it.
QString TipOf(const AnswerButton& answer, bool enter, bool escape) {
  const char* keys = enter && escape ? "Enter, Esc" : enter ? "Enter" : escape ? "Esc" : nullptr;
  const std::string what = Text(answer.tip);
  return TipText(keys ? what + "\n" + Text(kKeysTip, keys) : what);
}

QPixmap PictureOf(MsgIcon icon) {
  constexpr int kSide = 40;
  switch (icon) {
    case MsgIcon::Information:
      return MessageIcon("Information").pixmap(kSide, kSide);
    case MsgIcon::Question:
      return MessageIcon("Question").pixmap(kSide, kSide);
    case MsgIcon::Warning:
      return MessageIcon("Warning").pixmap(kSide, kSide);
    case MsgIcon::Error:
      return MessageIcon("Error").pixmap(kSide, kSide);
    case MsgIcon::None:
      break;
  }
  return {};
}

/// The height of a text that is broken wherever it must be.
int HeightOf(const QString& text, int width, const QFont& font) {
  QTextDocument document(text);
  document.setDefaultFont(font);
  QTextOption wrap;
  wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  document.setDefaultTextOption(wrap);
  document.setTextWidth(width);
  return static_cast<int>(document.size().height());
}

/// A text that the screen has no room for scrolls in a field of its own. A list of numbers has no
/// blanks to be broken at, so it is broken anywhere. `beneath`: what else needs height.
void FoldLongText(QMessageBox& box, int beneath) {
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  if (!label) return;
  constexpr int kWidth = 480;
  const QSize room =
      RoomForDialog(box) - QSize(150, 150 + beneath);  // beside picture, margins, buttons
  const QRect asked =
      QFontMetrics(label->font())
          .boundingRect(QRect({}, QSize(kWidth, QWIDGETSIZE_MAX)), Qt::TextWordWrap, label->text());
  if (asked.width() <= room.width() && asked.height() <= room.height()) return;
  auto* field = new QPlainTextEdit(label->text(), &box);
  field->setReadOnly(true);
  field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  const int height = HeightOf(label->text(), kWidth, label->font());
  field->setFixedSize(kWidth + 40, std::min(height + 10, room.height()));
  delete box.layout()->replaceWidget(label, field);
  label->hide();
}

}  // namespace

MsgAnswer AskMessage(const MessageBoxCall& call, QWidget* parent, const WaitFor& wait) {
  QMessageBox box(parent);
  box.setWindowModality(Qt::ApplicationModal);
  box.setProperty(kHelpPageProperty, "messages");
  box.setWindowTitle(Q(call.Title));
  box.setTextFormat(Qt::PlainText);
  box.setText(Q(call.Text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.setIconPixmap(PictureOf(call.Icon));
  const std::vector<AnswerButton> answers = ButtonsOf(call);
  for (const AnswerButton& answer : answers) {
    QPushButton* button = box.addButton(Q(Text(answer.text)), answer.role);
    const bool last = &answer == &answers.back();
    const bool escape = last && !call.NoLoses;
    const bool enter = call.Loses ? last : &answer == &answers.front();
    if (escape) box.setEscapeButton(button);
    if (enter) box.setDefaultButton(button);
    button->setToolTip(TipOf(answer, enter, escape));
  }
  FoldLongText(box, call.Details.empty() ? 0 : kDetailsHeight);
  AddDetails(box, call.Details);
  box.show();
  box.raise();
  box.activateWindow();
  wait([&box] { return !box.isVisible(); });
  for (const AnswerButton& answer : answers) {
    const QAbstractButton* clicked = box.clickedButton();
    if (clicked && clicked->text() == Q(Text(answer.text))) return answer.answer;
  }
  return call.Buttons == MsgButtons::Ok ? MsgAnswer::Ok : MsgAnswer::Cancel;
}

}  // namespace tr7
