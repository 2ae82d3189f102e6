#include "monitor/io_copy.h"

#include "forms/frm_io_check_fg.h"
#include "monitor/watch_show.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"

namespace tr7 {
namespace {

void AddGrid(std::string& text, const std::string& title, const Grid& grid) {
  text += title + "\r";
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int col = 0; col < grid.Cols(); ++col) text += grid.Text(row, col) + "\t";
    text.back() = '\r';
  }
}

}  // namespace

std::string IoMonitorAsText() {
  const IoPage& io = frmIOCheckFG.Io;
  std::string text;
  AddGrid(text, io.framInput.Caption, io.flgdInput);
  AddGrid(text, io.framOutput.Caption, io.flgdOutput);
  text += io.framPosition.Caption + "\r";
  for (const int axis : AxesInUse()) {
    text += io.lblAxis[axis].Caption + "\t" + io.lblCurrentPos[axis].Caption + "\r";
  }
  for (const WatchKind kind : kWatchKinds) {
    const WatchPane& pane = PaneOf(kind);
    AddGrid(text, pane.Pane.Caption, pane.List);
  }
  return text;
}

}  // namespace tr7
