#include "base/variant.h"

#include "base/text_helpers.h"

namespace tr7 {

Variant::Variant(std::string_view text) {
  if (text.size() <= kRoom) {
    text.copy(bytes_, text.size());
    kind_ = static_cast<std::uint8_t>(text.size());
    return;
  }
  const auto* own = new std::string(text);
  std::memcpy(bytes_, &own, sizeof own);
  kind_ = kLong;
}

const std::string* Variant::LongText() const {
  const std::string* text = nullptr;
  std::memcpy(&text, bytes_, sizeof text);
  return text;
}

void Variant::OwnText() {
  kind_ = kNumber;  // holds nothing, should there be no room for the copy
  const auto* own = new std::string(*LongText());
  std::memcpy(bytes_, &own, sizeof own);
  kind_ = kLong;
}

void Variant::FreeText() { delete LongText(); }

std::string_view Variant::Text() const {
  if (kind_ == kNumber) return {};
  return kind_ == kLong ? std::string_view(*LongText()) : std::string_view(bytes_, kind_);
}

double Variant::Number() const {
  double number = 0;
  if (kind_ == kNumber) std::memcpy(&number, bytes_, sizeof number);
  return number;
}

double ValueOf(const Variant& field) { return field.IsText() ? Val(field.Text()) : field.Number(); }

std::string TextOf(const Variant& field) {
  return field.IsText() ? std::string(field.Text()) : PlainDecimal(field.Number());
}

}  // namespace tr7
