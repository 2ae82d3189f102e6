#include "ui/plot_widget.h"

#include <QBuffer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/look.h"

namespace tr7 {
namespace {

constexpr qreal kNameShare = 0.28;  ///< of the width, at most
constexpr int kGap = 6;
constexpr qreal kLeastStrip = 34;

using Samples = std::deque<PlotSample>;

/// The samples that a part of time shows: from the last one before it to the first one behind it.
std::pair<Samples::const_iterator, Samples::const_iterator> Within(const Samples& samples,
                                                                   std::int64_t from,
                                                                   std::int64_t to) {
  const auto before = [](const PlotSample& sample, std::int64_t at) { return sample.AtMs < at; };
  auto first = std::lower_bound(samples.begin(), samples.end(), from, before);
  if (first != samples.begin()) --first;
  auto end = std::lower_bound(first, samples.end(), to, before);
  if (end != samples.end()) ++end;
  return {first, end};
}

QString Number(double value) { return QString::number(value, 'g', 7); }

}  // namespace

PlotWidget::PlotWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
}

void PlotWidget::Attach(Plot& plot) {
  plot_ = &plot;
  plot.Picture = [this] {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return grab().save(&buffer, "PNG") ? bytes.toStdString() : std::string();
  };
}

void PlotWidget::Push() {
  if (!plot_ || shown_revision_ == plot_->Revision) return;
  shown_revision_ = plot_->Revision;
  update();
}

/// Right of the names, above the times. Every name is measured for it, so it is asked for once a
/// drawing and not for each sample.
QRectF PlotWidget::RoomForTraces() const {
  int names = 0;
  for (const PlotTrace* trace : plot_->Shown) {
    names = std::max(names, fontMetrics().horizontalAdvance(Q(trace->Name)));
  }
  const qreal left = std::min<qreal>(names + 3 * kGap, width() * kNameShare);
  const qreal below = fontMetrics().height() + kGap;
  return {left, kGap, std::max<qreal>(width() - left - 2 * kGap, 1),
          std::max<qreal>(height() - below - kGap, 1)};
}

qreal PlotWidget::XOf(std::int64_t at_ms) const {
  const auto span = static_cast<qreal>(std::max<std::int64_t>(plot_->ToMs - plot_->FromMs, 1));
  const qreal part = static_cast<qreal>(at_ms - plot_->FromMs) / span;
  return field_.left() + std::clamp(part, 0.0, 1.0) * field_.width();
}

std::int64_t PlotWidget::TimeAt(qreal x) const {
  const QRectF field = RoomForTraces();
  const qreal part = std::clamp((x - field.left()) / field.width(), 0.0, 1.0);
  return plot_->FromMs +
         static_cast<std::int64_t>(part * static_cast<qreal>(plot_->ToMs - plot_->FromMs));
}

void PlotWidget::DrawTimes(QPainter& painter) const {
  constexpr std::int64_t kSteps[] = {1000, 2000, 5000, 10'000, 20'000, 60'000, 120'000};
  constexpr int kMostLines = 8;
  std::int64_t step = kSteps[0];
  for (const std::int64_t wider : kSteps) {
    if ((plot_->ToMs - plot_->FromMs) / step > kMostLines) step = wider;
  }
  const std::int64_t first = std::max(plot_->FromMs, plot_->ZeroMs) - plot_->ZeroMs;
  for (std::int64_t at = (first + step - 1) / step * step; at + plot_->ZeroMs <= plot_->ToMs;
       at += step) {
    const qreal x = XOf(at + plot_->ZeroMs);
    painter.setPen(look::Colours().grid_line);
    painter.drawLine(QPointF(x, field_.top()), QPointF(x, field_.bottom()));
    painter.setPen(look::Colours().text);
    const QString text = QString::number(at / 1000) + QStringLiteral(" s");
    const qreal wide = fontMetrics().horizontalAdvance(text);
    const qreal left = std::min(x - wide / 2, width() - wide - 1);
    painter.drawText(QPointF(left, field_.bottom() + fontMetrics().ascent() + 3), text);
  }
}

/// On is a full bar, off a line at the bottom, and what is not known nothing.
void PlotWidget::DrawLane(QPainter& painter, const PlotTrace& trace, const QRectF& lane) const {
  const auto [first, end] = Within(trace.Samples, plot_->FromMs, plot_->ToMs);
  painter.setPen(look::Colours().text);
  for (auto sample = first; sample != end; ++sample) {
    const auto next = std::next(sample);
    if (!sample->Value || next == end) continue;
    const qreal from = XOf(sample->AtMs), to = XOf(next->AtMs);
    if (*sample->Value != 0) {
      painter.fillRect(QRectF(from, lane.top() + 2, to - from, lane.height() - 4),
                       look::Colours().good);
    }
    painter.drawLine(QPointF(from, lane.bottom() - 2), QPointF(to, lane.bottom() - 2));
  }
}

