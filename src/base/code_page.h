#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tr7 {

inline constexpr int kCodePageShiftJis = 932;
inline constexpr int kCodePageUtf8 = 65001;

/// Outcome of writing a text in a code page.
struct EncodedText {
  bool ok = true;
  std::string bytes;
  std::size_t bad_at = 0;     ///< not ok: where in the UTF-8 text the first character stands that
                              ///< the page lacks
  std::string bad_character;  ///< that character; a byte that is no UTF-8 counts as U+FFFD
};

/// Outcome of reading bytes of a code page.
struct DecodedText {
  std::string utf8;
  std::size_t bad_at = std::string::npos;  ///< the first byte that is no character of the page
  bool ok() const { return bad_at == std::string::npos; }
};

/// Bytes of a code page as UTF-8. Bytes that are no character of the page become U+FFFD; what
/// follows them is read as if they were not there. Any page but UTF-8 is read as 932.
DecodedText DecodeCodePage(int page, std::string_view bytes);

/// UTF-8 as bytes of a code page, up to the first character that the page lacks.
EncodedText EncodeCodePage(int page, std::string_view utf8);

}  // namespace tr7
