#include "base/variant.h"

#include "base/text_helpers.h"

namespace tr7 {

double ValueOf(const Variant& field) { return field.Text() ? Val(*field.Text()) : field.Number(); }

std::string TextOf(const Variant& field) {
  return field.Text() ? *field.Text() : PlainDecimal(field.Number());
}

}  // namespace tr7
