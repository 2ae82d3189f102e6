#include "prog/prog_undo.h"

#include <algorithm>
#include <utility>

#include "prog/prog_listing.h"

namespace tr7 {
namespace {

constexpr std::size_t kMostEdits = 200;

ListingShot ShotOf(const ProgView& view) {
  const Grid& listing = view.flgdProg;
  return {CellsOfListing(listing), listing.Row, listing.Col,
          static_cast<bool>(view.Store.ProgChanged)};
}

void Show(Grid& listing, const ListingShot& shot) {
  PutListing(listing, shot.steps);
  listing.SelectCell(std::min(shot.row, ListingSteps(listing)), shot.column);
}

void MarkShotsUnsaved(ProgStore& store) {
  for (auto* shots : {&store.Undo, &store.Redo}) {
    for (ListingShot& shot : *shots) shot.changed = true;
  }
}

/// What stands at the end of `from` comes back, and what it replaces can be brought back from `to`.
bool BringBack(ProgView& view, std::vector<ListingShot>& from, std::vector<ListingShot>& to) {
  if (from.empty()) return false;
  const ListingShot shot = std::move(from.back());
  from.pop_back();
  to.push_back(ShotOf(view));
  Show(view.flgdProg, shot);
  view.Store.ProgChanged = shot.changed;
  return true;
}

}  // namespace

void RememberForUndo(ProgView& view) {
  auto& done = view.Store.Undo;
  done.push_back(ShotOf(view));
  if (done.size() > kMostEdits) done.erase(done.begin());
  view.Store.Redo.clear();
}

void ProgIsSaved(ProgView& view) {
  view.Store.ProgChanged = False;
  MarkShotsUnsaved(view.Store);
}

void ProgLosesItsFile(ProgView& view) {
  view.Store.FilePath.clear();
  view.Store.ProgChanged = True;
  MarkShotsUnsaved(view.Store);
}

bool ProgUndo(ProgView& view) { return BringBack(view, view.Store.Undo, view.Store.Redo); }

bool ProgRedo(ProgView& view) { return BringBack(view, view.Store.Redo, view.Store.Undo); }

}  // namespace tr7
