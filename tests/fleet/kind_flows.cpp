#include <algorithm>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "data/grp_table.h"
#include "data/sm_table.h"
#include "forms/frm_grp.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_sq_mcr.h"
#include "forms/frm_system_para.h"
#include "para/para_blocks.h"
#include "para/param_set.h"
#include "para/sys_para.h"
#include "state/text.h"
#include "tests/fleet/states.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

using Ct = qvr7sim::Controller;
/// What a kind of data holds, as it lies on the line, cell by cell in rising order.
using Cells = std::vector<std::string>;

constexpr int kRead = 5200, kWrite = 5201, kVerify = 5202;
constexpr int kOpen = 5204, kSave = 5206, kVerifyFile = 5207;

/// A kind of data with a view of its own. What serves all kinds is found by its caption.
struct Kind {
  View& view;
  Menu& menu;
  const char* write;   ///< frame of a cell
  std::size_t digits;  ///< of its number
  int first;
  const char* commit;
  MsgId told_id;  ///< that all is written
  const char* file;
  Cells (*of_ct)(const Ct& ct, bool committed);
  Cells (*of_pc)(Cells of_ct);  ///< the table; what it does not cover is the controller's
};

template <typename Cell>
Cells All(int first, int last, Cell cell) {
  Cells cells;
  for (int n = first; n <= last; ++n) cells.push_back(cell(n));
  return cells;
}

std::string GroupCell(int start, int end) { return HexPad(start, 3) + HexPad(end, 3); }

std::string MacroCell(int number) {
  std::string cell;
  for (const SmStep& step : SmTable[number - 1]) {
    cell += HexPad(step.Command, 1) + HexPad(step.Value, 1);
  }
  return cell;
}

std::string TuningCell(int block) {
  constexpr int kFirst[] = {1, 9, 17, 33, 49, 57, 65, 73};
  std::string cell;
  for (int slot = kFirst[block]; slot < kFirst[block + 1]; ++slot) {
    const int width = 32 / (kFirst[block + 1] - kFirst[block]);
    cell += HexPad(static_cast<std::int64_t>(SysParaRead[slot]), width);
  }
  return cell;
}

Cells Parameters(Cells of_ct) {
  ParaBlocks blocks;
  std::copy(of_ct.begin(), of_ct.end(), blocks.begin());
  static_cast<void>(EncodePara(ParamSet, AxisList(LiveAxisMask()), blocks));
  return {blocks.begin(), blocks.end()};
}

const Kind kKinds[] = {
    {frmGrp, frmMain.mnuViewGrp, "0WG", 2, 1, "0WE3", 6507, kGrpPath,
     [](const Ct& ct, bool kept) {
       return All(1, kGroups, [&](int n) {
         const auto [start, end] = kept ? ct.CommittedGroup(n) : ct.WrittenGroup(n);
         return GroupCell(start, end);
       });
     },
     [](Cells) {
       return All(1, kGroups,
                  [](int n) { return GroupCell(GrpTable.GrpStart[n], GrpTable.GrpEnd[n]); });
     }},
    {frmSqMcr, frmMain.mnuViewSM, "0WS", 2, 1, "0WE1", 6507, kSmPath,
     [](const Ct& ct, bool kept) {
       return All(1, kMacros,
                  [&](int n) { return kept ? ct.CommittedMacro(n) : ct.WrittenMacro(n); });
     },
     [](Cells) { return All(1, kMacros, MacroCell); }},
    {frmParameta2, frmMain.mnuViewPara, "0WD", 1, 0, "0WE2", 1527, kParaPath,
     [](const Ct& ct, bool kept) {
       return All(0, kParaBlocks - 1,
                  [&](int n) { return kept ? ct.CommittedBlock(n) : ct.WrittenBlock(n); });
     },
     Parameters},
    {frmSystemPara, frmMain.mnuViewSysPara, "0WK", 1, 0, "0WF", 1527, "",
     [](const Ct& ct, bool kept) {
       return All(0, 6, [&](int n) {
         return kept ? ct.CommittedSystemBlock(n) : ct.WrittenSystemBlock(n);
       });
     },
     [](Cells) { return All(0, 6, TuningCell); }},
};

CommandButton* ButtonOf(const Kind& kind, int caption_id) {
  for (Control* control : kind.view.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->Tag.Number() == caption_id) return button;
  }
  return nullptr;
}

/// The table and all that its view shows.
Cells Held(const Kind& kind) {
  Cells held = kind.of_pc(Cells(kParaBlocks, std::string(32, '0')));
  for (const Control* control : kind.view.Controls) {
    if (const auto* box = dynamic_cast<const TextBox*>(control)) held.push_back(box->Text);
    if (const auto* combo = dynamic_cast<const ComboBox*>(control)) held.push_back(combo->Text());
  }
  return held;
}

/// The view of a kind in front, or nothing where its menu is off. What it shows has settled.
const Kind* AnyKind(Voyage& voyage) {
  const Kind& kind = kKinds[voyage.random.Below(static_cast<int>(std::size(kKinds)))];
  voyage.Note(kind.view.Name);
  if (kind.menu.Visible) kind.menu.Press();
  if (!kind.view.Visible) return nullptr;
  voyage.Require(ButtonOf(kind, kRead)->Enabled, "a view's commands are off");
  return &kind;
}

void Read(Voyage& voyage, const Kind& kind) {
  const Cells before = Held(kind);
  ButtonOf(kind, kRead)->Press();
  if (Held(kind) == before || voyage.line_lies) return;
  const Cells of_ct = kind.of_ct(voyage.virt.port.Ct(), false);
  voyage.Require(kind.of_pc(of_ct) == of_ct, "a read that failed, or half of one, is taken");
}

