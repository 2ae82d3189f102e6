#include "monitor/io_names.h"

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "state/message_box.h"
#include "state/settings.h"
#include "state/text.h"
#include "state/text_file.h"
#include "steps/file_steps.h"

namespace tr7 {

IoNamesRecord IoNames;

namespace {

constexpr const char* kProduct = "QV-R7";
constexpr const char* kKind = "ION";
constexpr const char* kInputKey = "IoNameIn";
constexpr const char* kOutputKey = "IoNameOut";
constexpr DataFile kNamesFile{FileKind::Unknown, 7329, "ion", 7330};
constexpr int kOpenTitle = 7331, kSaveTitle = 7332, kNoNames = 7333, kLoaded = 7334, kSaved = 7335,
              kNotLoaded = 7336, kNotSaved = 7337;

template <std::size_t rows>
void LoadNames(std::array<std::string, rows>& names, const char* key) {
  for (std::size_t row = 0; row < rows; ++row) {
    names[row] = LeftChars(OneLine(GetSetting(key + std::to_string(row), "")), kLongestIoName);
  }
}

template <std::size_t rows>
const std::string& Keep(std::array<std::string, rows>& names, const char* key, std::size_t row,
                        const std::string& typed) {
  names[row] = Trim(LeftChars(OneLine(typed), kLongestIoName));
  PutSetting(key + std::to_string(row), names[row]);
  return names[row];
}

template <std::size_t rows>
void WriteNames(SeqWriter& file, const std::array<std::string, rows>& names) {
  for (const std::string& name : names) {
    file.Text(name);
    file.EndLine();
  }
}

template <std::size_t rows>
bool ReadNames(SeqReader& items, std::array<std::string, rows>& names) {
  for (std::string& name : names) {
    if (!items.ReadText(name)) return false;
  }
  return true;
}

bool ReadNamesFile(const std::string& text, IoNamesRecord& names) {
  SeqReader items(text);
  std::string product, kind;
  if (!items.ReadText(product) || !items.ReadText(kind)) return false;
  return product == kProduct && kind == kKind && ReadNames(items, names.In) &&
         ReadNames(items, names.Out) && items.AtEnd();
}

}  // namespace

void LoadIoNames() {
  LoadNames(IoNames.In, kInputKey);
  LoadNames(IoNames.Out, kOutputKey);
}

std::string KeepInputName(int row, const std::string& typed) {
  return Keep(IoNames.In, kInputKey, static_cast<std::size_t>(row), typed);
}
std::string KeepOutputName(int row, const std::string& typed) {
  return Keep(IoNames.Out, kOutputKey, static_cast<std::size_t>(row), typed);
}

void SaveIoNames() {
  const auto path = AskSavePath(kNamesFile, kSaveTitle);
  if (!path) return;
  SeqWriter file;
  file.Text(kProduct);
  file.Text(kKind);
  file.EndLine();
  WriteNames(file, IoNames.In);
  WriteNames(file, IoNames.Out);
  const TextFileResult saved = SaveTextFile(*path, file.Result());
  if (saved.ok) return TellDone(kSaved);
  MsgBox(WithReason(Text(kNotSaved), saved.words));
}

bool LoadIoNamesFromFile() {
  const auto path = AskOpenPath(kNamesFile, kOpenTitle);
  if (!path || path->empty()) return false;
  std::string text;
  const TextFileResult file = ReadTextFile(*path, text);
  IoNamesRecord names;
  const bool good = file.ok && ReadNamesFile(text, names);
  if (!good) {
    MsgBox(WithReason(Text(kNotLoaded), file.ok ? Text(kNoNames) : file.words));
    return false;
  }
  for (int row = 0; row < kInputRows; ++row) KeepInputName(row, names.In.at(row));
  for (int row = 0; row < kOutputRows; ++row) KeepOutputName(row, names.Out.at(row));
  TellDone(kLoaded);
  return true;
}

}  // namespace tr7
