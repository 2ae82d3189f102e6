#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <optional>
#include <string>

#include "ui/binding.h"

namespace tr7 {

class ConnectSign;

/// What the three kinds of buttons share.
class ButtonBinding : public WidgetBinding {
 public:
  ButtonBinding(Control& control, QAbstractButton& button)
      : WidgetBinding(control, button), button_(button) {}
  void Push() override;

 protected:
  QAbstractButton& button_;

 private:
  std::optional<std::string> caption_;
};

class CommandButtonBinding : public ButtonBinding {
 public:
  CommandButtonBinding(CommandButton& record, QPushButton& button, const CommandGate& gate);
  void Push() override;

 private:
  ConnectSign* sign_ = nullptr;  ///< the button's own, once there was need of it
  std::optional<bool> signed_;
};

class CheckBoxBinding : public ButtonBinding {
 public:
  CheckBoxBinding(CheckBox& record, QCheckBox& box);
  void Push() override;

 private:
  CheckBox& record_;
};

class OptionButtonBinding : public ButtonBinding {
 public:
  OptionButtonBinding(OptionButton& record, QRadioButton& button, QButtonGroup& group);
  void Push() override;

 private:
  OptionButton& record_;
  QButtonGroup& group_;
};

}  // namespace tr7
