#include "sim/controller.h"

#include <algorithm>
#include <functional>
#include <tuple>

#include "sim/fault_plan.h"
#include "sim/io_points.h"
#include "sim/line.h"
#include "sim/machine.h"
#include "sim/text.h"

namespace qvr7sim {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

const Fault* Find(const std::vector<Fault>& struck, FaultKind kind) {
  for (const Fault& fault : struck) {
    if (fault.kind == kind) return &fault;
  }
  return nullptr;
}

std::pair<int, int> GroupOf(const std::string& cell) {
  return {HexValue(std::string_view(cell).substr(0, 3)),
          HexValue(std::string_view(cell).substr(3, 3))};
}

}  // namespace

struct Controller::Impl {
  Impl(const Setup& setup, std::uint64_t seed)
      : machine(setup), line(setup.baud, setup.paced), plan(seed) {}

  /// Everything due by `now_us`, in the order of time.
  void Advance(std::int64_t now_us);
  void Serve(const std::string& line_text, std::int64_t now_us);
  std::string Answer(const std::string& line_text, const std::vector<Fault>& struck,
                     std::int64_t now_us);
  void Reply(const std::string& request, const std::string& reply, const std::vector<Fault>& struck,
             std::int64_t now_us);
  void StrikeMachine(const std::vector<Fault>& struck, std::int64_t now_us);
  void PowerCycle(std::int64_t now_us);
  /// Has `run` happen at a time; what was planned before for the same time comes first.
  void Plan(std::int64_t at_us, std::function<void(std::int64_t at_us)> run);
  void SendAlarm(const Alarm& alarm, std::int64_t now_us);
  std::optional<std::int64_t> NextInsideUs() const;

  Machine machine;
  Line line;
  FaultPlan plan;
  struct Due {
    std::int64_t at_us;
    std::function<void(std::int64_t at_us)> run;
  };
  std::vector<Due> planned;  // by time
  bool silent = false;
  std::int64_t dark_until_us = 0;  // without power
  std::vector<std::string> requests;
};

void Controller::Impl::Advance(std::int64_t now_us) {
  for (;;) {
    const auto next = NextInsideUs();
    if (!next || *next > now_us) break;
    if (!planned.empty() && planned.front().at_us <= *next) {
      const Due due = planned.front();
      planned.erase(planned.begin());
      machine.Settle(due.at_us);
      due.run(due.at_us);
    } else if (const auto request = line.TakeRequest(*next)) {
      Serve(*request, *next);
    }
  }
  machine.Settle(now_us);
}

std::optional<std::int64_t> Controller::Impl::NextInsideUs() const {
  auto next = line.NextRequestUs();
  if (!planned.empty() && (!next || planned.front().at_us < *next)) next = planned.front().at_us;
  return next;
}

void Controller::Impl::Plan(std::int64_t at_us, std::function<void(std::int64_t at_us)> run) {
  const auto later = [](std::int64_t at, const Due& due) { return at < due.at_us; };
  planned.insert(std::upper_bound(planned.begin(), planned.end(), at_us, later),
                 {at_us, std::move(run)});
}

void Controller::Impl::SendAlarm(const Alarm& alarm, std::int64_t now_us) {
  if (!silent) line.ToPc(ErrorText(alarm) + std::string(kLineEnd), now_us);
}

void Controller::Impl::Serve(const std::string& line_text, std::int64_t now_us) {
  const std::size_t end = line_text.find_last_not_of(kLineEnd);
  const std::string request =
      end == std::string::npos ? std::string() : line_text.substr(0, end + 1);
  requests.push_back(request);
  if (silent || now_us < dark_until_us) return;
  const std::vector<Fault> struck = plan.Strike(request);
  if (const Fault* off = Find(struck, FaultKind::kPowerCycle)) {
    dark_until_us = now_us + off->time_us;
    return PowerCycle(now_us);
  }
  if (Find(struck, FaultKind::kDeaf) != nullptr) return;
  StrikeMachine(struck, now_us);
  Reply(request, Answer(line_text, struck, now_us), struck, now_us);
}

void Controller::Impl::StrikeMachine(const std::vector<Fault>& struck, std::int64_t now_us) {
  machine.Settle(now_us);
  if (const Fault* alarm = Find(struck, FaultKind::kAlarm)) machine.Raise(alarm->error, now_us);
  const Fault* start = Find(struck, FaultKind::kMoving);
  if (start != nullptr && !machine.alarm) machine.MoveByInputs(start->time_us, now_us);
}

void Controller::Impl::PowerCycle(std::int64_t now_us) {
  line.Drop();
  machine.Settle(now_us);
  machine.PowerCycle(now_us);
}

