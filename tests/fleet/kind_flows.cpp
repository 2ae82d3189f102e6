#include "data/grp_table.h"
#include "data/sm_table.h"
#include "forms/frm_grp.h"
#include "forms/frm_sq_mcr.h"
#include "forms/frm_system_para.h"
#include "prog/prog_listing.h"
#include "tests/fleet/states.h"

namespace tr7 {
namespace {

constexpr int kRead = 5200, kWrite = 5201, kVerify = 5202;
constexpr int kOpen = 5204, kSave = 5206, kVerifyFile = 5207, kCompare = 5320;

constexpr int kMsgHalfWritten = 7058;

/// A kind of data with a view of its own. What serves all kinds is found by its caption.
struct Kind {
  View& view;
  Menu& menu;
  CellFrames frames;
  MsgId told_id;  ///< that all is written
  const char* file;
};

const Kind kKinds[] = {{frmGrp, frmMain.mnuViewGrp, {"0WG", 2, "0WE3"}, 6507, "/work/p.grp"},
                       {frmSqMcr, frmMain.mnuViewSM, {"0WS", 2, "0WE1"}, 6507, "/work/p.smd"},
                       {frmParameta2, frmMain.mnuViewPara, {"0WD", 1, "0WE2"}, 1527, kParaPath},
                       {frmSystemPara, frmMain.mnuViewSysPara, {"0WK", 1, "0WF"}, 1527, ""}};

CommandButton* ButtonOf(const Kind& kind, int caption_id) {
  for (Control* control : kind.view.Controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && button->Tag.Number() == caption_id) return button;
  }
  return nullptr;
}

/// What the view shows. Of the groups it shows a page, and another one where one of them is
/// refused: their table counts, which takes in what is typed.
struct Held {
  explicit Held(const Kind& kind) {
    if (&kind.view == &frmGrp) return;
    for (const Control* control : kind.view.Controls) {
      if (const auto* box = dynamic_cast<const TextBox*>(control)) shown.push_back(box->Text);
      const auto* combo = dynamic_cast<const ComboBox*>(control);
      if (combo) shown.push_back(combo->Text());
    }
    const auto* program = dynamic_cast<const ProgView*>(&kind.view);
    if (!program) return;
    // Blank steps go whenever a program is checked.
    for (const ProgCells& cells : CellsOfListing(program->flgdProg)) {
      if (cells != ProgCells()) shown.insert(shown.end(), cells.Texts.begin(), cells.Texts.end());
    }
  }
  bool operator==(const Held&) const = default;
  Cells shown;
  GrpTableRecord groups = GrpTable;
  SmTableRecord macros = SmTable;
};

/// The view of a kind in front, or nothing where its menu is off. What it shows has settled.
std::optional<Kind> AnyKind(Voyage& voyage) {
  if (voyage.random.Chance(40)) {
    if (ProgView* view = AnyProgram(voyage)) {
      return Kind{*view, frmMain.mnuFileNewProg, {"0WM", 2, "0MW", 19}, 376, kProgPath};
    }
  }
  const Kind& kind = kKinds[voyage.random.Below(static_cast<int>(std::size(kKinds)))];
  voyage.Note(kind.view.Name);
  if (kind.menu.Visible) kind.menu.Press();
  if (!kind.view.Visible) return std::nullopt;
  voyage.Require(ButtonOf(kind, kRead)->Enabled, "a view's commands are off");
  return kind;
}

void Read(Voyage& voyage, const Kind& kind) {
  if (!ButtonOf(kind, kRead)) return;
  const Held before(kind);
  ButtonOf(kind, kRead)->Press();
  bool failed = false;
  for (const MsgId failure : {MsgId(100), MsgId(104), MsgId(105), MsgId(109), MsgId(384)}) {
    failed = failed || voyage.WasTold(failure);
  }
  // A connection on the way takes the axes that the user chooses.
  voyage.Require(!failed || !voyage.choices.empty() || Held(kind) == before,
                 "a read that failed changed the table");
}

void Write(Voyage& voyage, const Kind& kind) {
  const CellWrite write(voyage, kind.frames);
  std::string& panel = frmMain.sbStatusBar.Panels[kPanelError];
  if (!AppState.AlarmOn) panel.clear();
  if (kind.frames.unit > 0) PerhapsCancel(voyage);
  ButtonOf(kind, kWrite)->Press();
  write.Check(panel == Text(kind.told_id) || voyage.WasTold(kind.told_id));
  const bool half = kind.frames.unit > 0 && !voyage.power_fails && !write.IsWhole();
  voyage.Require(!half || voyage.WasTold(kMsgHalfWritten), "half a program, and nobody was told");
}

bool HasClosed(const Kind& kind) {
  const auto programs = ProgramViews();
  return kind.frames.unit > 0 &&
         std::find(programs.begin(), programs.end(), &kind.view) == programs.end();
}

/// Or compares, where only what the user takes over changes anything.
void Verify(Voyage& voyage, const Kind& kind) {
  CommandButton* button = ButtonOf(kind, voyage.random.OneOf({kVerify, kVerifyFile, kCompare}));
  if (!button) return;
  voyage.took = false;
  const auto memory = [&] { return voyage.virt.port.Ct().Cells(kind.frames.write, true); };
  const Cells before = memory();
  const Held held(kind);
  button->Press();
  if (HasClosed(kind)) return;  // a program that could not be read
  // A connection on the way may write, or take, what the user chooses.
  const bool chosen = !voyage.choices.empty();
  voyage.Require(chosen || memory() == before, "a verification changed the controller");
  voyage.Require(chosen || voyage.took || Held(kind) == held, "a verification changed the table");
}

void Save(Voyage& voyage, const Kind& kind) {
  CommandButton* button = ButtonOf(kind, kSave);
  if (!button) return;
  if (voyage.random.Chance(30)) SpoilFiles(voyage);
  const auto before = voyage.virt.files.Content(kind.file);
  const Held held(kind);
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
  const Held held(kind);
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
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (combo && !combo->List.empty()) {
      combo->Pick(voyage.random.Below(2));
      if (combo->LostFocus) combo->LostFocus();
    }
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
      if (box->GotFocus) box->GotFocus();
      box->Type(voyage.random.OneOf({"1", "2", "3", "4", "5", "10", "100", "999", ""}));
      if (box->LostFocus) box->LostFocus();
    }
  }
}

void Close(Voyage&, const Kind& kind) { CloseView(kind.view, CloseReason::ControlMenu); }

template <auto run>
void WithAnyKind(Voyage& voyage) {
  if (const auto kind = AnyKind(voyage)) run(voyage, *kind);
}

constexpr Flow kFlows[] = {
    {"kind-read", 8, WithAnyKind<Read>},   {"kind-edit", 5, WithAnyKind<Edit>},
    {"kind-write", 9, WithAnyKind<Write>}, {"kind-verify", 6, WithAnyKind<Verify>},
    {"kind-save", 3, WithAnyKind<Save>},   {"kind-open", 3, WithAnyKind<Open>},
    {"kind-close", 1, WithAnyKind<Close>},
};

}  // namespace

std::span<const Flow> KindFlows() { return kFlows; }

}  // namespace tr7
