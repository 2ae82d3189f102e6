#include "ui/button_bindings.h"

#include <QMainWindow>
#include <QShortcut>

#include "ui/connect_sign.h"

namespace tr7 {

void ButtonBinding::Push() {
  WidgetBinding::Push();
  if (Changed(caption_, control_.Caption)) button_.setText(Q(control_.Caption));
}

CommandButtonBinding::CommandButtonBinding(CommandButton& record, QPushButton& button,
                                           const CommandGate& gate)
    : ButtonBinding(record, button) {
  // Enter presses the button that has the focus, and the default one from a field.
  button.setAutoDefault(true);
  button.setDefault(record.Default);
  if (record.Urgent) {
    QObject::connect(&button, &QPushButton::pressed, &button, [&record] { record.Press(); });
  } else {
    QObject::connect(&button, &QPushButton::clicked, &button, [&record, gate] {
      // Cancel takes nothing, so an edit that is refused does not hold it up.
      if (record.Cancel || gate()) record.Press();
    });
  }
  if (!record.Key.empty()) {
    auto* key = new QShortcut(QKeySequence(Q(record.Key)), &button);
    QObject::connect(key, &QShortcut::activated, &button, [&button] { button.click(); });
  }
  // In a dialogue the window has the key; in the frame it goes wherever the focus is.
  if (!record.Cancel || !qobject_cast<QMainWindow*>(button.window())) return;
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), &button);
  QObject::connect(escape, &QShortcut::activated, &button, [&button] { button.click(); });
}

void CommandButtonBinding::Push() {
  ButtonBinding::Push();
  const bool connects = ConnectsFirst(control_);
  if (connects && !sign_) sign_ = new ConnectSign(button_);
  if (sign_ && Changed(signed_, connects)) sign_->setVisible(connects);
}

CheckBoxBinding::CheckBoxBinding(CheckBox& record, QCheckBox& box)
    : ButtonBinding(record, box), record_(record) {
  QObject::connect(&box, &QCheckBox::clicked, &box, [&record](bool on) { record.Set(on); });
}

void CheckBoxBinding::Push() {
  ButtonBinding::Push();
  if (button_.isChecked() != record_.Value) button_.setChecked(record_.Value);
}

OptionButtonBinding::OptionButtonBinding(OptionButton& record, QRadioButton& button,
                                         QButtonGroup& group)
    : ButtonBinding(record, button), record_(record), group_(group) {
  group.addButton(&button);
  QObject::connect(&button, &QRadioButton::clicked, &button, [&record] { record.Press(); });
}

void OptionButtonBinding::Push() {
  ButtonBinding::Push();
  if (button_.isChecked() == record_.Value) return;
  // A group whose record holds no choice shows none.
  group_.setExclusive(false);
  button_.setChecked(record_.Value);
  group_.setExclusive(true);
}

}  // namespace tr7
