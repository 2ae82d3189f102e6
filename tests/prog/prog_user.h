#pragma once

#include <sstream>

#include "forms/frm_prog_no.h"
#include "prog/command_list.h"
#include "prog/prog_listing.h"
#include "prog/prog_view.h"
#include "tests/support/flow_test.h"

namespace tr7 {

/// The user of a program view, in program mode.
class ProgUser : public FlowTest {
 protected:
  ProgUser() : FlowTest(InProgramMode()) {}

  /// A new view that shows these steps, the cells of each parted by blanks: "MVP 1 _ I1 O1", where
  /// "_" is an empty cell.
  ProgView& Program(const Texts& steps) {
    EXPECT_EQ(ReadCommandLst(), 0);
    ProgView& view = NewProgView();
    ShowView(view);
    Put(view, steps);
    return view;
  }

  static void Put(ProgView& view, const Texts& steps) {
    view.flgdProg.SetRows(1 + static_cast<int>(steps.size()));
    FGProg_ReNumber(view.flgdProg);
    for (int step = 1; step <= static_cast<int>(steps.size()); ++step) {
      std::istringstream cells(steps[static_cast<std::size_t>(step) - 1]);
      std::string cell;
      for (int col = 1; col <= 6 && cells >> cell; ++col) {
        view.flgdProg.SetText(step, col, cell == "_" ? "" : cell);
      }
    }
  }

  /// The steps of a view in the same form, empty cells at the end left out.
  static Texts Steps(const ProgView& view) {
    Texts steps;
    for (int step = 1; step < view.flgdProg.Rows(); ++step) {
      std::string text, gap;
      for (int col = 1; col <= 6; ++col) {
        const std::string& cell = view.flgdProg.Text(step, col);
        gap += cell.empty() ? "_ " : "";
        if (!cell.empty()) text += std::exchange(gap, "") + cell + " ";
      }
      steps.push_back(text.substr(0, text.size() - (text.empty() ? 0 : 1)));
    }
    return steps;
  }

  /// The next list of programs is answered with this number; 0 cancels it.
  void ChooseProgram(int number) {
    InDialog("frmProgNo", {[number] {
               if (number > 0) frmProgNo.flgdProgNo.SelectCell(number, 1);
               (number > 0 ? frmProgNo.cmdOk : frmProgNo.cmdCancel).Press();
             }});
  }
};

}  // namespace tr7
