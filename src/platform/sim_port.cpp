#include "platform/sim_port.h"

#include <utility>

#include "platform/doors.h"

namespace tr7 {

SimPort::SimPort(const qvr7sim::Setup& setup, std::uint64_t seed) : controller_(setup, seed) {}

PortFault SimPort::Open(const std::string&) {
  if (open_fault != PortFault::None) {
    fault_text_ = "simulated fault";
    return open_fault;
  }
  open_ = true;
  ++opened;
  return PortFault::None;
}

bool SimPort::Configure(const std::string& new_settings, int) {
  if (!open_) return false;
  settings = new_settings;
  return true;
}

void SimPort::Vanish() {
  Close();
  fault_text_ = "simulated fault";
}

void SimPort::Close() {
  if (!open_) return;
  open_ = false;
  in_buffer_.clear();
  controller_.DropLine();
}

bool SimPort::Write(std::string_view bytes) {
  if (!open_) return false;
  if (writes_until_dead > 0) --writes_until_dead;
  if (writes_until_dead == 0) {
    Vanish();
    return false;
  }
  sent += bytes;
  controller_.Receive(bytes, doors.pump->NowUs());
  return true;
}

AxisArray<SimAxis> SimPort::Axes() {
  AxisArray<SimAxis> axes;
  for (int i = 0; i < kAxes; ++i) {
    const qvr7sim::AxisState now = controller_.Axis(i + 1, doors.pump->NowUs());
    axes[i] = {now.in_use, now.moving,     now.homed,        now.servo_on,
               now.pulses, now.max_pulses, now.pulses_per_mm};
  }
  return axes;
}

void SimPort::Push(int axis, int pulses) {
  controller_.PushAxis(axis + 1, pulses, doors.pump->NowUs());
}

SimPoints SimPort::Points() {
  const qvr7sim::ProgramValues& values = controller_.Values(doors.pump->NowUs());
  SimPoints points;
  for (int n = 1; n <= kSimInputs; ++n) {
    points.inputs.at(n - 1) = values.IsOn({qvr7sim::RefKind::kInput, n}, 0);
  }
  for (int n = 1; n <= kSimOutputs; ++n) {
    points.outputs.at(n - 1) = values.IsOn({qvr7sim::RefKind::kOutput, n}, 0);
  }
  return points;
}

void SimPort::SetInput(int number, bool on) {
  controller_.SetInput(number, on, doors.pump->NowUs());
}

void SimPort::PowerCycle() { controller_.PowerCycle(doors.pump->NowUs()); }

void SimPort::Collect() {
  if (open_) in_buffer_ += controller_.Take(doors.pump->NowUs());
}

std::size_t SimPort::InBufferCount() {
  Collect();
  return in_buffer_.size();
}

std::string SimPort::ReadAll() {
  Collect();
  return std::exchange(in_buffer_, {});
}

std::optional<std::int64_t> SimPort::NextEventUs() {
  if (!open_) return std::nullopt;
  Collect();  // what is there is no event any more, whether anybody takes it or not
  return controller_.NextLineUs();
}

}  // namespace tr7
