#pragma once

#include <string>
#include <variant>

namespace tr7 {

/// A field that holds a number or a text, as the file or the controller delivered it.
using Variant = std::variant<double, std::string>;

/// The decimal value: of a text its leading number (`Val`).
double ValueOf(const Variant& field);
/// The text: of a number its plain decimal form.
std::string TextOf(const Variant& field);

}  // namespace tr7
