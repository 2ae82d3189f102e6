#include "posi/posi_file.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_file_words.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr int kMsgHeaderDamaged = 6451;
constexpr int kMsgLineDamaged = 6452;
constexpr int kMsgBadNumber = 6453;
constexpr int kMsgNoRecords = 6454;

/// Columns of the oldest layout in its order: it knows neither "PF" nor "PS".
constexpr std::array<int, 20> kOldColumns{1,  2,  3,  4,  7,  8,  9,     10,   13,  14,
                                          15, 16, 19, 20, 21, 22, kItpl, kOut, kSm, kComment};

Variant& Stage(int col, int number) { return PosiTable.PosiStage[col][number]; }

enum class Layout { Present, WithoutWords, Oldest };

enum class Outcome { Done, NotOurs, OtherLayout, Damaged };

class Reading {
 public:
  Reading(const std::string& text, Layout layout) : items_(text), layout_(layout) {}
  Outcome Run();
  /// What is wrong, and on which line.
  std::string Words() const { return AtLine(items_.Line(), words_); }

 private:
  Outcome ReadHeader();
  Outcome ReadWords();
  bool ReadRecords();
  bool ReadNumber(int& number);
  bool ReadColumn(int col, int number);
  bool ReadColumns(int number);
  bool Fail(const std::string& words) {
    words_ = words;
    return false;
  }

  SeqReader items_;
  Layout layout_;
  std::string words_;
};

Outcome Reading::Run() {
  const Outcome header = ReadHeader();
  if (header != Outcome::Done) return header;
  return ReadRecords() ? Outcome::Done : Outcome::Damaged;
}

Outcome Reading::ReadHeader() {
  std::string magic;
  words_ = Text(kMsgHeaderDamaged);
  if (!items_.ReadText(magic)) return Outcome::Damaged;
  if (magic != kPosiMagic) return Outcome::NotOurs;
  std::string mode = kPosiPosMode;
  if (layout_ != Layout::Oldest && !items_.ReadText(mode)) return Outcome::Damaged;
  AppState.FileIsPrgMode = mode == kPosiPrgMode;
  for (std::string& device : FileDevice) {
    if (!items_.ReadText(device)) return Outcome::Damaged;
  }
  if (layout_ == Layout::Present) return ReadWords();
  for (DevSettingRecord& device : DevSettei) device.NewTypeWord = kOld;
  return Outcome::Done;
}

/// None of the four is a word of this line: the file has no such line.
Outcome Reading::ReadWords() {
  bool known = false;
  for (DevSettingRecord& device : DevSettei) {
    if (!items_.ReadText(device.NewTypeWord)) return Outcome::Damaged;
    known = known || device.NewTypeWord == kNew || device.NewTypeWord == kOld;
  }
  return known ? Outcome::Done : Outcome::OtherLayout;
}

bool Reading::ReadRecords() {
  PosiStageInit();
  if (items_.AtEnd()) return Fail(Text(kMsgNoRecords));
  for (bool first = true; !items_.AtEnd(); first = false) {
    int number = 0;
    if (!ReadNumber(number)) return false;
    if (first) AppState.FileFirstNo = static_cast<std::int16_t>(number);
    AppState.FileLastNo = static_cast<std::int16_t>(number);
    words_ = Text(kMsgLineDamaged, std::to_string(number));
    if (!ReadColumns(number)) return false;
    PosiTable.StageHolds.set(number);
  }
  return true;
}

/// The test for a number of the table asks for one that is below 0 and above 999, which passes
/// everything; what stops a wrong number is the bound of the stage.
bool Reading::ReadNumber(int& number) {
  Variant item;
  if (!items_.ReadItem(item)) return false;
  const double value = ValueOf(item);
  const bool in_stage = value >= 1 && value <= kPosiMaxNo && value == std::trunc(value);
  if (!in_stage) return Fail(Text(kMsgBadNumber, LeftChars(OneLine(TextOf(item)), 20)));
  number = static_cast<int>(value);
  return true;
}

bool Reading::ReadColumn(int col, int number) {
  if (col != kComment) return items_.ReadItem(Stage(col, number));
  std::string comment;
  if (!items_.ReadText(comment)) return false;
  Stage(col, number) = OneLine(comment);  // as the grid and the file have it
  return true;
}

bool Reading::ReadColumns(int number) {
  if (layout_ == Layout::Oldest) {
    for (const int col : kOldColumns) {
      if (!ReadColumn(col, number)) return false;
    }
    return true;
  }
  for (int col = 1; col < kPosiColumns; ++col) {
    if (!ReadColumn(col, number)) return false;
  }
  return true;
}

/// `path` is what a file of another kind is told by.
int ReadContent(const std::string& text, const std::string& path, Layout layout,
                PosiFileTrouble& trouble) {
  const FileKind kind = KindOfFile(text);
  const bool other_kind = kind != FileKind::Position && kind != FileKind::Unknown;
  Reading reading(text, layout);
  Outcome outcome = other_kind ? Outcome::NotOurs : reading.Run();
  if (outcome == Outcome::OtherLayout) {
    reading = Reading(text, Layout::WithoutWords);
    outcome = reading.Run();
  }
  if (outcome == Outcome::Done) return 0;
  AppState.PosiFileNotOurs = True;
  if (outcome == Outcome::NotOurs) {
    MsgBox(WithReason(TwoLines(21, 20), WhatFileIs(path, text)));
    return 0;
  }
  trouble.words = reading.Words();
  return 1;
}

int ReadFile(const std::string& path, Layout layout, PosiFileTrouble& trouble) {
  trouble = PosiFileTrouble{};
  std::string text;
  const TextFileResult file = ReadDataFile(path, text, kPosiFileLimit);
  if (file.ok) return ReadContent(text, path, layout, trouble);
  AppState.PosiFileNotOurs = True;
  trouble = {file.fault != FileFault::None && file.fault != FileFault::TooLarge, file.words};
  return 1;
}

}  // namespace

int ReadPosiFile(const std::string& path, PosiFileTrouble& trouble) {
  return ReadFile(path, Layout::Present, trouble);
}

int ReadPosiText(const std::string& utf8, PosiFileTrouble& trouble) {
  trouble = PosiFileTrouble{};
  return ReadContent(utf8, {}, Layout::Present, trouble);
}

int ReadOldPosiFile(const std::string& path, PosiFileTrouble& trouble) {
  return ReadFile(path, Layout::Oldest, trouble);
}

std::string NumberRuns(const std::bitset<kPosiSlots>& numbers, int first, int last) {
  constexpr int kMostRuns = 20;
  const auto meant = [&numbers, last](int n) { return n <= last && numbers[n]; };
  std::string text;
  int runs = 0;
  for (int n = first; n <= last; ++n) {
    if (!meant(n)) continue;
    if (++runs > kMostRuns) return text + ", ...";
    const int start = n;
    while (meant(n + 1)) ++n;
    text += (runs > 1 ? ", " : "") + std::to_string(start);
    if (n > start) text += "-" + std::to_string(n);
  }
  return text;
}

std::string NumbersLeftOut(int first, int last) {
  return NumberRuns(~PosiTable.StageHolds, first, last);
}

void ShowFileAges() {
  for (int axis = 0; axis < kAxes; ++axis) {
    const bool is_new = DevSettei[axis].NewTypeWord == kNew;
    frmPosi.lblAge[axis]->Caption =
        AppState.AxisMuko[axis] ? std::string() : Text(is_new ? MsgId(126) : MsgId(127));
  }
}

}  // namespace tr7
