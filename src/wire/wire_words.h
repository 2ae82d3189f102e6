#pragma once

#include <string>
#include <string_view>

namespace tr7 {

// What frames say, in the user's language: "Read position No. 12: AXIS1 VEL 50 ...". They take any
// bytes: what is short, too long or no number is shown as it stands.

/// With or without CR LF.
std::string RequestWords(std::string_view frame);
std::string ReplyWords(std::string_view line);

}  // namespace tr7