/// The data of the frames of this flow over what was there.
Cells Sent(const Voyage& voyage, const Kind& kind, Cells cells) {
  const std::string& sent = voyage.virt.port.sent;
  for (std::size_t at = voyage.sent_at_begin, end; at < sent.size(); at = end + 2) {
    end = std::min(sent.find("\r\n", at), sent.size());
    const std::string line = sent.substr(at, end - at);
    if (!line.starts_with(kind.write)) continue;
    const auto number = static_cast<int>(HexValue(line.substr(3, kind.digits)));
    cells[number - kind.first] = line.substr(3 + kind.digits);
  }
  return cells;
}

void CheckStored(Voyage& voyage, const Kind& kind, const Cells& before, bool told) {
  if (voyage.HasSent({"0WE\r\n"})) return;  // a connection on the way has changed the mode
  const Cells now = kind.of_ct(voyage.virt.port.Ct(), true), sent = Sent(voyage, kind, before);
  for (std::size_t i = 0; i < now.size(); ++i) {
    voyage.Require(now[i] == before[i] || now[i] == sent[i], "a cell is neither old nor new");
  }
  voyage.Require(now == before || voyage.HasSent({kind.commit}), "stored without being told to");
  if (voyage.power_fails) return;  // between two frames, and nothing on the line tells
  voyage.Require(now == sent || (now == before && !told), "half a write is stored");
}

void Write(Voyage& voyage, const Kind& kind) {
  const Cells before = kind.of_ct(voyage.virt.port.Ct(), true);
  // What is written anew leaves nothing behind of a write that was not stored.
  std::string& panel = frmMain.sbStatusBar.Panels[kPanelError];
  if (!AppState.AlarmOn) panel.clear();
  ButtonOf(kind, kWrite)->Press();
  const bool told = panel == Text(kind.told_id) || voyage.WasTold(kind.told_id);
  CheckStored(voyage, kind, before, told);
}

void Verify(Voyage& voyage, const Kind& kind) {
  CommandButton* button = ButtonOf(kind, voyage.random.Chance(50) ? kVerify : kVerifyFile);
  if (!button) return;
  const CtMemory before = MemoryOf(voyage.virt.port.Ct());
  const Cells held = Held(kind);
  button->Press();
  // A connection on the way may write what the user chooses.
  voyage.Require(
      voyage.power_fails || !voyage.choices.empty() || MemoryOf(voyage.virt.port.Ct()) == before,
      "a verification changed the controller");
  voyage.Require(Held(kind) == held, "a verification changed the table");
}

void Save(Voyage& voyage, const Kind& kind) {
  CommandButton* button = ButtonOf(kind, kSave);
  if (!button) return;
  if (voyage.random.Chance(30)) SpoilFiles(voyage);
  const auto before = voyage.virt.files.Content(kind.file);
  const Cells held = Held(kind);
  button->Press();
  voyage.virt.files.PowerOn();
  voyage.Require(Held(kind) == held, "a save changed the table");
  if (voyage.virt.files.Content(kind.file) != before) voyage.damaged.erase(kind.file);
}

/// What is opened and saved at once is the same file.
void Open(Voyage& voyage, const Kind& kind) {
  CommandButton* button = ButtonOf(kind, kOpen);
  if (!button) return;
  if (voyage.random.Chance(20)) DamageFile(voyage, kind.file);
  if (voyage.random.Chance(20)) SpoilFiles(voyage);
  const Cells held = Held(kind);
  button->Press();
  voyage.virt.files.PowerOn();
  if (Held(kind) == held) return;
  for (const MsgId failure : {MsgId(484), MsgId(931), MsgId(681)}) {
    voyage.Require(!voyage.WasTold(failure), "an open that failed changed the table");
  }
  const auto before = voyage.virt.files.Content(kind.file);
  if (voyage.damaged.contains(kind.file)) return;
  ButtonOf(kind, kSave)->Press();
  voyage.Require(voyage.virt.files.Content(kind.file) == before,
                 "opened and saved is another file");
}

void Edit(Voyage& voyage, const Kind& kind) {
  for (int edits = voyage.random.Between(1, 6); edits > 0; --edits) {
    Control& control =
        *kind.view.Controls[voyage.random.Below(static_cast<int>(kind.view.Controls.size()))];
    if (!control.Enabled || !control.Visible) continue;
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
      if (box->GotFocus) box->GotFocus();
      box->Type(voyage.random.OneOf({"1", "2", "3", "4", "5", "10", "100", "999", ""}));
      if (box->LostFocus) box->LostFocus();
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
      if (!combo->List.empty())
        combo->Pick(voyage.random.Below(static_cast<int>(combo->List.size())));
    }
  }
}

void Close(Voyage&, const Kind& kind) { CloseView(kind.view, CloseReason::ControlMenu); }

template <auto run>
void WithAnyKind(Voyage& voyage) {
  if (const Kind* kind = AnyKind(voyage)) run(voyage, *kind);
}

constexpr Flow kFlows[] = {
    {"kind-read", 8, WithAnyKind<Read>},   {"kind-edit", 5, WithAnyKind<Edit>},
    {"kind-write", 9, WithAnyKind<Write>}, {"kind-verify", 4, WithAnyKind<Verify>},
    {"kind-save", 3, WithAnyKind<Save>},   {"kind-open", 3, WithAnyKind<Open>},
    {"kind-close", 1, WithAnyKind<Close>},
};

}  // namespace

std::span<const Flow> KindFlows() { return kFlows; }

}  // namespace tr7
