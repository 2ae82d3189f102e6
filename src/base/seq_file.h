#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/variant.h"

namespace tr7 {

/// Reads the quoted, comma-separated, CR LF form item by item. How the items are spread over lines
/// carries no meaning: a comma or a line end ends an item. In quotes, commas and line ends belong
/// to the item and two quotes stand for one. Blanks around an item do not belong to it. An empty
/// line is an empty item, except at the end of the text. A quote left open, or one with something
/// behind it that is no separator, ends the reading: it and all later reads fail.
class SeqReader {
 public:
  explicit SeqReader(std::string utf8);
  /// True when no item is left.
  bool AtEnd() const;
  /// The line (from 1) on which the item read or tried last begins.
  int Line() const;
  /// The next item as text, with or without quotes; false at the end or at a damaged item.
  bool ReadText(std::string& text);
  /// The next item as a number: an empty item is 0; false at the end or when it is no number.
  bool ReadNumber(double& value);
  /// The next item as it stands: a quoted item is a text, a bare one a number if it is one.
  bool ReadItem(Variant& item);
  /// Like `ReadNumber` for a whole number within low to high; false outside.
  bool ReadInteger(int low, int high, int& value);
  /// The same for any number of 16 bits.
  bool ReadInt16(std::int16_t& value);

 private:
  bool Next(std::string& text, bool& quoted);
  bool TakeQuoted(std::string& text);
  bool TakeBare(std::string& text);
  bool TakeSeparator();

  std::string text_;
  std::size_t at_ = 0;
  std::size_t item_at_ = 0;   ///< where the item read last begins
  bool after_comma_ = false;  ///< an item is due even at the end of the text
};

/// Builds the same form. A line is items between `Item` calls and `EndLine`.
class SeqWriter {
 public:
  void Text(std::string_view text);  ///< in quotes, a quote within doubled
  void Number(double value);         ///< bare, plain decimal
  void Bare(std::string_view text);  ///< as it stands
  void Item(const Variant& item);    ///< a number bare, a text quoted
  void EndLine();                    ///< CR LF
  const std::string& Result() const { return out_; }

 private:
  void Separate();
  std::string out_;
  bool line_begun_ = false;
};

}  // namespace tr7
