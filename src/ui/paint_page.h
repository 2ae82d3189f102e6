#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <string>

#include "platform/printer.h"

namespace tr7 {

/// Pages of a printer, a file or a preview. The device outlives this.
class PaintPage : public PrintOutput {
 public:
  explicit PaintPage(QPagedPaintDevice& device);

  double Width() const override;
  double Height() const override;
  void SetFont(const PrintFont& font) override;
  double TextWidth(const std::string& text) override;
  double TextHeight(const std::string& text) override;
  void Begin(int) override {}
  void Text(double left, double top, const std::string& text) override;
  void TextRight(double right, double top, const std::string& text) override;
  void Line(double x1, double y1, double x2, double y2, double width) override;
  bool NewPage() override { return device_.newPage(); }
  /// Ends the last page; there is no more to it.
  bool Close(std::string&) override { return painter_.end(); }

  /// False: the device takes no pages.
  bool IsActive() const { return painter_.isActive(); }

 private:
  QPointF Place(double x, double y) const;

  QPagedPaintDevice& device_;
  QPainter painter_;
  double dots_per_mm_;
  double points_ = 11;
};

/// Whole sheets of this size: a page keeps its own distance from the edges.
QPageLayout SheetLayout(const QPageSize& size, QPageLayout::Orientation orientation);

}  // namespace tr7
