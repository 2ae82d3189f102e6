#pragma once

#include <QComboBox>
#include <QObject>
#include <vector>

#include "ui/binding.h"

namespace tr7 {

/// A list that drops down; into an editable one other texts may be typed.
class ComboBoxBinding : public QObject, public WidgetBinding {
 public:
  ComboBoxBinding(ComboBox& record, QComboBox& combo);
  void Push() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PushText(int cursor);

  ComboBox& record_;
  QComboBox& combo_;
  std::optional<std::vector<std::string>> list_;
  bool pushing_ = false;
};

}  // namespace tr7
