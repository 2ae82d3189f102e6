#include "posi/posi_log.h"

#include <string>

#include "posi/posi_table.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

std::string LineOf(int number) {
  std::string line;
  for (int axis = 0; axis < kAxes; ++axis) {
    if (axis > 0) line += ",";
    if (!AppState.AxisMuko[axis]) line += TextOf(PosiTable.PosiRec[AxisBase(axis) + kVel][number]);
  }
  return line + "\r\n";
}

}  // namespace

int WriteLogToFile() {
  std::string log = "QV-TR7 Log File\r\n";
  log += AppState.CtMode ? "PRG MODE\r\n" : "POS MODE\r\n";
  for (int n = 0; n <= AppState.PosiLastNo; ++n) log += LineOf(n);
  return SaveTextFile(ProgramFile("TR7V162Log.txt"), log).ok ? 0 : 1;
}

}  // namespace tr7
