#pragma once

#include <QObject>

namespace tr7 {

/// The Escape key anywhere in the program: while something moves it stops that, and nothing else
/// comes of it.
class EscapeKey : public QObject {
 public:
  EscapeKey();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool taken_ = false;  ///< the key has stopped something: what else it would do is swallowed
};

}  // namespace tr7
