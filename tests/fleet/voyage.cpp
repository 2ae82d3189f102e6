#include "tests/fleet/voyage.h"

namespace tr7 {

namespace {

constexpr std::int64_t kLongestRunUs = std::int64_t{6} * 3600 * 1'000'000;

qvr7sim::Setup SetupOf(std::uint64_t seed) {
  Random random(seed ^ 0x5EED);
  return AnyController(random);
}

}  // namespace

Voyage::Voyage(std::uint64_t seed_of_run)
    : seed(seed_of_run), random(seed_of_run), virt(SetupOf(seed_of_run), seed_of_run) {
  ResetState();
  const auto set = [this](const char* key, bool on) {
    virt.settings.Set("Settings", key, on ? "1" : "0");
  };
  virt.settings.Set("Settings", "Language", random.Chance(50) ? "1" : "2");
  set("PortOccupy", random.Chance(50));
  set("DispMmUnit", random.Chance(50));
  set("MmRoundUp", random.Chance(50));
  virt.pump.SetLimit(virt.pump.NowUs() + kLongestRunUs);
}

void Voyage::Fail(const std::string& what) {
  failures.push_back("seed " + std::to_string(seed) + ": " + what + " [" + log + " ]");
}

void Voyage::BeginFlow(const std::string& name) {
  Note(name);
  flow = name;
  sent_at_begin = virt.port.sent.size();
  boxes_seen = virt.forms.boxes.size();
  choices.clear();
  sent_at_refusal.reset();
}

bool Voyage::HasSent(std::initializer_list<const char*> commands) const {
  return std::any_of(commands.begin(), commands.end(), [this](const char* command) {
    return virt.port.sent.find(command, sent_at_begin) != std::string::npos;
  });
}

std::optional<int> Voyage::Chosen(MsgId prompt_id) const {
  const auto found = choices.find(Text(prompt_id));
  return found == choices.end() ? std::nullopt : std::optional(found->second);
}

bool Voyage::WasTold(MsgId message_id) const {
  const std::string whole = Text(message_id);
  const std::string text = whole.substr(0, whole.find('%'));
  for (std::size_t i = boxes_seen; i < virt.forms.boxes.size(); ++i) {
    if (virt.forms.boxes[i].Text.find(text) != std::string::npos) return true;
  }
  return false;
}

}  // namespace tr7
