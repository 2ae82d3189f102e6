#include "wire/wire_bytes.h"

#include "base/text_helpers.h"

namespace tr7 {

std::string_view WithoutEnd(std::string_view bytes) {
  constexpr std::string_view kLineEnd = "\r\n";
  if (bytes.ends_with(kLineEnd)) bytes.remove_suffix(kLineEnd.size());
  return bytes;
}

std::string VisibleBytes(std::string_view bytes) {
  std::string shown;
  for (const char byte : WithoutEnd(bytes)) {
    const auto code = static_cast<unsigned char>(byte);
    const bool printable = code >= ' ' && code <= '~';
    shown += printable ? std::string(1, byte) : "\\x" + HexPad(code, 2);
  }
  return shown;
}

bool IsErrorReply(std::string_view line) { return line.starts_with("0%%"); }

}  // namespace tr7
