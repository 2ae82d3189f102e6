#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/view.h"
#include "platform/form_host.h"
#include "ui/qt_form_host.h"

class QFileDialog;

namespace tr7 {

/// Who sits before the real screen: answers each dialogue and message box as soon as it shows. A
/// view without a handler has its default button pressed, and so has a box or any other dialogue; a
/// file dialogue is cancelled.
class ScreenUser : public QObject {
 public:
  explicit ScreenUser(const QtFormHost& forms);
  ~ScreenUser() override;

  /// What to do in a modal view, by view name.
  std::map<std::string, std::function<void(View&)>> on_modal;
  /// The answer to a box of this text; without one the default button is pressed.
  std::function<std::optional<MsgAnswer>(const std::string& text)> on_box;
  /// The path to choose in a file dialogue, asked for right before it is confirmed.
  std::function<QString()> on_file;
  std::vector<std::string> boxes;   ///< texts of the boxes that came
  std::vector<std::string> modals;  ///< names of the modal views that came

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Answer(QWidget& dialog);
  void AnswerFile(QFileDialog& dialog) const;
  void AnswerView(View& view);

  const QtFormHost& forms_;
};

}  // namespace tr7