std::string Controller::Impl::Answer(const std::string& line_text, const std::vector<Fault>& struck,
                                     std::int64_t now_us) {
  if (const Fault* refused = Find(struck, FaultKind::kErrorReply)) return ErrorText(refused->error);
  if (!line_text.ends_with(kLineEnd)) return ErrorText('0', error_code::kBadFrame);
  return machine.Answer(line_text.substr(0, line_text.size() - kLineEnd.size()), now_us);
}

void Controller::Impl::Reply(const std::string& request, const std::string& reply,
                             const std::vector<Fault>& struck, std::int64_t now_us) {
  const Command* command = FindCommand(request);
  const bool commits = command != nullptr && command->commits && !reply.starts_with("0%%");
  std::int64_t start_us =
      now_us + (commits ? machine.setup.commit_us : machine.setup.processing_us);
  for (const Piece& piece : plan.Bend(reply + std::string(kLineEnd), struck)) {
    start_us += piece.pause_us;
    line.ToPc(piece.bytes, start_us);
    start_us += line.Span(piece.bytes.size());
  }
}

Controller::Controller(const Setup& setup, std::uint64_t seed)
    : impl_(std::make_unique<Impl>(setup, seed)) {}
Controller::~Controller() = default;
Controller::Controller(Controller&&) noexcept = default;
Controller& Controller::operator=(Controller&&) noexcept = default;

void Controller::Receive(std::string_view bytes, std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->line.FromPc(bytes, now_us);
  impl_->Advance(now_us);
}

std::optional<std::int64_t> Controller::NextEventUs() const {
  const auto inside = impl_->NextInsideUs();
  const auto byte = impl_->line.NextByteUs();
  if (!inside || !byte) return inside ? inside : byte;
  return std::min(*inside, *byte);
}

std::optional<std::int64_t> Controller::NextLineUs() const {
  const auto inside = impl_->NextInsideUs();
  const auto line = impl_->line.NextLineUs();
  if (!inside || !line) return inside ? inside : line;
  return std::min(*inside, *line);
}

std::string Controller::Take(std::int64_t now_us) {
  impl_->Advance(now_us);
  return impl_->line.Take(now_us);
}

void Controller::DropLine() { impl_->line.Drop(); }

void Controller::PowerCycle(std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->PowerCycle(now_us);
}

void Controller::SetFaults(const Faults& faults) {
  ClearFaults();
  for (const Fault& fault : faults.on_requests) AddFault(fault);
  for (const TimedAlarm& alarm : faults.alarms) AddAlarm(alarm);
  for (const TimedPush& push : faults.pushes) AddPush(push);
}

void Controller::AddFault(const Fault& fault) { impl_->plan.Add(fault); }

void Controller::AddAlarm(const TimedAlarm& alarm) {
  impl_->Plan(alarm.at_us, [impl = impl_.get(), alarm](std::int64_t at_us) {
    impl->machine.Raise(alarm.alarm, at_us);
    if (alarm.send_line) impl->SendAlarm(alarm.alarm, at_us);
  });
}

void Controller::AddPush(const TimedPush& push) {
  impl_->Plan(push.at_us, [impl = impl_.get(), push](std::int64_t) {
    impl->machine.Push(push.axis - 1, push.pulses);
  });
}

void Controller::ClearFaults() {
  impl_->plan.Clear();
  impl_->planned.clear();
}

void Controller::SetSilent(bool silent) { impl_->silent = silent; }
bool Controller::silent() const { return impl_->silent; }

void Controller::RaiseAlarm(const Alarm& alarm, std::int64_t now_us, bool send_line) {
  impl_->Advance(now_us);
  impl_->machine.Raise(alarm, now_us);
  if (send_line) impl_->SendAlarm(alarm, now_us);
}

void Controller::FailNextHoming(int axis) { impl_->machine.axes.FailNextHoming(axis - 1); }

bool Controller::PushAxis(int axis, int pulses, std::int64_t now_us) {
  impl_->Advance(now_us);
  return impl_->machine.Push(axis - 1, pulses);
}

void Controller::LoseServo(int axis, std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->machine.LoseServo(axis - 1, now_us);
}

void Controller::PlaceAxis(int axis, int pulses, std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->machine.axes.Place(axis - 1, pulses);
}

const std::vector<std::string>& Controller::Requests() const { return impl_->requests; }
void Controller::ClearRequests() { impl_->requests.clear(); }

const std::deque<MotionStart>& Controller::MotionStarts() const { return impl_->machine.starts; }
std::optional<std::int64_t> Controller::NextRestUs() const { return impl_->machine.NextRestUs(); }

std::optional<std::int64_t> Controller::NextInsideUs() const {
  return impl_->machine.NextInsideUs();
}

