#include <array>

#include "prog/prog_listing.h"
#include "prog/prog_undo.h"
#include "tests/fleet/states.h"

namespace tr7 {
namespace {

constexpr int kMsgNotOpened = 367, kMsgNotRead = 425;
constexpr int kManyViews = 3;

using Steps = std::vector<ProgCells>;

ProgCells AnyStep(Random& random) {
  using Row = std::array<const char*, 6>;
  const Row row = random.OneOf<Row>({{"TIM", "1.5", "", "", "F1", "wait"},
                                     {"VEL", "100", "", "/I1", "", ""},
                                     {"MVP", "1", "R1", "", "O1", "a,\"b\""},
                                     {"LB", "1", "", "", "", ""},
                                     {"JUMP", "1", "", "f1", "", "位置"},
                                     {"NOP", "", "", "", "", ""},
                                     {"PTST", "3", "R2", "", "", ""}});
  ProgCells cells;
  std::copy(row.begin(), row.end(), cells.Texts.begin());
  const std::string junk = random.OneOf({"", "R", "1000", "-5", "F200", "PR1", "xyz"});
  if (random.Chance(10)) cells[random.Between(kProgCommand, kProgComment)] = junk;
  return cells;
}

void EditOnce(Random& random, Grid& listing) {
  const int row = random.Between(1, ListingSteps(listing));
  if (random.Chance(40)) {
    const ProgCells cells = AnyStep(random);
    for (int col = kProgCommand; col <= kProgComment; ++col) listing.TypeInto(row, col, cells[col]);
    if (random.Chance(50)) listing.MoveOn(false);  // from the last cell of all it adds a step
    return;
  }
  const int last_row = random.Between(1, ListingSteps(listing));
  listing.Select(row, kProgCommand, last_row, random.Chance(80) ? kProgComment : kProgResult);
  listing.SelChange();
  Menu* lines[] = {&frmMain.mnuEditCopy, &frmMain.mnuEditPaste, &frmMain.mnuEditInsert,
                   &frmMain.mnuEditLineDelete};
  random.Chance(10) ? listing.DeleteKey() : lines[random.Below(4)]->Press();
}

/// What is edited keeps to the limits, is noticed, and can be taken back and brought back again.
void Edit(Voyage& voyage) {
  ProgView* view = AnyProgram(voyage);
  for (int acts = view ? voyage.random.Between(1, 12) : 0; acts > 0; --acts) {
    Grid& listing = view->flgdProg;
    const Steps before = CellsOfListing(listing);
    const std::size_t depth = view->Store.Undo.size();
    EditOnce(voyage.random, listing);
    const Steps after = CellsOfListing(listing);
    const auto limit = static_cast<std::size_t>(ListingLimit(*view));
    voyage.Require(!after.empty() && after.size() <= std::max(before.size(), limit),
                   "a listing outgrows its limits");
    voyage.Require(after == before || view->Store.ProgChanged, "an edit goes unnoticed");
    const auto edits = view->Store.Undo.size() - std::min(depth, view->Store.Undo.size());
    for (auto left = edits; left > 0; --left) ProgUndo(*view);
    voyage.Require(edits == 0 || CellsOfListing(listing) == before, "an edit is not taken back");
    for (auto left = edits; left > 0; --left) ProgRedo(*view);
    voyage.Require(CellsOfListing(listing) == after, "an edit is not brought back");
  }
}

/// The view that the command has opened, where it was not told that nothing came; every other
/// listing is as it was.
ProgView* OpenedBy(Voyage& voyage, Menu& command, MsgId failure) {
  std::map<ProgView*, Steps> before;
  for (ProgView* view : ProgramViews()) before[view] = CellsOfListing(view->flgdProg);
  command.Press();
  voyage.virt.files.PowerOn();
  ProgView* opened = nullptr;
  for (ProgView* view : ProgramViews()) {
    if (!before.contains(view)) opened = view;
    voyage.Require(opened == view || before[view] == CellsOfListing(view->flgdProg),
                   "another listing has changed");
  }
  voyage.Require(!opened || !voyage.WasTold(failure), "what failed has opened a view");
  return opened;
}

/// What is opened and saved at once is the same file.
void Open(Voyage& voyage) {
  if (!frmMain.mnuContProg.Visible) return;
  if (voyage.random.Chance(20)) DamageFile(voyage, kProgPath);
  if (voyage.random.Chance(20)) SpoilFiles(voyage);
  ProgView* view = OpenedBy(voyage, frmMain.mnuFileOpenProg, kMsgNotOpened);
  const auto file = voyage.virt.files.Content(kProgPath);
  if (!view || voyage.damaged.contains(kProgPath)) return;
  view->cmdProgSaveAs.Press();
  voyage.Require(voyage.virt.files.Content(kProgPath) == file, "opened and saved is another file");
}

void Read(Voyage& voyage) {
  if (!frmMain.mnuContProg.Visible) return;
  PerhapsCancel(voyage);
  ProgView* view = OpenedBy(voyage, frmMain.mnuContProgRead, kMsgNotRead);
  if (!view || voyage.line_lies || voyage.power_fails) return;
  std::string digits;
  for (const ProgStep& step : view->Store.ProgCtDA) {
    constexpr int kWidths[] = {2, 6, 6, 3, 2};
    for (int i = 0; i < kProgFields; ++i) digits += HexPad(step.Fields.at(i), kWidths[i]);
  }
  const Cells held = voyage.virt.port.Ct().Cells("0WM", false);
  voyage.Require(digits == held.at(view->Store.ProgCopyNo - 1), "a program of nobody's was read");
}

constexpr Flow kFlows[] = {{"prog-edit", 6, Edit}, {"prog-open", 3, Open}, {"prog-read", 4, Read}};

}  // namespace

std::vector<ProgView*> ProgramViews() {
  std::vector<ProgView*> views;
  for (View* view : AllViews()) {
    auto* program = dynamic_cast<ProgView*>(view);
    if (program && program->Loaded) views.push_back(program);
  }
  return views;
}

ProgView* AnyProgram(Voyage& voyage) {
  if (!frmMain.mnuContProg.Visible) return nullptr;
  const auto count = static_cast<int>(ProgramViews().size());
  if (voyage.random.Below(kManyViews) >= count) frmMain.mnuFileNewProg.Press();
  voyage.sent_at_refusal.reset();  // a command of its own
  const auto views = ProgramViews();
  if (views.empty()) return nullptr;
  ProgView* view = views[voyage.random.Below(static_cast<int>(views.size()))];
  SetActiveView(view);
  return view;
}

std::span<const Flow> ProgramFlows() { return kFlows; }

}  // namespace tr7
