#pragma once

#include <QHeaderView>

#include "forms/grid.h"

namespace tr7 {

/// The fixed rows as a header of as many levels: equal texts side by side on an upper level are one
/// title over their columns.
class GridHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
  }
  void Attach(const Grid* grid) { grid_ = grid; }
  QSize sizeHint() const override;
  int LevelHeight(int level) const;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;

 private:
  QString TitleAt(int level, int section) const;
  /// The field of the upper title that the section belongs to.
  QRect GroupRect(const QRect& section_rect, int level, int section) const;
  void PaintTitle(QPainter& painter, const QRect& rect, const QString& title, bool upper) const;

  const Grid* grid_ = nullptr;
};

/// Room beside the number of a row for its mark, pixels.
inline constexpr int kRowMarkWidth = 12;

/// The fixed column: one text a row, shaded where the selection runs.
class GridRowHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit GridRowHeader(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
    setSectionsClickable(true);
  }
  void Attach(const Grid* grid) { grid_ = grid; }

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;

 private:
  void PaintMark(QPainter& painter, const QRect& rect, RowMark mark) const;
  void PaintAtWork(QPainter& painter, const QRect& rect, const QString& number, bool differs) const;

  const Grid* grid_ = nullptr;
};

}  // namespace tr7
