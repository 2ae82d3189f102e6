#include "ui/connect_sign.h"

#include <QEvent>
#include <QPainter>

#include "forms/control.h"
#include "state/app_state.h"
#include "state/text.h"
#include "ui/icons.h"

namespace tr7 {

bool ConnectsFirst(const Control& control) {
  return control.Connects && control.Enabled && AppState.Offline;
}

std::string WithConnects(const std::string& tip) {
  constexpr int kMsgConnects = 7831;
  return tip + "\n" + Text(kMsgConnects);
}

ConnectSign::ConnectSign(QAbstractButton& button) : QWidget(&button) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  button.installEventFilter(this);
  TakePlace();
}

void ConnectSign::TakePlace() {
  constexpr int kSide = 10, kFromEdge = 2;
  setGeometry(parentWidget()->width() - kSide - kFromEdge, kFromEdge, kSide, kSide);
}

void ConnectSign::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  ConnectIcon().paint(&painter, rect());
}

bool ConnectSign::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) TakePlace();
  return QWidget::eventFilter(watched, event);
}

}  // namespace tr7
