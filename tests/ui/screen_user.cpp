#include "tests/ui/screen_user.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "forms/control.h"
#include "state/views.h"
#include "tests/ui/box_button.h"

namespace tr7 {
ScreenUser::ScreenUser(const QtFormHost& forms) : forms_(forms) { qApp->installEventFilter(this); }

ScreenUser::~ScreenUser() { qApp->removeEventFilter(this); }

bool ScreenUser::eventFilter(QObject* watched, QEvent* event) {
  auto* dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
  if (dialog && dialog->isModal()) {
    QTimer::singleShot(0, this, [this, shown = QPointer<QDialog>(dialog)] {
      if (shown && shown->isVisible()) Answer(*shown);
    });
  }
  return false;
}

void ScreenUser::Answer(QWidget& dialog) {
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
    boxes.push_back(box->text().toStdString());
    const auto answer = on_box ? on_box(boxes.back()) : std::nullopt;
    if (!box->isVisible()) return;  // answered by keys already
    QAbstractButton* button = answer ? ButtonOf(*box, *answer) : box->defaultButton();
    if (button) button->click();
    return;
  }
  if (auto* file = qobject_cast<QFileDialog*>(&dialog)) return AnswerFile(*file);
  for (View* view : OpenViews()) {
    const QWidget* widget =
        view->Controls.empty() ? nullptr : forms_.WidgetOf(*view->Controls.front());
    if (widget && widget->window() == &dialog) return AnswerView(*view);
  }
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->isDefault()) return button->click();
  }
}

void ScreenUser::AnswerFile(QFileDialog& dialog) const {
  if (!on_file) return dialog.reject();
  auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
  const auto* buttons = dialog.findChild<QDialogButtonBox*>("buttonBox");
  if (!name || !buttons) return dialog.reject();
  name->setText(on_file());
  for (QAbstractButton* button : buttons->buttons()) {
    if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole) return button->click();
  }
}

void ScreenUser::AnswerView(View& view) {
  modals.emplace_back(view.Name);
  if (const auto handler = on_modal.find(view.Name); handler != on_modal.end()) {
    handler->second(view);
    return;
  }
  for (Control* control : view.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->Default) return button->Press();
  }
}

}  // namespace tr7
