#include <string>
#include <vector>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/posi_caption.h"
#include "posi/posi_edits.h"
#include "posi/posi_file.h"
#include "posi/posi_file_words.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr int kHeaderLines = 4;
constexpr int kMsgBadComment = 6455;

const Variant& Field(int col, int number) { return PosiTable.PosiRec[col][number]; }

std::string DeviceCaption(int axis) { return frmPosi.lblDeviceType[axis]->Caption; }

const char* AgeWord(int axis) {
  if (DeviceCaption(axis).empty() || AppState.AxisMuko[axis]) return kNew;
  return DevSetting[axis].NewType ? kNew : kOld;
}

void WriteHeader(SeqWriter& file) {
  file.Text(kPosiMagic);
  file.EndLine();
  file.Text(AppState.CtMode ? kPosiPrgMode : kPosiPosMode);
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
    if (!PosiTable.PosiLineBad[n]) numbers.push_back(n);
  }
  return numbers;
}

/// A line of the file means nothing to the user; its position number does.
std::string SaveWords(const TextFileResult& saved, const std::vector<int>& numbers) {
  const int record = saved.bad_line - kHeaderLines - 1;
  if (record < 0 || record >= static_cast<int>(numbers.size())) return saved.words;
  return Text(kMsgBadComment, std::to_string(numbers[record]), saved.bad_character);
}

}  // namespace

std::string PosiFileText(const std::vector<int>& numbers) {
  SeqWriter file;
  WriteHeader(file);
  for (const int number : numbers) WriteRecord(file, number);
  return file.Result();
}

int SaveFileAs2(const std::string& path, PosiFileTrouble& trouble) {
  const std::vector<int> numbers = WrittenNumbers();
  const TextFileResult saved = SaveTextFile(path, PosiFileText(numbers));
  if (!saved.ok) {
    trouble = {saved.fault != FileFault::None, SaveWords(saved, numbers)};
    return 1;
  }
  SetPosiTableFile(path);
  // What lies outside a narrowed range is in no file yet.
  if (RangeIsWholeTable()) frmPosi.PosiChanged = False;
  PosiEditsAreSaved();
  return 0;
}

}  // namespace tr7
