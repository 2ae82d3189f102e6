#include "data/grp_show.h"

#include <cstdint>

#include "base/text_helpers.h"
#include "forms/frm_grp.h"
#include "platform/doors.h"
#include "posi/posi_range.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgCovers = 6486;
constexpr int kMsgNotInTable = 6487;
constexpr int kMsgBackwards = 6488;

int GroupOfRow(std::size_t row) {
  return frmGrp.ShownPage * kGrpPageRows + static_cast<int>(row) + 1;
}

/// Which positions the group covers, in words.
std::string CoverText(int n) {
  const PosiRange group{GrpTable.GrpStart[n], GrpTable.GrpEnd[n]};
  if (group.first < 1 || group.IsEmpty()) return Text(kMsgBackwards);
  const PosiRange loaded = LoadedPosiRange();
  if (!loaded.Holds(group.first) || !loaded.Holds(group.last)) return Text(kMsgNotInTable);
  return Text(kMsgCovers, std::to_string(group.first), std::to_string(group.last),
              std::to_string(group.Count()));
}

std::int16_t NumberIn(const TextBox& box) { return static_cast<std::int16_t>(Val(box.Text)); }

}  // namespace

void GrpShow() {
  for (std::size_t row = 0; row < frmGrp.Rows.size(); ++row) {
    const int n = GroupOfRow(row);
    GrpRow& shown = frmGrp.Rows[row];
    shown.lblGrpNo.Caption = std::to_string(n) + ".";
    shown.txtGrpStartNo.Text = std::to_string(GrpTable.GrpStart[n]);
    shown.txtGrpEndNo.Text = std::to_string(GrpTable.GrpEnd[n]);
    shown.lblGrpCover.Caption = CoverText(n);
  }
}

void ShowFirstBadGroup() {
  int n = 1;
  while (n <= kGroups && GroupIsGood(n)) ++n;
  if (n > kGroups) return;
  frmGrp.ShownPage = (n - 1) / kGrpPageRows;
  frmGrp.optGrpNo[frmGrp.ShownPage].Choose();
  GrpShow();
  doors.forms->SetFocus(frmGrp.Rows[(n - 1) % kGrpPageRows].txtGrpStartNo);
}

GrpTableRecord GroupsOnScreen() {
  GrpTableRecord table = GrpTable;
  for (std::size_t row = 0; row < frmGrp.Rows.size(); ++row) {
    const GrpRow& shown = frmGrp.Rows[row];
    table.GrpStart[GroupOfRow(row)] = NumberIn(shown.txtGrpStartNo);
    table.GrpEnd[GroupOfRow(row)] = NumberIn(shown.txtGrpEndNo);
  }
  return table;
}

void StoreShownGroups() {
  if (!frmGrp.Loaded) return;
  GrpTable = GroupsOnScreen();
  for (std::size_t row = 0; row < frmGrp.Rows.size(); ++row) {
    frmGrp.Rows[row].lblGrpCover.Caption = CoverText(GroupOfRow(row));
  }
}

}  // namespace tr7
