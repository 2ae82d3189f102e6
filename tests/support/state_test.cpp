#include "tests/support/state_test.h"

namespace tr7 {
void SetDevice(DevSettingRecord& device, const char* size, const char* speed, int stroke) {
  device.Size = size;
  device.Speed = speed;
  device.Stroke = static_cast<std::int16_t>(stroke);
  device.NewType = True;
  device.NotChosen = False;
}

void Pick(ComboBox& list, const std::string& text) {
  const auto found = std::find(list.List.begin(), list.List.end(), text);
  if (found == list.List.end()) {
    ADD_FAILURE() << list.Name << " does not offer " << text;
  } else {
    list.Pick(static_cast<int>(found - list.List.begin()));
  }
}

void PickDevice(DeviceView& view, int axis, const char* size, const char* speed,
                const char* stroke) {
  Pick(view.comboDeviceSize[axis], size);
  if (speed) Pick(view.comboDeviceSpeed[axis], speed);
  if (stroke) Pick(view.comboDeviceStroke[axis], stroke);
}

std::string With(std::string text, const std::string& part, const std::string& other) {
  return text.replace(text.find(part), part.size(), other);
}

StateTest::StateTest(const qvr7sim::Setup& setup) : virt(setup) { StartAnew(); }

void StateTest::StartAnew() {
  ResetState();
  AppState.LanguageNo = 2;
  AppState.LangOffset = 10000;
}

void StateTest::InDialog(const std::string& view, std::vector<std::function<void()>> visits) {
  forms.on_modal[view] = [visits = std::move(visits), next = std::size_t{0}](View&) mutable {
    if (next < visits.size()) visits[next++]();
  };
}

void StateTest::TearDown() {
  if (allow_unanswered) return;
  for (const std::string& name : forms.unanswered) ADD_FAILURE() << "unanswered: " << name;
}

Texts StateTest::Boxes() {
  Texts texts;
  for (const MessageBoxCall& box : forms.boxes) texts.push_back(box.Text);
  forms.boxes.clear();
  return texts;
}

Texts StateTest::Lines() const {
  Texts lines;
  for (std::size_t at = 0, end; (end = port.sent.find("\r\n", at)) != std::string::npos;) {
    lines.push_back(port.sent.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

std::string StateTest::SentLines(std::size_t characters) const {
  std::string text;
  for (const std::string& line : Lines()) text += line.substr(0, characters) + " ";
  return text;
}

void StateTest::Spoil(qvr7sim::FaultKind kind, const std::string& prefix, int at_request,
                      int at_byte) {
  port.Ct().AddFault({kind, at_request == 0 ? 1.0 : 0.0, at_request, prefix, 200'000, at_byte});
}

void StateTest::PutList(const char* name, const std::string& content) {
  virt.files.Put(ProgramFile(name), content);
}

bool StateTest::BoxShown(const std::string& part) const {
  for (const MessageBoxCall& box : forms.boxes) {
    if (box.Text.find(part) != std::string::npos) return true;
  }
  return false;
}

}  // namespace tr7
