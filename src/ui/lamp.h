#pragma once

#include <QWidget>

namespace tr7 {

/// A round signal lamp. Lit it is full and bears the sign of what it tells, dark it is an empty
/// ring: it reads without its colour.
class Lamp : public QWidget {
  Q_OBJECT
  Q_PROPERTY(Light light READ ShownLight WRITE setLight)

 public:
  /// What it tells when it is lit.
  enum class Light { Good, Moving, Unknown, Alarm };
  Q_ENUM(Light)

  explicit Lamp(QWidget* parent = nullptr) : QWidget(parent) {}
  Light ShownLight() const { return light_; }
  /// Named as the code made from layout files calls it.
  void setLight(Light light) { light_ = light; }
  void SetLit(bool lit);
  bool IsLit() const { return lit_; }
  QSize sizeHint() const override { return {16, 16}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Light light_ = Light::Good;
  bool lit_ = false;
};

}  // namespace tr7
