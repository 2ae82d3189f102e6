// Readers of programs: the file, and the digits of a step.

#pragma once

#include <algorithm>

#include "base/text_helpers.h"
#include "prog/command_list.h"
#include "prog/prog_check.h"
#include "prog/prog_file.h"
#include "prog/prog_hint.h"
#include "prog/prog_listing.h"
#include "prog/step_decode.h"
#include "prog/vocabulary.h"
#include "tests/fuzz/fuzz_doors.h"

namespace tr7 {

/// Any bytes as a program file: whole or not at all, and what was read comes back from a save.
inline void FuzzProgFile(std::string_view bytes) {
  FuzzDoors virt;
  const std::string path = "/x.prg";
  virt.files.Put(path, std::string(bytes));
  ProgView view(1);
  ProgStore& store = view.Store;
  const auto read = [&] { return OpenProgFile(path, store); };
  if (read() != 0) {
    FuzzCheck(store.ProgFileDA.empty(), "a bad file brings no steps");
    FuzzCheck(virt.forms.boxes.empty() != store.FileFault.empty(), "a failure has its words");
    return;
  }
  FuzzCheck(virt.forms.boxes.empty(), "a good file says nothing");
  if (store.ProgFileDA.empty() || store.ProgFileDA.size() > kMostProgSteps) return;
  const auto save = [&] {
    PutListing(view.flgdProg, store.ProgFileDA);
    return SaveFileProgAs2(path, view);
  };
  CheckRoundTrip(virt.files, path, save, read);
}

/// Any bytes as steps, ten each: they show in one line, what is shown as it is meant reads back to
/// the same, and the check ends.
inline void FuzzSteps(std::string_view bytes) {
  constexpr std::size_t kBytes = 10;
  const FuzzDoors virt;
  for (int code = 0; code < kCommands; ++code) {
    const std::string name(RuleOfCode(code)->name);
    CommandList.CmdList.push_back(name.empty() ? "N" + std::to_string(code) : name);
  }
  CommandList.CmdCount = kCommands;
  ProgStore store;
  for (; bytes.size() >= kBytes; bytes.remove_prefix(kBytes)) {
    const auto field = [bytes](std::size_t at, int width, std::int32_t below) {
      std::int32_t value = 0;
      while (width-- > 0) value = value * 256 + static_cast<unsigned char>(bytes[at++]);
      return value % below;
    };
    store.ProgDA.push_back({{field(0, 1, 256), field(1, 3, 1 << 24), field(4, 3, 1 << 24),
                             field(7, 2, 1 << 12), field(9, 1, 256)}});
    const ProgStep& step = store.ProgDA.back();
    const ProgCells cells = DecodeStep(step);
    for (int column = kProgOperand1; column <= kProgResult; ++column) {
      const std::string& text = cells[column];
      FuzzCheck(OneLine(text) == text && text.size() <= 10, "a cell is short");
      const bool meant = !text.empty() && !StepCellToText(step, column).bare &&
                         CellFault(step[kProgCommand], column, text).empty();
      ProgStep again;
      FuzzCheck(!meant || (EncodeCells(cells, again), again[column] == step[column]),
                "what is shown reads back");
    }
  }
  FuzzCheck(
      (programCheckProc(store) == 0) == store.ProgErrList.empty() && store.ProgErrList.size() <= 11,
      "the check ends with its records");
  CommandList = CommandListRecord{};
}

}  // namespace tr7
