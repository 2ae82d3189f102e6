#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace tr7 {

/// A field that holds a number or a text, as the file or the controller delivered it. Tables hold
/// tens of thousands of them: a number, and a text of up to 15 bytes, take 16 bytes and no more.
class Variant {
 public:
  /// 0.
  Variant() : Variant(0.0) {}
  Variant(double number) { std::memcpy(bytes_, &number, sizeof number); }
  Variant(std::string_view text);
  Variant(const std::string& text) : Variant(std::string_view(text)) {}
  Variant(const Variant& other) { CopyFrom(other); }
  Variant(Variant&& other) noexcept { Swap(other); }
  Variant& operator=(const Variant& other) {
    if (this == &other) return *this;
    if (kind_ == kLong) FreeText();
    CopyFrom(other);
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    Swap(other);
    return *this;
  }
  ~Variant() {
    if (kind_ == kLong) FreeText();
  }

  bool IsText() const { return kind_ != kNumber; }
  /// The text; empty where a number is held. Good until the field is changed.
  std::string_view Text() const;
  /// The number; 0 where a text is held.
  double Number() const;

  friend bool operator==(const Variant& a, const Variant& b) {
    if (a.IsText() != b.IsText()) return false;
    return a.IsText() ? a.Text() == b.Text() : a.Number() == b.Number();
  }

 private:
  static constexpr std::size_t kRoom = 15;
  /// Up to `kRoom`: a text of so many bytes, which stands in the field itself. `kLong`: the field
  /// holds the address of its text.
  static constexpr std::uint8_t kLong = 0xFE, kNumber = 0xFF;

  const std::string* LongText() const;
  void FreeText();
  void CopyFrom(const Variant& other) {
    std::memcpy(bytes_, other.bytes_, kRoom);
    kind_ = other.kind_;
    if (kind_ == kLong) OwnText();
  }
  void OwnText();  ///< a text of its own in place of the other's
  void Swap(Variant& other) noexcept {
    std::swap(bytes_, other.bytes_);
    std::swap(kind_, other.kind_);
  }

  alignas(8) char bytes_[kRoom] = {};
  std::uint8_t kind_ = kNumber;
};

static_assert(sizeof(Variant) == 16);

/// The decimal value: of a text its leading number (`Val`).
double ValueOf(const Variant& field);
/// The text: of a number its plain decimal form.
std::string TextOf(const Variant& field);

}  // namespace tr7
