#pragma once

#include <memory>
#include <string>
#include <utility>

namespace tr7 {

/// A field that holds a number or a text, as the file or the controller delivered it. Tables hold
/// tens of thousands of numbers and a few texts: a number takes no more room than it must.
class Variant {
 public:
  /// 0.
  Variant() = default;
  Variant(double number) : number_(number) {}
  Variant(std::string text) : text_(std::make_unique<const std::string>(std::move(text))) {}
  Variant(const Variant& other) : number_(other.number_), text_(CopyOf(other.text_)) {}
  Variant(Variant&&) noexcept = default;
  Variant& operator=(const Variant& other) {
    number_ = other.number_;
    text_ = CopyOf(other.text_);
    return *this;
  }
  Variant& operator=(Variant&&) noexcept = default;
  ~Variant() = default;

  /// The text, or null where a number is held.
  const std::string* Text() const { return text_.get(); }
  /// The number; 0 where a text is held.
  double Number() const { return number_; }

  friend bool operator==(const Variant& a, const Variant& b) {
    if (!a.text_ || !b.text_) return !a.text_ && !b.text_ && a.number_ == b.number_;
    return *a.text_ == *b.text_;
  }

 private:
  using Owned = std::unique_ptr<const std::string>;
  static Owned CopyOf(const Owned& text) {
    return text ? std::make_unique<const std::string>(*text) : nullptr;
  }

  double number_ = 0;
  Owned text_;
};

/// The decimal value: of a text its leading number (`Val`).
double ValueOf(const Variant& field);
/// The text: of a number its plain decimal form.
std::string TextOf(const Variant& field);

}  // namespace tr7
