#include "tests/fleet/states.h"

namespace tr7 {
namespace {

constexpr int kMsgWritten = 376, kMsgWriteStopped = 6456;

void CheckReadData(Voyage& voyage) {
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
    qvr7sim::PositionRecord record;
    if (!qvr7sim::DecodePosition(voyage.virt.port.Ct().WrittenPosition(n), &record)) continue;
    for (int axis = 0; axis < kAxes; ++axis) {
      const auto slot = static_cast<std::size_t>(n);
      if (PosiTable.PosiPulse[axis][slot] == record.axis[axis].pulses) continue;
      return voyage.Fail("a position read is not the controller's");
    }
  }
}

void Read(Voyage& voyage) {
  const TableState before = TableNow(voyage);
  PerhapsCancel(voyage);
  frmPosi.ReadDone = False;
  frmPosi.cmdPosiRead.Press();
  if (!frmPosi.ReadDone) {
    voyage.Require(before.IsKeptIn(TableNow(voyage)), "a read that failed changed the table");
  } else {
    voyage.Require(!frmPosi.PosiChanged && PosiTable.Name == Text(374),
                   "read data bears another name");
    if (!voyage.line_lies) CheckReadData(voyage);
  }
}

void Write(Voyage& voyage) {
  const TableState table = TableNow(voyage);
  constexpr CellFrames kFrames{"0WP", 3, "0WA"};
  const CellWrite write(voyage, kFrames);
  PerhapsCancel(voyage);
  frmPosi.cmdPosiWrite.Press();
  write.Check(voyage.WasTold(kMsgWritten), voyage.WasTold(kMsgWriteStopped));
  voyage.Require(table.IsKeptIn(TableNow(voyage)), "a write changed the table");
}

void VerifyWithCt(Voyage& voyage) {
  voyage.took = false;
  const TableState table = TableNow(voyage);
  const Cells before = voyage.virt.port.Ct().Cells("0WP", true);
  PerhapsCancel(voyage);
  (voyage.random.Chance(50) ? frmPosi.cmdPosiCtVerify : frmPosi.cmdPosiCompare).Press();
  voyage.Require(voyage.took || table.IsKeptIn(TableNow(voyage)),
                 "a verification changed the table");
  voyage.Require(voyage.virt.port.Ct().Cells("0WP", true) == before,
                 "a verification changed the controller");
}

constexpr Flow kFlows[] = {{"read", 8, Read}, {"write", 12, Write}, {"verify-ct", 5, VerifyWithCt}};

}  // namespace

std::span<const Flow> TransferFlows() { return kFlows; }

}  // namespace tr7
