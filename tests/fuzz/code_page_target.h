#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"
#include "tests/fuzz/check.h"

namespace tr7 {

/// Any bytes: reading gives well-formed text, and undamaged text survives a save.
inline void FuzzCodePage(std::string_view bytes) {
  for (const int page : {kCodePageShiftJis, kCodePageUtf8}) {
    const DecodedText read = DecodeCodePage(page, bytes);
    const std::string& text = read.utf8;
    FuzzCheck(EncodeCodePage(kCodePageUtf8, text).ok, "read text is UTF-8");
    const EncodedText saved = EncodeCodePage(page, text);
    if (page == kCodePageShiftJis) FuzzCheck(saved.ok == read.ok(), "what was read can be saved");
    if (page == kCodePageUtf8) FuzzCheck(read.ok() == (text == bytes), "good bytes stay");
    if (saved.ok) FuzzCheck(DecodeCodePage(page, saved.bytes).utf8 == text, "it comes back");

    const EncodedText direct = EncodeCodePage(page, bytes);
    if (direct.ok) FuzzCheck(DecodeCodePage(page, direct.bytes).utf8 == bytes, "a text comes back");
    if (!direct.ok) FuzzCheck(direct.bad_at < bytes.size(), "the bad character is in the text");
  }
}

}  // namespace tr7
