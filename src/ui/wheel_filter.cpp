#include "ui/wheel_filter.h"

#include <QEvent>

namespace tr7 {
namespace {

class WheelFilter : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Wheel) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

void LetWheelPass(QWidget& widget) { widget.installEventFilter(new WheelFilter(&widget)); }

}  // namespace tr7
