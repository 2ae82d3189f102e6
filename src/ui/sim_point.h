#pragma once

#include <QAbstractButton>

namespace tr7 {

/// A point of the simulated machine with its number: a square switch for an input, a round lamp for
/// an output. On is light on dark, off dark on light.
class SimPoint : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Kind { Input, Output };

  SimPoint(Kind kind, int number, QWidget* parent = nullptr);

  /// Draws anew, and tells anew, where it is another than before.
  void Show(bool on);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  /// A hand asks for this; what it becomes is shown by `Show`.
  void switched(bool on);

 protected:
  void nextCheckState() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Tell();

  Kind kind_;
  int number_;
};

}  // namespace tr7
