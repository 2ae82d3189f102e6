#include "data/sm_file.h"

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "state/file_kind.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kProduct = "QV-R7";
constexpr const char* kKind = "SM";
constexpr int kItemsOfStep = 2;

constexpr int kMsgHeadDamaged = 6451;
constexpr int kMsgMacroDamaged = 6500;

int Bad(const std::string& words) {
  SmFlags.SmFileFaultText = words;
  return 1;
}

bool ReadMacro(SeqReader& items, SmTableRecord& read) {
  std::string text;
  if (!items.ReadText(text)) return false;
  const double number = Val(text);
  if (!(number >= 1 && number <= kMacros)) return false;
  for (SmStep& step : read[static_cast<std::size_t>(number) - 1]) {
    if (!items.ReadInt16(step.Command) || !items.ReadInt16(step.Value)) return false;
  }
  return true;
}

int ReadMacros(SeqReader& items) {
  double ignored = 0;  // how many steps, items and macros the file claims to have
  for (int i = 0; i < 3; ++i) {
    if (!items.ReadNumber(ignored)) return Bad(AtLine(items.Line(), Text(kMsgHeadDamaged)));
  }
  SmTableRecord read = SmStage;
  while (!items.AtEnd()) {
    if (!ReadMacro(items, read)) return Bad(AtLine(items.Line(), Text(kMsgMacroDamaged)));
  }
  SmStage = read;
  return 0;
}

/// `path` is what a file of another kind is told by.
int ReadContent(const std::string& text, const std::string& path) {
  SeqReader items(text);
  std::string product, kind;
  if (!items.ReadText(product) || !items.ReadText(kind)) {
    return Bad(AtLine(items.Line(), Text(kMsgHeadDamaged)));
  }
  if (product != kProduct || kind != kKind) return Bad(WhatFileIs(path, text));
  return ReadMacros(items);
}

}  // namespace

int OpenSMFile(const std::string& path) {
  SmFlags.SmFileFaultText.clear();
  std::string text;
  const TextFileResult file = ReadDataFile(path, text);
  return file.ok ? ReadContent(text, path) : Bad(file.words);
}

int SmTextRead(const std::string& utf8) { return ReadContent(utf8, {}); }

std::string SmFileText(const SmTableRecord& table) {
  SeqWriter file;
  file.Text(kProduct);
  file.Text(kKind);
  file.EndLine();
  file.Number(kMacroSteps);
  file.Number(kItemsOfStep);
  file.Number(kMacros);
  file.EndLine();
  for (int n = 1; n <= kMacros; ++n) {
    file.Text(std::to_string(n));
    file.EndLine();
    for (const SmStep& step : table[n - 1]) {
      file.Number(step.Command);
      file.Number(step.Value);
      file.EndLine();
    }
  }
  return file.Result();
}

int SmFileSave(const std::string& path) {
  const TextFileResult saved = SaveTextFile(path, SmFileText(SmTable));
  SmFlags.SmFileFaultText = saved.words;
  return saved.ok ? 0 : 1;
}

}  // namespace tr7
