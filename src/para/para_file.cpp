#include "para/para_file.h"

#include <array>
#include <cstddef>
#include <limits>
#include <utility>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "para/param_set.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kProduct = "QV-R7";
constexpr const char* kKind = "PRM";

constexpr int kMsgHeadDamaged = 6451;
constexpr int kMsgSectionDamaged = 6150;
constexpr int kMsgWrongTag = 6334;
constexpr int kTagChars = 20;  ///< of a wrong one that are told

struct Section {
  const char* tag;
  int rows;  ///< as written
};

constexpr std::array<Section, 5> kSections = {
    {{"HOME", 6}, {"AXIS", 7}, {"PG", 2}, {"ETC", 9}, {"SPECIAL", 10}}};

// Reading. Rows and columns are as many as the file says, as long as the table has them.

enum class Outcome { Done, NotOurs, Bad };

/// An empty count is 0.
bool TakeCount(const std::string& text, int& count) {
  SeqReader item(text);
  if (item.AtEnd()) return true;
  return item.ReadInteger(0, std::numeric_limits<int>::max(), count) && item.AtEnd();
}

class Reading {
 public:
  Reading(const std::string& text, ParaTableRecord& table) : items_(text), table_(table) {}
  /// `path` is put into the table once the file is known to be one of ours.
  Outcome Run(const std::string& path);
  /// Why it is bad, and on which line; empty for a file of another kind.
  const std::string& Words() const { return words_; }

 private:
  bool ReadSections(int count);
  bool ReadSection(const Section& section);
  bool ReadRows();
  Outcome HeadDamaged() {
    Fail(Text(kMsgHeadDamaged));
    return Outcome::Bad;
  }
  bool Fail(const std::string& words) {
    words_ = AtLine(items_.Line(), words);
    return false;
  }

  SeqReader items_;
  ParaTableRecord& table_;
  int row_ = 1;  ///< carries across the sections
  std::string words_;
};

Outcome Reading::Run(const std::string& path) {
  std::string product, kind, count_text;
  if (!items_.ReadText(product) || !items_.ReadText(kind) || !items_.ReadText(count_text)) {
    return HeadDamaged();
  }
  if (product != kProduct || kind != kKind) return Outcome::NotOurs;
  table_[0][0] = path;
  int count = 0;
  if (!TakeCount(count_text, count)) return HeadDamaged();
  return ReadSections(count) ? Outcome::Done : Outcome::Bad;
}

bool Reading::ReadSections(int count) {
  const int known = static_cast<int>(kSections.size());
  for (int index = 0; index < count; ++index) {
    std::string tag;
    if (index < known) {
      if (!ReadSection(kSections[index])) return false;
    } else if (!items_.ReadText(tag)) {
      // Of a section beyond the known ones no more than this is asked for.
      return Fail(Text(kMsgHeadDamaged));
    }
  }
  return true;
}

bool Reading::ReadSection(const Section& section) {
  std::string tag;
  const bool read = items_.ReadText(tag);
  if (read && tag != section.tag)
    return Fail(Text(kMsgWrongTag, LeftChars(OneLine(tag), kTagChars), section.tag));
  return (read && ReadRows()) || Fail(Text(kMsgSectionDamaged, section.tag));
}

bool Reading::ReadRows() {
  const int rows_left = static_cast<int>(ParaTableRecord::kRows) - row_;
  const int columns_most = static_cast<int>(ParaTableRecord::kColumns);
  int rows = 0, columns = 0;
  if (!items_.ReadInteger(0, rows_left, rows) || !items_.ReadInteger(0, columns_most, columns)) {
    return false;
  }
  for (const int end = row_ + rows; row_ < end; ++row_) {
    for (int column = 0; column < columns; ++column) {
      Variant& slot = table_[column][row_];
      if (!items_.ReadItem(slot)) return false;
    }
  }
  return true;
}

int Bad(const std::string& words) {
  ParaFlags.ParaFileBad = True;
  ParaFlags.FileFaultText = words;
  return 1;
}

/// `path` is what the file is called.
int ReadContent(const std::string& text, const std::string& path) {
  Reading reading(text, ParaTable);
  const Outcome outcome = reading.Run(path);
  if (outcome == Outcome::Done) return 0;
  if (outcome == Outcome::NotOurs) MsgBox(WithReason(TwoLines(22, 20), WhatFileIs(path, text)));
  return Bad(reading.Words());
}

// Writing.

void WriteSections(SeqWriter& file, const ParaTableRecord& table) {
  std::size_t row = 1;
  for (const Section& section : kSections) {
    file.Text(section.tag);
    file.Number(section.rows);
    file.Number(kAxes);
    file.EndLine();
    for (const std::size_t end = row + static_cast<std::size_t>(section.rows); row < end; ++row) {
      for (int axis = 0; axis < kAxes; ++axis) file.Item(table[axis][row]);
      file.EndLine();
    }
  }
}

}  // namespace

int ReadParaTable(const std::string& path) {
  ParaTable.Clear();
  ParaFlags.FileFaultText.clear();
  std::string text;
  const TextFileResult file = ReadDataFile(path, text);
  return file.ok ? ReadContent(text, path) : Bad(file.words);
}

int ReadParaText(const std::string& utf8) {
  ParaTable.Clear();
  ParaFlags.FileFaultText.clear();
  return ReadContent(utf8, {});
}

std::string ParaFileText() {
  SeqWriter file;
  file.Text(kProduct);
  file.Text(kKind);
  file.EndLine();
  file.Number(static_cast<double>(kSections.size()));
  file.EndLine();
  WriteSections(file, ParaTableOf(ParamSet));
  return file.Result();
}

int WriteParaFile(const std::string& path) {
  const TextFileResult saved = SaveTextFile(path, ParaFileText());
  ParaFlags.ParaFileWriteFailed = !saved.ok;
  ParaFlags.FileFaultText = saved.words;
  return saved.ok ? 0 : 1;
}

}  // namespace tr7
