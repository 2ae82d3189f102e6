#pragma once

#include <QWidget>
#include <functional>

#include "platform/sim_axis.h"

namespace tr7 {

/// One axis of the simulated machine: its name, the slide on its stroke between the two ends, where
/// it stands, and its servo and home state in words. An arrow goes ahead of a slide that moves. A
/// slide whose servo is off can be dragged.
class SimPicture : public QWidget {
  Q_OBJECT

 public:
  explicit SimPicture(const QString& name, QWidget* parent = nullptr);

  /// Draws anew where something is another than before.
  void Show(const SimAxis& axis);
  const SimAxis& Shown() const { return axis_; }

  /// A hand drags the slide by so many pulses.
  std::function<void(int pulses)> pushed;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QRectF Stroke() const;
  qreal XOf(int pulses) const;
  QRectF Slide() const;
  void DrawStroke(QPainter& painter) const;
  void DrawArrow(QPainter& painter) const;
  void DrawWords(QPainter& painter) const;

  QString name_;
  SimAxis axis_;
  int direction_ = 0;  ///< of the last change of place: -1 towards home, 1 away from it
  bool held_ = false;  ///< a hand has the slide
};

}  // namespace tr7
