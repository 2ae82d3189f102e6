#pragma once

#include <QWidget>
#include <optional>

#include "forms/plot.h"
#include "ui/binding.h"

namespace tr7 {

/// Draws a strip chart from its record: a lane a digital trace, a strip of its own scale a line.
/// Nothing is told by colour alone.
class PlotWidget : public QWidget {
  Q_OBJECT

 public:
  explicit PlotWidget(QWidget* parent = nullptr);

  void Attach(Plot& plot);
  /// Draws anew where the record has changed.
  void Push();

  QSize sizeHint() const override { return {480, 240}; }
  QSize minimumSizeHint() const override { return {240, 120}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRectF RoomForTraces() const;
  qreal XOf(std::int64_t at_ms) const;
  std::int64_t TimeAt(qreal x) const;
  void DrawTimes(QPainter& painter) const;
  void DrawTraces(QPainter& painter) const;
  void DrawLane(QPainter& painter, const PlotTrace& trace, const QRectF& lane) const;
  void DrawLine(QPainter& painter, const PlotTrace& trace, const QRectF& strip) const;
  void DrawCursor(QPainter& painter, const std::optional<std::int64_t>& at_ms, const QString& name,
                  Qt::PenStyle style) const;

  Plot* plot_ = nullptr;
  QRectF field_;  ///< where the traces were drawn last
  std::optional<std::uint64_t> shown_revision_;
};

class PlotBinding : public WidgetBinding {
 public:
  PlotBinding(Plot& record, PlotWidget& widget) : WidgetBinding(record, widget), plot_(widget) {
    widget.Attach(record);
  }
  void Push() override {
    WidgetBinding::Push();
    plot_.Push();
  }

 private:
  PlotWidget& plot_;
};

}  // namespace tr7
