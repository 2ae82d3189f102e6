#pragma once

#include <QLabel>
#include <QObject>

#include "ui/binding.h"

namespace tr7 {

/// A label; a double click on it reaches the record.
class LabelBinding : public QObject, public WidgetBinding {
 public:
  LabelBinding(Label& record, QLabel& label, const CommandGate& gate);
  void Push() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Label& record_;
  QLabel& label_;
  CommandGate gate_;
  std::optional<std::string> caption_;
  std::optional<double> width_;
};

}  // namespace tr7
