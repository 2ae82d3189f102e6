#include <algorithm>
#include <string>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_table.h"
#include "posi/posi_wire.h"
#include "state/text.h"
#include "tests/fleet/states.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

constexpr int kMsgWritten = 376, kMsgWriteStopped = 6456;

/// Presses the cancel button some time later, in a flow of four.
void PerhapsCancel(Voyage& voyage) {
  if (!voyage.random.Chance(25)) return;
  voyage.virt.pump.After(voyage.random.Below(2'500'000), [] { frmMain.cmdComCancel.Press(); });
}

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

/// The range of the last commit frame that this flow sent; false when there is none.
bool SentCommit(const Voyage& voyage, int& first, int& last) {
  if (!voyage.HasSent({"0WA"})) return false;
  const std::string& sent = voyage.virt.port.sent;
  const std::size_t at = sent.rfind("0WA");
  first = static_cast<int>(HexValue(std::string_view(sent).substr(at + 3, 3)));
  last = static_cast<int>(HexValue(std::string_view(sent).substr(at + 6, 3)));
  return true;
}

/// `memory` with its written positions of a range stored.
std::vector<std::string> Stored(const CtMemory& before, const CtMemory& after, int first,
                                int last) {
  std::vector<std::string> positions = before.committed;
  std::copy(after.written.begin() + first - 1, after.written.begin() + last,
            positions.begin() + first - 1);
  return positions;
}

void CheckWritten(Voyage& voyage, const CtMemory& after, int first, int last) {
  for (int n = first; n <= last; ++n) {
    const auto slot = static_cast<std::size_t>(n);
    if (PosiTable.PosiLineBad[slot]) continue;
    if (after.committed[slot - 1] == EncodePosiRecord(n).substr(6)) continue;
    return voyage.Fail("a line that was told as written is not stored");
  }
}

void CheckMemory(Voyage& voyage, const CtMemory& before) {
  const CtMemory after = MemoryOf(voyage.virt.port.Ct());
  int first = 0, last = 0;
  const bool commit_sent = SentCommit(voyage, first, last);
  const bool done = voyage.WasTold(kMsgWritten);
  const bool stopped = voyage.WasTold(kMsgWriteStopped);
  const bool as_before = after.committed == before.committed;
  voyage.Require(after.committed_blocks == before.committed_blocks,
                 "a write of positions changed parameters");
  if (!commit_sent) {
    voyage.Require(as_before, "stored without being told to");
    voyage.Require(!done && !stopped, "a write that was told ended without its commit");
    return;
  }
  const bool wholly_new = after.committed == Stored(before, after, first, last);
  voyage.Require(wholly_new || (as_before && !done && !stopped), "half a write is stored");
  if (done) CheckWritten(voyage, after, first, last);
}

void Write(Voyage& voyage) {
  const TableState table = TableNow(voyage);
  const CtMemory before = MemoryOf(voyage.virt.port.Ct());
  PerhapsCancel(voyage);
  frmPosi.cmdPosiWrite.Press();
  CheckMemory(voyage, before);
  voyage.Require(table.IsKeptIn(TableNow(voyage)), "a write changed the table");
}

void VerifyWithCt(Voyage& voyage) {
  const TableState table = TableNow(voyage);
  const CtMemory before = MemoryOf(voyage.virt.port.Ct());
  PerhapsCancel(voyage);
  frmPosi.cmdPosiCtVerify.Press();
  voyage.Require(table.IsKeptIn(TableNow(voyage)), "a verification changed the table");
  const CtMemory after = MemoryOf(voyage.virt.port.Ct());
  voyage.Require(after.committed == before.committed && after.written == before.written,
                 "a verification changed the controller");
}

constexpr Flow kFlows[] = {{"read", 8, Read}, {"write", 12, Write}, {"verify-ct", 3, VerifyWithCt}};

}  // namespace

std::span<const Flow> TransferFlows() { return kFlows; }

}  // namespace tr7
