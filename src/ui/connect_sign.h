#pragma once

#include <QAbstractButton>
#include <string>

namespace tr7 {

struct Control;

/// True while a command would go online by itself if it were given now.
bool ConnectsFirst(const Control& control);

/// A tip, and that its command does so.
std::string WithConnects(const std::string& tip);

/// The sign of it in a button's corner, which takes no room of the caption.
class ConnectSign : public QWidget {
 public:
  explicit ConnectSign(QAbstractButton& button);

 protected:
  void paintEvent(QPaintEvent* event) override;
  /// Follows the button's size.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakePlace();
};

}  // namespace tr7
