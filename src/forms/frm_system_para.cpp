#include "forms/frm_system_para.h"

namespace tr7 {
namespace {

constexpr std::size_t kFieldsInRow = 8;
constexpr double kNumberWidth = 540, kValueWidth = 800;

/// Each row begins with the number of its first field.
FieldTable Group(FrmSystemPara& f, const std::string& place, std::size_t first, std::size_t count) {
  FieldTable table{place, {}, {}, {kNumberWidth, kValueWidth}, true};
  for (std::size_t i = 1; i < kFieldsInRow; ++i) {
    table.Widths.insert(table.Widths.end(), {kNumberWidth, kValueWidth});
  }
  for (std::size_t i = first; i < first + count; i += kFieldsInRow) {
    FieldRow row{&f.Fields[i].lblSystemPara, {&f.Fields[i].txtSystemPara}};
    for (std::size_t k = i + 1; k < i + kFieldsInRow; ++k) {
      row.Fields.insert(row.Fields.end(), {&f.Fields[k].lblSystemPara, &f.Fields[k].txtSystemPara});
    }
    table.Rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace

FrmSystemPara::FrmSystemPara() : View("frmSystemPara", 6530) {
  HelpPage = "system";
  MdiChild = true;
  Width = 14400;
  Height = 8400;
  Tables = {Group(*this, "areaTable1", 0, 16), Group(*this, "areaTable2", 16, 32),
            Group(*this, "areaTable3", 48, 16), Group(*this, "areaTable4", 64, 8)};
}

}  // namespace tr7
