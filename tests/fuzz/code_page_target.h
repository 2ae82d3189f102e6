#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"
#include "tests/fuzz/check.h"

namespace tr7 {

/// Any bytes: reading gives well-formed text, and undamaged text survives a save.
inline void FuzzCodePage(std::string_view bytes) {
  for (const int page : {kCodePageShiftJis, kCodePageUtf8}) {
    const std::string text = DecodeCodePage(page, bytes);
    FuzzCheck(EncodeCodePage(kCodePageUtf8, text).ok, "read text is UTF-8");
    const bool whole = text.find("\uFFFD") == std::string::npos;
    const EncodedText saved = EncodeCodePage(page, text);
    if (page == kCodePageShiftJis) FuzzCheck(saved.ok == whole, "what was read can be saved");
    if (saved.ok) FuzzCheck(DecodeCodePage(page, saved.bytes) == text, "saved text comes back");

    const EncodedText direct = EncodeCodePage(page, bytes);
    if (direct.ok) FuzzCheck(DecodeCodePage(page, direct.bytes) == bytes, "a text comes back");
    if (!direct.ok) FuzzCheck(direct.bad_at < bytes.size(), "the bad character is in the text");
  }
}

}  // namespace tr7
