#include "wire/wire_export.h"

#include <algorithm>
#include <array>

#include "forms/frm_main.h"
#include "forms/frm_wire.h"
#include "link/port.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "steps/file_steps.h"
#include "wire/wire_rows.h"

namespace tr7 {
namespace {

constexpr DataFile kFile{FileKind::Unknown, 7731, "txt", 7732};
constexpr int kSave = 7730, kSaved = 6508, kNotSaved = 422, kPort = 7733, kController = 7747,
              kNothing = 7746;
constexpr const char* kLineEnd = "\r\n";

std::string ControllerText() {
  if (AppState.CtVersionText.empty()) return "-";
  return AppState.CtVersionText + " " + AppState.CtModelMarker;
}

/// The tool, when, on which line, to which controller, and how much of the record this is.
std::string Head() {
  const std::string when = doors.pump->Date() + " " + doors.pump->TimeOfDay();
  const std::string port = Text(kPort, PortDevice(AppState.PortNo), LineSettings());
  std::string head;
  for (const std::string& line : {frmMain.Caption, when, port, Text(kController, ControllerText()),
                                  frmWire.lblCount.Caption, std::string()}) {
    head += line + kLineEnd;
  }
  return head;
}

}  // namespace

std::string WireRowsAsText(std::size_t from, std::size_t to) {
  std::string text;
  for (int col = 0; col < frmWire.flgdWire.Cols(); ++col) {
    text += (col == 0 ? "" : "\t") + frmWire.flgdWire.Text(0, col);
  }
  text += kLineEnd;
  to = std::min(to, WireRows.Shown.size());
  for (std::size_t row = from; row < to; ++row) {
    text += RowText(WireRows.Source(), WireRows.Shown[row]) + kLineEnd;
  }
  return text;
}

void SaveWireRows() {
  if (WireRows.Shown.empty()) return Tell(kNothing);
  // What is shown now is saved, whatever comes in while the user chooses a name.
  const std::string text = Head() + WireRowsAsText(0, WireRows.Shown.size());
  const auto path = AskSavePath(kFile, kSave);
  if (!path) return;
  const TextFileResult saved = SaveTextFile(*path, text);
  if (!saved.ok) {
    MsgBox(WithReason(Text(kNotSaved), saved.words));
    return;
  }
  MsgBox(Text(kSaved, FileTitle(*path)), MsgButtons::Ok, MsgIcon::Information);
}

}  // namespace tr7