void PlotWidget::DrawLine(QPainter& painter, const PlotTrace& trace, const QRectF& strip) const {
  const auto [first, end] = Within(trace.Samples, plot_->FromMs, plot_->ToMs);
  std::optional<double> low, high;
  for (auto sample = first; sample != end; ++sample) {
    if (!sample->Value) continue;
    low = std::min(low.value_or(*sample->Value), *sample->Value);
    high = std::max(high.value_or(*sample->Value), *sample->Value);
  }
  if (!low) return;
  const double range = *high > *low ? *high - *low : 1.0;
  const QRectF inner = strip.adjusted(0, 4, 0, -4);
  QPolygonF line;
  painter.setPen(QPen(look::Colours().selection, 1.5));
  for (auto sample = first; sample != end; ++sample) {
    if (sample->Value) {
      const double part = *high > *low ? (*sample->Value - *low) / range : 0.5;
      line << QPointF(XOf(sample->AtMs), inner.bottom() - part * inner.height());
    }
    if (sample->Value && std::next(sample) != end) continue;
    painter.drawPolyline(line);
    line.clear();
  }
  painter.setPen(look::Colours().text);
  const QRectF scale = strip.adjusted(2, 0, -2, 0);
  painter.drawText(scale, Qt::AlignRight | Qt::AlignTop, Number(*high));
  if (*high > *low) painter.drawText(scale, Qt::AlignRight | Qt::AlignBottom, Number(*low));
}

void PlotWidget::DrawTraces(QPainter& painter) const {
  const qreal lane_height = fontMetrics().height() + 6;
  const auto lanes = std::count_if(plot_->Shown.begin(), plot_->Shown.end(),
                                   [](const PlotTrace* trace) { return trace->Digital; });
  const auto lines = static_cast<qreal>(plot_->Shown.size()) - static_cast<qreal>(lanes);
  const qreal left = field_.height() - static_cast<qreal>(lanes) * lane_height;
  const qreal strip_height = lines > 0 ? std::max(left / lines, kLeastStrip) : 0;
  qreal top = field_.top();
  for (const PlotTrace* trace : plot_->Shown) {
    const qreal height = trace->Digital ? lane_height : strip_height;
    const QRectF strip(field_.left(), top, field_.width(), height);
    const QRectF name(kGap, top, field_.left() - 2 * kGap, height);
    painter.setPen(look::Colours().text);
    painter.drawText(
        name, Qt::AlignLeft | Qt::AlignVCenter,
        fontMetrics().elidedText(Q(trace->Name), Qt::ElideRight, static_cast<int>(name.width())));
    trace->Digital ? DrawLane(painter, *trace, strip) : DrawLine(painter, *trace, strip);
    painter.setPen(look::Colours().header_line);
    painter.drawLine(QPointF(kGap, strip.bottom()), QPointF(field_.right(), strip.bottom()));
    top += height;
  }
}

void PlotWidget::DrawCursor(QPainter& painter, const std::optional<std::int64_t>& at_ms,
                            const QString& name, Qt::PenStyle style) const {
  if (!at_ms || *at_ms < plot_->FromMs || *at_ms > plot_->ToMs) return;
  const qreal x = XOf(*at_ms);
  painter.setPen(QPen(look::Colours().text, 1.2, style));
  painter.drawLine(QPointF(x, field_.top()), QPointF(x, field_.bottom()));
  const QRectF label(x + 2, field_.top(), fontMetrics().horizontalAdvance(name) + 4,
                     fontMetrics().height());
  painter.fillRect(label, look::Colours().header);
  painter.drawText(label, Qt::AlignCenter, name);
}

void PlotWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), look::Colours().base);
  painter.setPen(look::Colours().header_line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!plot_) return;
  if (plot_->Shown.empty()) {
    painter.setPen(look::Colours().text);
    painter.drawText(rect().adjusted(kGap, kGap, -kGap, -kGap), Qt::AlignCenter | Qt::TextWordWrap,
                     Q(plot_->Hint));
    return;
  }
  field_ = RoomForTraces();
  DrawTimes(painter);
  DrawTraces(painter);
  DrawCursor(painter, plot_->CursorA, QStringLiteral("A"), Qt::SolidLine);
  DrawCursor(painter, plot_->CursorB, QStringLiteral("B"), Qt::DashLine);
}

void PlotWidget::mousePressEvent(QMouseEvent* event) {
  if (!plot_ || !plot_->Pick || event->button() != Qt::LeftButton) return;
  plot_->Pick(TimeAt(event->position().x()), event->modifiers() & Qt::ShiftModifier);
}

void PlotWidget::wheelEvent(QWheelEvent* event) {
  if (plot_ && plot_->Zoom && event->angleDelta().y() != 0) {
    plot_->Zoom(event->angleDelta().y() > 0 ? 1 : -1);
  }
  event->accept();
}

/// The arrows move cursor A, with Shift cursor B, by a hundredth of what is on show.
void PlotWidget::keyPressEvent(QKeyEvent* event) {
  constexpr std::int64_t kSteps = 100;
  const bool left = event->key() == Qt::Key_Left, right = event->key() == Qt::Key_Right;
  if (!plot_ || !plot_->Pick || !(left || right)) return QWidget::keyPressEvent(event);
  const bool second = event->modifiers() & Qt::ShiftModifier;
  const std::int64_t at = (second ? plot_->CursorB : plot_->CursorA).value_or(plot_->ToMs);
  const std::int64_t step = (plot_->ToMs - plot_->FromMs) / kSteps;
  plot_->Pick(std::clamp(at + (left ? -step : step), plot_->FromMs, plot_->ToMs), second);
}

}  // namespace tr7
