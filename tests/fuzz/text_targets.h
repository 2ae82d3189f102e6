#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/seq_file.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes: reading gives well-formed text, and undamaged text survives a save.
inline void FuzzCodePage(std::string_view bytes) {
  for (const int page : {kCodePageShiftJis, kCodePageUtf8}) {
    const DecodedText read = DecodeCodePage(page, bytes);
    const std::string& text = read.utf8;
    FuzzCheck(EncodeCodePage(kCodePageUtf8, text).ok, "read text is UTF-8");
    if (page == kCodePageUtf8) FuzzCheck(read.ok() == (text == bytes), "good bytes stay");
    const bool sayable = EncodeCodePage(page, text).ok;
    if (page == kCodePageShiftJis) FuzzCheck(sayable == read.ok(), "what was read can be saved");
    for (const std::string_view saved : {std::string_view(text), bytes}) {
      const EncodedText back = EncodeCodePage(page, saved);
      FuzzCheck(back.ok || back.bad_at < saved.size(), "the bad character is in the text");
      if (back.ok) FuzzCheck(DecodeCodePage(page, back.bytes).utf8 == saved, "it comes back");
    }
  }
}

/// Any bytes: reading ends, and what was read comes back from what the writer makes of it.
inline void FuzzSeqFile(std::string_view bytes) {
  SeqReader reader{std::string(bytes)};
  SeqWriter writer;
  std::size_t count = 0;
  std::string all, back;
  for (std::string item; reader.ReadText(item);) {
    all += item + "|";
    writer.Text(item);
    if (++count % 3 == 0) writer.EndLine();
    FuzzCheck(count <= bytes.size() + 1, "no more items than bytes");
  }
  FuzzCheck(reader.AtEnd(), "the reader ends at the end");
  SeqReader again(writer.Result());
  for (std::string item; again.ReadText(item);) back += item + "|";
  FuzzCheck(back == all && again.AtEnd(), "what is written comes back");

  SeqReader kinds{std::string(bytes)};
  count = 0;
  double number = 0;
  int whole = 0;
  for (Variant item; !kinds.AtEnd(); ++count) {
    const bool read = count % 3 == 0   ? kinds.ReadItem(item)
                      : count % 3 == 1 ? kinds.ReadNumber(number)
                                       : kinds.ReadInteger(-5, 40, whole);
    FuzzCheck(!read || (whole >= -5 && whole <= 40), "a whole number keeps its range");
    FuzzCheck(count <= bytes.size(), "every read moves on");
  }
}

}  // namespace tr7
