#include "base/variant.h"

#include "base/text_helpers.h"

namespace tr7 {
namespace {

void HoldAddress(const std::string* text, char* bytes) {
  const auto address = reinterpret_cast<std::uintptr_t>(text);
  std::memcpy(bytes, &address, sizeof address);
}

}  // namespace

Variant::Variant(std::string_view text) {
  if (text.size() <= kRoom) {
    text.copy(bytes_, text.size());
    kind_ = static_cast<std::uint8_t>(text.size());
    return;
  }
  HoldAddress(new std::string(text), bytes_);
  kind_ = kLong;
}

const std::string* Variant::LongText() const {
  std::uintptr_t address = 0;
  std::memcpy(&address, bytes_, sizeof address);
  return reinterpret_cast<const std::string*>(address);
}

void Variant::OwnText() {
  kind_ = kNumber;  // holds nothing, should there be no room for the copy
  HoldAddress(new std::string(*LongText()), bytes_);
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
