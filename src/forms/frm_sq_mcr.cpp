#include "forms/frm_sq_mcr.h"

namespace tr7 {
namespace {

constexpr std::size_t kColumns = 2;  ///< the steps stand in two columns

FieldTable Column(FrmSqMcr& f, std::size_t column) {
  const std::size_t rows = f.Rows.size() / kColumns;
  FieldTable table{"areaTable" + std::to_string(column + 1), {}, {}, {480, 2100, 500}};
  for (std::size_t i = column * rows; i < (column + 1) * rows; ++i) {
    SmRow& row = f.Rows[i];
    table.Rows.push_back({&row.lblSmStep, {&row.comboMerei, &row.txtSmData}});
  }
  return table;
}

}  // namespace

FrmSqMcr::FrmSqMcr() : View("frmSqMcr", 6504) {
  HelpPage = "macros";
  MdiChild = true;
  Width = 15000;
  Height = 6600;
  lblSqMacroNo.Visible = false;  // the number is read where it is set
  for (std::size_t column = 0; column < kColumns; ++column) {
    Tables.push_back(Column(*this, column));
  }
}

}  // namespace tr7
