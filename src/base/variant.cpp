#include "base/variant.h"

#include "base/text_helpers.h"

namespace tr7 {

double ValueOf(const Variant& field) {
  const auto* text = std::get_if<std::string>(&field);
  return text ? Val(*text) : *std::get_if<double>(&field);
}

std::string TextOf(const Variant& field) {
  const auto* text = std::get_if<std::string>(&field);
  return text ? *text : PlainDecimal(*std::get_if<double>(&field));
}

}  // namespace tr7
