#include "posi/posi_file.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kMagic = "QV-R7";
constexpr const char* kPrgMode = "PRG MODE";
constexpr const char* kPosMode = "POS MODE";
constexpr const char* kNew = "NEW";
constexpr const char* kOld = "OLD";
constexpr int kHeaderLines = 4;

constexpr int kMsgHeaderDamaged = 6451;
constexpr int kMsgLineDamaged = 6452;
constexpr int kMsgBadNumber = 6453;
constexpr int kMsgNoRecords = 6454;
constexpr int kMsgBadComment = 6455;

/// Columns of the oldest layout in its order: it knows neither "PF" nor "PS".
constexpr std::array<int, 20> kOldColumns{1,  2,  3,  4,  7,  8,  9,     10,   13,  14,
                                          15, 16, 19, 20, 21, 22, kItpl, kOut, kSm, kComment};

Variant& Stage(int col, int number) {
  return PosiTable.PosiStage[static_cast<std::size_t>(col)][static_cast<std::size_t>(number)];
}

const Variant& Field(int col, int number) {
  return PosiTable.PosiRec[static_cast<std::size_t>(col)][static_cast<std::size_t>(number)];
}

/// A comment is one line of a grid and of a file, whatever a file written elsewhere holds.
std::string OneLine(std::string text) {
  for (char& c : text) {
    if ((c >= 0 && c < ' ') || c == '\x7f') c = ' ';
  }
  return text;
}

// Reading.

enum class Layout { Present, WithoutWords, Oldest };

enum class Outcome { Done, NotOurs, OtherLayout, Damaged };

class Reading {
 public:
  Reading(const std::string& text, Layout layout) : items_(text), layout_(layout) {}
  Outcome Run();
  const std::string& Words() const { return words_; }

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
  if (magic != kMagic) return Outcome::NotOurs;
  std::string mode = kPosMode;
  if (layout_ != Layout::Oldest && !items_.ReadText(mode)) return Outcome::Damaged;
  AppState.FileIsPrgMode = mode == kPrgMode;
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
  if (items_.AtEnd()) return Fail(Text(kMsgNoRecords));
  for (bool first = true; !items_.AtEnd(); first = false) {
    int number = 0;
    if (!ReadNumber(number)) return false;
    if (first) AppState.FileFirstNo = static_cast<std::int16_t>(number);
    AppState.FileLastNo = static_cast<std::int16_t>(number);
    words_ = Text(kMsgLineDamaged, std::to_string(number));
    if (!ReadColumns(number)) return false;
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
  Stage(col, number) = OneLine(comment);
  return true;
}

bool Reading::ReadColumns(int number) {
  if (layout_ == Layout::Oldest) {
    for (int axis = 0; axis < kAxes; ++axis) {
      Stage(AxisBase(axis) + kPf, number) = Stage(AxisBase(axis) + kPs, number) = 0.0;
    }
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

int ReadFile(const std::string& path, Layout layout, PosiFileTrouble& trouble) {
  trouble = PosiFileTrouble{};
  std::string text;
  const TextFileResult file = ReadTextFile(path, text, kPosiFileLimit);
  if (!file.ok) {
    AppState.PosiFileNotOurs = True;
    trouble = {file.fault != FileFault::TooLarge, file.words};
    return 1;
  }
  Reading reading(text, layout);
  Outcome outcome = reading.Run();
  if (outcome == Outcome::OtherLayout) {
    reading = Reading(text, Layout::WithoutWords);
    outcome = reading.Run();
  }
  if (outcome == Outcome::Done) return 0;
  AppState.PosiFileNotOurs = True;
  if (outcome == Outcome::NotOurs) {
    MsgBox(TwoLines(21, 20));
    return 0;
  }
  trouble.words = reading.Words();
  return 1;
}

// Writing.

std::string DeviceCaption(int axis) {
  return frmPosi.lblDeviceType[static_cast<std::size_t>(axis)]->Caption;
}

const char* AgeWord(int axis) {
  const auto index = static_cast<std::size_t>(axis);
  if (DeviceCaption(axis).empty() || AppState.AxisMuko[index]) return kNew;
  return DevSetting[index].NewType ? kNew : kOld;
}

void WriteHeader(SeqWriter& file) {
  file.Text(kMagic);
  file.EndLine();
  file.Text(AppState.CtMode ? kPrgMode : kPosMode);
  file.EndLine();
  for (int axis = 0; axis < kAxes; ++axis) file.Text(DeviceCaption(axis));
  file.EndLine();
  for (int axis = 0; axis < kAxes; ++axis) file.Text(AgeWord(axis));
  file.EndLine();
}

/// Column 5 alone is written as it is held, bare when it is a number: the format has it so.
void WriteRecord(SeqWriter& file, int number) {
  constexpr int kAsHeld = 5;
  file.Number(number);
  for (int col = 1; col < kPosiColumns; ++col) {
    const Variant& field = Field(col, number);
    if (col == kAsHeld) {
      file.Item(field);
    } else if (col == kComment) {
      file.Text(TextOf(field));
    } else {
      file.Text(Str(ValueOf(field)));
    }
  }
  file.EndLine();
}

std::vector<int> WrittenNumbers() {
  std::vector<int> numbers;
  for (int n = AppState.PosiFromNo; n <= AppState.PosiToNo; ++n) {
    if (n < 1 || n > kPosiMaxNo) continue;
    if (!PosiTable.PosiLineBad[static_cast<std::size_t>(n)]) numbers.push_back(n);
  }
  return numbers;
}

bool SavesWholeTable() {
  return AppState.PosiFromNo <= AppState.PosiFirstNo && AppState.PosiToNo >= AppState.PosiLastNo;
}

/// A line of the file means nothing to the user; its position number does.
std::string SaveWords(const TextFileResult& saved, const std::vector<int>& numbers) {
  const int record = saved.bad_line - kHeaderLines - 1;
  if (record < 0 || record >= static_cast<int>(numbers.size())) return saved.words;
  return Text(kMsgBadComment, std::to_string(numbers[static_cast<std::size_t>(record)]),
              saved.bad_character);
}

}  // namespace

int ReadPosiFile(const std::string& path, PosiFileTrouble& trouble) {
  return ReadFile(path, Layout::Present, trouble);
}

int ReadOldPosiFile(const std::string& path, PosiFileTrouble& trouble) {
  return ReadFile(path, Layout::Oldest, trouble);
}

void ShowFileAges() {
  for (std::size_t axis = 0; axis < kAxes; ++axis) {
    const bool is_new = DevSettei[axis].NewTypeWord == kNew;
    frmPosi.lblAge[axis]->Caption =
        AppState.AxisMuko[axis] ? std::string() : Text(is_new ? MsgId(126) : MsgId(127));
  }
}

int SaveFileAs2(const std::string& path, PosiFileTrouble& trouble) {
  const std::vector<int> numbers = WrittenNumbers();
  SeqWriter file;
  WriteHeader(file);
  for (const int number : numbers) WriteRecord(file, number);
  const TextFileResult saved = SaveTextFile(path, file.Result());
  if (!saved.ok) {
    trouble = {saved.fault != FileFault::None, SaveWords(saved, numbers)};
    return 1;
  }
  SetPosiTableFile(path);
  // What lies outside a narrowed range is in no file yet.
  if (SavesWholeTable()) frmPosi.PosiChanged = False;
  return 0;
}

}  // namespace tr7
