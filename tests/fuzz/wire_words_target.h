#pragma once

#include <string_view>

#include "tests/fuzz/fuzz_doors.h"
#include "wire/wire_send.h"
#include "wire/wire_words.h"

namespace tr7 {

/// Any bytes as a frame of either way, in both languages: some words, and nothing that breaks a
/// line.
inline void FuzzWireWords(std::string_view bytes) {
  const FuzzDoors virt;
  for (const std::int16_t offset : {std::int16_t{0}, std::int16_t{10000}}) {
    AppState.LangOffset = offset;
    for (const std::string& words : {RequestWords(bytes), ReplyWords(bytes)}) {
      FuzzCheck(!words.empty() && words.find_first_of("\r\n") == std::string::npos, "one line");
    }
  }
  FuzzCheck(RefusalOfFrame(std::string(bytes) + "\r").size() > 1, "no line end is sent");
}

}  // namespace tr7
