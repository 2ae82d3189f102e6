#include "tests/fleet/states.h"

namespace tr7 {
namespace {

int Field(const std::string& block, std::size_t at, std::size_t width) {
  return static_cast<int>(HexValue(std::string_view(block).substr(at, width)));
}

std::string Device(const std::string& size, const std::string& speed, bool with_pg,
                   std::initializer_list<int> numbers) {
  std::string device = size + speed + (with_pg ? "E" : "_");
  for (const int number : numbers) device += " " + std::to_string(number);
  return device;
}

}  // namespace

MachineState MachineOfPc() {
  MachineState machine;
  machine.program_mode = AppState.CtMode;
  for (int axis = 0; axis < kAxes; ++axis) {
    const DevSettingRecord& device = DevSetting[axis];
    machine.in_use[axis] = !AppState.AxisMuko[axis];
    if (!machine.in_use[axis]) continue;
    const int pulses = static_cast<int>(AppState.StrokePulse[axis]);
    machine.devices[axis] = Device(device.Size, device.Speed, device.WithPG,
                                   {device.Lead, device.Ppr, device.Stroke, pulses});
  }
  return machine;
}

MachineState MachineOfCt(const qvr7sim::Controller& controller) {
  MachineState machine;
  const std::string& common = controller.WrittenBlock(0);
  machine.program_mode = Field(common, 18, 2) == 1;
  for (int axis = 0; axis < kAxes; ++axis) {
    const auto index = axis;
    machine.in_use[index] = (Field(common, 2, 2) & (1 << axis)) != 0;
    if (!machine.in_use[index]) continue;
    const std::string& device = controller.WrittenBlock(4 + 3 * axis);
    const bool marked = device[18] == 'E';
    const int pg = Field(controller.WrittenBlock(3 + 3 * axis), 16, 2);
    const int stroke = Field(device, 22, 2) * 256 + Field(device, 20, 2);
    machine.devices[index] =
        Device(marked ? "E35" : " " + device.substr(16, 2), marked ? "L" : device.substr(18, 1),
               pg == 1 || pg == 2,
               {Field(device, 2, 2), Field(device, 4, 4), stroke, Field(device, 8, 6)});
  }
  return machine;
}

bool TableState::IsKeptIn(const TableState& later) const {
  if (first != later.first || last != later.last) return false;
  const bool same_mode = machine.program_mode == later.machine.program_mode;
  if (same_mode && file_calls == later.file_calls && name != later.name) return false;
  if (machine == later.machine && in_mm == later.in_mm) {
    const bool same_state = file_calls != later.file_calls || changed == later.changed;
    return same_state && texts == later.texts && (changed || pulses == later.pulses);
  }
  if (texts.size() != later.texts.size()) return false;
  for (std::size_t i = kComment; i < texts.size(); i += kPosiColumns) {
    if (texts[i] != later.texts[i]) return false;
  }
  return true;
}

TableState TableNow(const Voyage& voyage) {
  TableState table;
  table.first = AppState.PosiFirstNo;
  table.last = AppState.PosiLastNo;
  table.name = PosiTable.Name;
  table.changed = frmPosi.PosiChanged;
  table.machine = MachineOfPc();
  table.in_mm = AppState.DispMmUnit;
  table.file_calls = voyage.virt.files.Calls();
  const Grid& grid = frmPosi.flgdData;
  for (int row = kPosiHeaderRows; row < grid.Rows(); ++row) {
    for (int col = 0; col < kPosiColumns; ++col) {
      // A check fills hidden cells in the record; their texts follow when the table is shown anew.
      table.texts.push_back(grid.ColWidth(col) > 0 ? grid.Text(row, col) : std::string());
    }
  }
  for (int n = table.first; n <= table.last && n > 0; ++n) {
    for (int axis = 0; axis < kAxes; ++axis) {
      if (AppState.AxisMuko[axis]) continue;
      const auto slot = static_cast<std::size_t>(n);
      // In program mode a line that does not move an axis shows no position, and keeps none.
      const std::size_t way = AxisBase(axis) + kWay;
      const bool moves = !AppState.CtMode || ValueOf(PosiTable.PosiRec[way][slot]) != 0;
      table.pulses.push_back(moves ? PosiTable.PosiPulse[axis][slot] : 0);
    }
  }
  return table;
}

CellWrite::CellWrite(Voyage& voyage, const CellFrames& frames)
    : voyage_(voyage), frames_(frames), committed_(Now(true)), written_(Now(false)) {}

Cells CellWrite::Now(bool committed) const {
  return voyage_.virt.port.Ct().Cells(frames_.write, committed);
}

/// What was sent, over what an earlier write has left unstored: positions are stored in the range
/// that their frame names, a program alone, the others all at once.
Cells CellWrite::New() const {
  const std::string& sent = voyage_.virt.port.sent;
  Cells cells = committed_, written = written_;
  const std::size_t first = frames_.digits > 1 ? 1 : 0;
  for (std::size_t at = voyage_.sent_at_begin, end; at < sent.size(); at = end + 2) {
    end = std::min(sent.find("\r\n", at), sent.size());
    const std::string_view line = std::string_view(sent).substr(at, end - at);
    const auto number = [&](std::size_t from) {
      return static_cast<std::size_t>(HexValue(line.substr(from, frames_.digits))) - first;
    };
    if (line.starts_with(frames_.write)) {
      written[number(3)] = CellOf(line.substr(3 + frames_.digits));
    } else if (line.starts_with(frames_.commit)) {
      const bool all = line == frames_.commit;
      const std::size_t low = all ? 0 : number(3);
      const std::size_t high = all ? cells.size() - 1 : number(line.size() - frames_.digits);
      for (std::size_t i = low; i <= high; ++i) cells[i] = written[i];
    }
  }
  return cells;
}

std::string CellWrite::CellOf(std::string_view digits) const {
  std::size_t at = 0;
  const std::string end(frames_.unit, '0');
  while (frames_.unit > 0 && at < digits.size() && digits.substr(at, frames_.unit) != end) {
    at += frames_.unit;
  }
  return std::string(frames_.unit > 0 ? digits.substr(0, at) : digits);
}

bool CellWrite::IsWhole() const {
  const Cells stored = Now(true), now = Now(false);
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (now[i] != stored[i] && now[i] != written_[i]) return false;
  }
  return true;
}

void CellWrite::Check(bool told, bool stopped) const {
  if (voyage_.HasSent({"0WE\r\n"})) return;  // a connection on the way has changed the mode
  const Cells now = Now(true), made = New();
  for (std::size_t i = 0; i < now.size(); ++i) {
    voyage_.Require(now[i] == committed_[i] || now[i] == made[i], "a cell is neither old nor new");
  }
  // The power fails between two frames, and nothing on the line tells.
  if (stopped || voyage_.power_fails) return;
  voyage_.Require(now == made || (now == committed_ && !told), "half a write is stored");
}

}  // namespace tr7
