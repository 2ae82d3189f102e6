#pragma once

#include <QObject>
#include <cstdint>

namespace tr7 {

/// The Escape key anywhere in the program: while something moves it stops that, and nothing else
/// comes of it. Held down, it stops, cancels or closes once: a box that comes up meanwhile is to be
/// read.
class EscapeKey : public QObject {
 public:
  EscapeKey();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool taken_ = false;       ///< the key has stopped something: what else it would do is swallowed
  std::uint64_t up_ms_ = 0;  ///< when it last went up, by the window system's clock
};

}  // namespace tr7
