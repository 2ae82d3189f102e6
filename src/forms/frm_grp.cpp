#include "forms/frm_grp.h"

namespace tr7 {
namespace {

constexpr std::size_t kColumns = 3;  ///< the page stands in three columns

FieldTable Column(FrmGrp& f, std::size_t column) {
  constexpr std::size_t kRows = kGrpPageRows / kColumns;
  GrpHead& head = f.Heads[column];
  FieldTable table{"areaTable" + std::to_string(column + 1),
                   {&head.lblGrpStart, &head.lblGrpEnd},
                   {},
                   {420, 600, 600, 2400}};
  for (std::size_t i = column * kRows; i < (column + 1) * kRows; ++i) {
    GrpRow& row = f.Rows[i];
    table.Rows.push_back({&row.lblGrpNo, {&row.txtGrpStartNo, &row.txtGrpEndNo, &row.lblGrpCover}});
  }
  return table;
}

}  // namespace

FrmGrp::FrmGrp() : View("frmGrp", 6490) {
  HelpPage = "groups";
  MdiChild = true;
  Width = 15000;
  Height = 8400;
  for (std::size_t column = 0; column < kColumns; ++column) {
    Tables.push_back(Column(*this, column));
  }
}

}  // namespace tr7
