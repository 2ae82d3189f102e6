#include "data/grp_file.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kKind = "GRP";
/// The first one is ours; files of the older products hold the same.
constexpr std::array<std::string_view, 3> kProducts = {"QV-R7", "QV-L4", "QV-L2"};
constexpr int kItemsOfGroup = 3;  ///< number, start and end

constexpr int kMsgHeadDamaged = 6451;
constexpr int kMsgGroupDamaged = 6484;

int Bad(const SeqReader& items, const std::string& words) {
  GrpFlags.GrpFileFaultText = AtLine(items.Line(), words);
  return 1;
}

bool IsGroupFile(const std::string& product, const std::string& kind) {
  return kind == kKind && std::find(kProducts.begin(), kProducts.end(), product) != kProducts.end();
}

bool ReadGroup(SeqReader& items, GrpTableRecord& read) {
  std::string text;
  if (!items.ReadText(text)) return false;
  const double number = Val(text);
  if (!(number >= 1 && number <= kGroups)) return false;
  const int n = static_cast<int>(number);
  return items.ReadInt16(read.GrpStart[n]) && items.ReadInt16(read.GrpEnd[n]);
}

int ReadGroups(SeqReader& items) {
  double ignored = 0;  // how many groups and items the file claims to have
  if (!items.ReadNumber(ignored) || !items.ReadNumber(ignored)) {
    return Bad(items, Text(kMsgHeadDamaged));
  }
  GrpTableRecord read = GrpStage;
  while (!items.AtEnd()) {
    if (!ReadGroup(items, read)) return Bad(items, Text(kMsgGroupDamaged));
  }
  GrpStage = read;
  return 0;
}

/// `path` is what a file of another kind is told by.
int ReadContent(const std::string& text, const std::string& path) {
  SeqReader items(text);
  std::string product, kind;
  if (!items.ReadText(product) || !items.ReadText(kind)) return Bad(items, Text(kMsgHeadDamaged));
  if (IsGroupFile(product, kind)) return ReadGroups(items);
  GrpFlags.GrpFileRefused = True;
  MsgBox(WithReason(TwoLines(19, 20), WhatFileIs(path, text)));
  return 0;
}

}  // namespace

int GrpFileRead(const std::string& path) {
  GrpFlags.GrpFileRefused = False;
  GrpFlags.GrpFileFaultText.clear();
  std::string text;
  const TextFileResult file = ReadDataFile(path, text);
  if (file.ok) return ReadContent(text, path);
  GrpFlags.GrpFileFaultText = file.words;
  return 1;
}

int GrpTextRead(const std::string& utf8) {
  GrpFlags.GrpFileRefused = False;
  return ReadContent(utf8, {});
}

std::string GrpFileText(const GrpTableRecord& table) {
  SeqWriter file;
  file.Text(kProducts[0]);
  file.Text(kKind);
  file.EndLine();
  file.Number(kGroups);
  file.Number(kItemsOfGroup);
  file.EndLine();
  for (int n = 1; n <= kGroups; ++n) {
    file.Text(std::to_string(n));
    file.Number(table.GrpStart[n]);
    file.Number(table.GrpEnd[n]);
    file.EndLine();
  }
  return file.Result();
}

int GrpFileSave(const std::string& path) {
  const TextFileResult saved = SaveTextFile(path, GrpFileText(GrpTable));
  GrpFlags.GrpFileFaultText = saved.words;
  return saved.ok ? 0 : 1;
}

}  // namespace tr7
