#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QValidator>

#include "ui/binding.h"

namespace tr7 {

/// A one-line field. It takes what the record's rules take, whether typed or pasted.
class TextBoxBinding : public QObject, public WidgetBinding {
 public:
  TextBoxBinding(TextBox& record, QLineEdit& edit);
  ~TextBoxBinding() override;
  void Push() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool OnKey(const QEvent& event);
  void OnFocusOut();

  TextBox& record_;
  QLineEdit& edit_;
  QPointer<QValidator> validator_;  ///< owned; the edit may die first and takes it along then
  std::optional<std::string> text_, prompt_;
  std::optional<int> max_length_;
  std::optional<bool> input_method_off_;
  bool pushing_ = false;
};

}  // namespace tr7
