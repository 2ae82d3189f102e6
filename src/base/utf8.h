#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tr7 {

inline constexpr char32_t kBadCharacter = 0xFFFD;

/// Takes the character that starts at `at` (inside the text) and moves `at` behind it. A byte that
/// begins no well-formed character is taken alone and gives U+FFFD with `good` false.
char32_t TakeUtf8(std::string_view utf8, std::size_t& at, bool& good);

/// Appends a character other than a surrogate, up to U+10FFFF.
void AppendUtf8(std::string& utf8, char32_t character);

}  // namespace tr7
