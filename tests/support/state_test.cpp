#include "tests/support/state_test.h"

#include <algorithm>

#include "state/text_file.h"

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

StateTest::StateTest(const qvr7sim::Setup& setup) : virt(setup) {
  ResetState();
  AppState.LanguageNo = 2;
  AppState.LangOffset = 10000;
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

std::string StateTest::SentLines(std::size_t characters) const {
  std::string lines;
  for (std::size_t at = 0, end; (end = port.sent.find("\r\n", at)) != std::string::npos;) {
    lines += port.sent.substr(at, std::min(characters, end - at)) + " ";
    at = end + 2;
  }
  return lines;
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
