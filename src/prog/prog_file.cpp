#include "prog/prog_file.h"

#include <algorithm>

#include "base/seq_file.h"
#include "base/text_helpers.h"
#include "prog/prog_listing.h"
#include "state/file_kind.h"
#include "state/files_here.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

constexpr const char* kProduct = "QV-R7";
constexpr const char* kKind = "Program";
constexpr int kMostRows = 9999;  // far beyond every program, and still shown
constexpr int kHeadLines = 3;
constexpr int kMsgStep = 5339, kMsgCaption = 7059;
constexpr std::size_t kEnding = 4;  // ".prg"

int Refuse(const std::string& reason) {
  MsgBox(WithReason(TwoLines(132, 20), reason));
  return 1;
}

int Damaged(const SeqReader& items, const std::string& path, ProgStore& store) {
  store.FileFault = ListFault(FileTitle(path), {}, FileKind::Program, items.Line());
  return 1;
}

bool ReadRow(SeqReader& items, ProgCells& row) {
  for (int column = kProgCommand; column <= kProgComment; ++column) {
    if (!items.ReadText(row[column])) return false;
    row[column] = Trim(OneLine(row[column]));
  }
  return true;
}

int ReadRows(SeqReader& items, const std::string& path, ProgStore& store) {
  std::string count;
  if (!items.ReadText(count)) return Damaged(items, path, store);
  const double announced = Val(count);
  if (!(announced >= 0 && announced <= kMostRows)) return Refuse(AtLine(items.Line(), count));
  std::vector<ProgCells> rows(static_cast<std::size_t>(announced));
  for (std::size_t row = 0; !items.AtEnd(); ++row) {
    ProgCells read;
    if (!ReadRow(items, read)) return Damaged(items, path, store);
    if (row >= rows.size()) return Refuse(AtLine(items.Line(), read[kProgCommand]));
    rows[row] = std::move(read);
  }
  store.ProgFileDA = std::move(rows);
  return 0;
}

}  // namespace

std::string ProgFileText(const Grid& listing) {
  const int steps = ListingSteps(listing);
  SeqWriter file;
  file.Text(kProduct);
  file.EndLine();
  file.Text(kKind);
  file.EndLine();
  file.Number(steps);
  file.EndLine();
  for (int step = 1; step <= steps; ++step) {
    for (const std::string& text : CellsOfStep(listing, step).Texts) file.Text(text);
    file.EndLine();
  }
  return file.Result();
}

int SaveFileProgAs2(const std::string& path, ProgView& view) {
  if (ListingSteps(view.flgdProg) < 1) return 1;
  const TextFileResult saved = SaveTextFile(path, ProgFileText(view.flgdProg));
  view.Store.FileFault = saved.words;
  if (saved.ok) return 0;
  if (saved.bad_line > kHeadLines) {
    view.Store.FileFault =
        Text(kMsgStep, std::to_string(saved.bad_line - kHeadLines)) + ": " + saved.bad_character;
  }
  return 1;
}

int ReadProgText(const std::string& utf8, const std::string& path, ProgStore& store) {
  SeqReader items(utf8);
  std::string product, kind;
  const bool ours = items.ReadText(product) && items.ReadText(kind);
  if (!ours || product != kProduct || kind != kKind) return Refuse(WhatFileIs(path, utf8));
  return ReadRows(items, path, store);
}

int OpenProgFile(const std::string& path, ProgStore& store) {
  std::string text;
  const TextFileResult file = ReadDataFile(path, text);
  store.FileFault = file.words;
  return file.ok ? ReadProgText(text, path, store) : 1;
}

void ShowProgFileName(const std::string& path, ProgView& view) {
  view.Store.FilePath = path;
  FileIsShown(path);
  const std::string title = FileTitle(path);
  const std::string name = title.substr(0, title.size() - std::min(kEnding, title.size()));
  view.Caption = Text(kMsgCaption, "[" + name + "]");
}

}  // namespace tr7
