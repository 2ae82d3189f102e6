#pragma once

#include <cstdint>
#include <string_view>

#include "base/text_helpers.h"

namespace tr7 {

/// The characters of a reply from a position, counted from 1.
inline std::string_view ReplyField(std::string_view reply, std::size_t from, std::size_t width) {
  return reply.substr(from - 1, width);
}

/// The same as a hexadecimal number; -1 when it is none.
inline std::int32_t ReplyValue(std::string_view reply, std::size_t from, std::size_t width) {
  return static_cast<std::int32_t>(HexValue(ReplyField(reply, from, width)));
}

}  // namespace tr7
