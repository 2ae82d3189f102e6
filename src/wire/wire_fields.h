#pragma once

#include <span>
#include <string>
#include <string_view>

#include "wire/wire_table.h"

namespace tr7 {

/// The characters of a frame behind its subject, field by field in words. `subject` names the block
/// where a field is one's data. A frame that ends early ends the words; what is left over stands
/// behind them as it is.
std::string FieldWords(std::span<const WireField> fields, std::string_view characters,
                       const std::string& subject);

}  // namespace tr7
