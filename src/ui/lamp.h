#pragma once

#include <QColor>
#include <QWidget>

namespace tr7 {

/// A round signal lamp: glowing when lit, a dark glass when not.
class Lamp : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QColor colour READ Colour WRITE setColour)

 public:
  explicit Lamp(QWidget* parent = nullptr) : QWidget(parent) {}
  QColor Colour() const { return colour_; }
  /// Named as the code made from layout files calls it.
  void setColour(const QColor& colour) { colour_ = colour; }
  void SetLit(bool lit);
  bool IsLit() const { return lit_; }
  QSize sizeHint() const override { return {16, 16}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_ = Qt::green;
  bool lit_ = false;
};

}  // namespace tr7
