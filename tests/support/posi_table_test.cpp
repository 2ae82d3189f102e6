#include "tests/support/posi_table_test.h"

#include "posi/posi_rebuild.h"

namespace tr7 {

PosiTableTest::PosiTableTest() {
  for (DevSettingRecord& device : DevSetting) {
    device.Size = " 28";
    device.Speed = "L";
    device.Stroke = 100;
    device.Lead = 6;
    device.Ppr = 800;
    device.NotChosen = False;
  }
}

void PosiTableTest::ShowTable(int first, int last, bool program_mode, bool mm) {
  AppState.CtMode = program_mode;
  AppState.DispMmUnit = mm;
  AppState.PosiFirstNo = AppState.PosiFromNo = static_cast<std::int16_t>(first);
  AppState.PosiLastNo = AppState.PosiToNo = static_cast<std::int16_t>(last);
  AppState.PosiCount = static_cast<std::int16_t>(last - first + 1);
  RecalcLimits();
  PosiTableInit();
  RebuildPosiView();
  frmPosi.PosiChanged = False;
}

int PosiTableTest::Type(int number, int col, const std::string& text) {
  return frmPosi.flgdData.TypeInto(RowOfPosition(number), col, text);
}

const std::string& PosiTableTest::Cell(int number, int col) const {
  return frmPosi.flgdData.Text(RowOfPosition(number), col);
}

void PosiTableTest::Put(int number, int col, const std::string& text) {
  frmPosi.flgdData.SetText(RowOfPosition(number), col, text);
}

void PosiTableTest::Select(int number, int col, int number_end, int col_end) {
  frmPosi.flgdData.Select(RowOfPosition(number), col, RowOfPosition(number_end), col_end);
}

double PosiTableTest::Stored(int col, int number) const {
  return ValueOf(
      PosiTable.PosiRec[static_cast<std::size_t>(col)][static_cast<std::size_t>(number)]);
}

}  // namespace tr7
