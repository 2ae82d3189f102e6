#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/seq_file.h"
#include "tests/fuzz/check.h"

namespace tr7 {

/// Any bytes: reading ends, and what was read comes back from what the writer makes of it.
inline void FuzzSeqFile(std::string_view bytes) {
  SeqReader reader{std::string(bytes)};
  std::vector<std::string> items;
  SeqWriter writer;
  for (std::string item; reader.ReadText(item);) {
    items.push_back(item);
    writer.Text(item);
    if (items.size() % 3 == 0) writer.EndLine();
    FuzzCheck(items.size() <= bytes.size() + 1, "no more items than bytes");
  }
  FuzzCheck(reader.AtEnd(), "the reader ends at the end");

  SeqReader again(writer.Result());
  for (const std::string& item : items) {
    std::string read;
    FuzzCheck(again.ReadText(read) && read == item, "a written item comes back");
  }
  FuzzCheck(again.AtEnd(), "no item is added");

  SeqReader kinds{std::string(bytes)};
  std::size_t count = 0;
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