void Controller::SetInput(int number, bool on, std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->machine.SetInput(number, on, now_us);
}

void Controller::Set(const Signal& signal, std::int32_t value, std::int64_t now_us) {
  impl_->Advance(now_us);
  impl_->machine.Set(signal, value, now_us);
}

unsigned Controller::Inputs(std::int64_t now_us) const {
  impl_->Advance(now_us);
  return InputWord(impl_->machine, now_us);
}
unsigned Controller::Outputs(std::int64_t now_us) const {
  impl_->Advance(now_us);
  return OutputWord(impl_->machine, now_us);
}

const ProgramValues& Controller::Values(std::int64_t now_us) const {
  impl_->Advance(now_us);
  return impl_->machine.values;
}

std::array<std::pair<int, int>, kTasks> Controller::RunningSteps(std::int64_t now_us) const {
  impl_->Advance(now_us);
  std::array<std::pair<int, int>, kTasks> steps{};
  for (int slot = 0; slot < kTasks; ++slot) {
    const Task* task = impl_->machine.tasks.Slot(slot);
    if (task != nullptr) steps[slot] = {task->program, task->at + 1};
  }
  return steps;
}

std::int64_t Controller::StepsDone() const { return impl_->machine.tasks.StepsDone(); }
std::pair<int, int> Controller::FailedStep() const { return impl_->machine.failed_step; }

const std::string& Controller::WrittenPosition(int number) const {
  return impl_->machine.memory.positions.Written(number);
}
const std::string& Controller::CommittedPosition(int number) const {
  return impl_->machine.memory.positions.Committed(number);
}
const std::string& Controller::WrittenBlock(int block) const {
  return impl_->machine.memory.blocks.Written(block);
}
const std::string& Controller::CommittedBlock(int block) const {
  return impl_->machine.memory.blocks.Committed(block);
}
std::pair<int, int> Controller::WrittenGroup(int number) const {
  return GroupOf(impl_->machine.memory.groups.Written(number));
}
std::pair<int, int> Controller::CommittedGroup(int number) const {
  return GroupOf(impl_->machine.memory.groups.Committed(number));
}
const std::string& Controller::WrittenMacro(int number) const {
  return impl_->machine.memory.macros.Written(number);
}
const std::string& Controller::CommittedMacro(int number) const {
  return impl_->machine.memory.macros.Committed(number);
}
const std::string& Controller::WrittenSystemBlock(int block) const {
  return impl_->machine.memory.system.Written(block);
}
const std::string& Controller::CommittedSystemBlock(int block) const {
  return impl_->machine.memory.system.Committed(block);
}

const std::string& Controller::WrittenProgram(int number) const {
  return impl_->machine.memory.programs.Written(number);
}
const std::string& Controller::CommittedProgram(int number) const {
  return impl_->machine.memory.programs.Committed(number);
}

std::vector<std::string> Controller::Cells(std::string_view write_frame, bool committed) const {
  const Memory& memory = impl_->machine.memory;
  const std::tuple<std::string_view, const Bank&, int> families[] = {
      {"0WP", memory.positions, 1}, {"0WD", memory.blocks, 0}, {"0WG", memory.groups, 1},
      {"0WS", memory.macros, 1},    {"0WK", memory.system, 0}, {"0WM", memory.programs, 1}};
  std::vector<std::string> cells;
  for (const auto& [name, bank, first] : families) {
    for (int cell = first; name == write_frame && cell < bank.size(); ++cell) {
      cells.push_back(committed ? bank.Committed(cell) : bank.Written(cell));
    }
  }
  return cells;
}

std::optional<Alarm> Controller::StandingAlarm() const { return impl_->machine.alarm; }

AxisState Controller::Axis(int axis, std::int64_t now_us) const {
  impl_->Advance(now_us);
  const Machine& machine = impl_->machine;
  const int index = axis - 1;
  return {machine.InUse(index),
          machine.axes.Moving(index),
          machine.axes.Homed(index),
          machine.axes.Pulses(index, now_us),
          machine.memory.MaxPulses(index),
          machine.ServoOn(index),
          machine.axes.Travelled(index, now_us) - machine.travelled_at_stop[index],
          machine.PulseSpeed(index, 1)};
}

bool Controller::AnyMoving(std::int64_t now_us) const {
  impl_->Advance(now_us);
  return impl_->machine.AnyMoving();
}

Mode Controller::RunningMode() const { return impl_->machine.mode; }
unsigned Controller::RunningMask() const { return impl_->machine.mask; }
bool Controller::UnderPcCommand() const { return impl_->machine.pc_command; }
const std::string& Controller::ControlDigits() const { return impl_->machine.control_digits; }

}  // namespace qvr7sim
