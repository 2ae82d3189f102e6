#pragma once

#include <string>
#include <string_view>

namespace tr7 {

/// A frame without its CR LF.
std::string_view WithoutEnd(std::string_view bytes);

/// A frame for the eye: without its line end, what cannot be printed as "\x07".
std::string VisibleBytes(std::string_view bytes);

bool IsErrorReply(std::string_view line);

}  // namespace tr7
