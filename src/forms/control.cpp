#include "forms/control.h"

#include <algorithm>

namespace tr7 {
namespace {

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

}  // namespace

std::string KeyOfCaption(MsgId tag) {
  constexpr MsgId kRead = 5200, kWrite = 5201, kVerify = 5202;
  if (tag == kRead) return "Ctrl+R";
  if (tag == kWrite) return "Ctrl+Shift+W";
  return tag == kVerify ? "Ctrl+Shift+V" : std::string();
}

Control* View::Find(std::string_view name) const {
  for (Control* control : Controls) {
    if (name == control->Name) return control;
  }
  return nullptr;
}

void ControlSpan::SetVisible(bool on) {
  for (std::size_t i = first_; i < end_; ++i) owner_.Controls[i]->Visible = on;
}

void TextBox::Type(const std::string& typed) {
  if (!Enabled || !Visible) return;
  std::string taken;
  int length = 0;
  bool keep = false;
  for (char byte : typed) {
    if (StartsCharacter(byte)) {
      keep = (AllowedChars.empty() || AllowedChars.find(byte) != std::string::npos) &&
             (MaxLength == 0 || length < MaxLength);
      if (keep) ++length;
    }
    if (keep) taken += byte;
  }
  Text = taken;
  if (Change) Change();
}

void OptionButton::Choose() {
  for (Control* control : Owner->Controls) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option && option->Group == Group) option->Value = option == this;
  }
}

void ComboBox::Clear() {
  List.clear();
  ItemData.clear();
  ListIndex = -1;
  TypedText.clear();
}

void ComboBox::AddItem(const std::string& text, int data) {
  List.push_back(text);
  ItemData.push_back(data);
}

std::string ComboBox::Text() const {
  if (ListIndex < 0 || ListIndex >= static_cast<int>(List.size())) return TypedText;
  return List[ListIndex];
}

bool ComboBox::ShowText(const std::string& text) {
  const auto found = std::find(List.begin(), List.end(), text);
  if (found == List.end()) return false;
  ListIndex = static_cast<int>(found - List.begin());
  return true;
}

void ComboBox::Pick(int index) {
  if (!Enabled || !Visible || index < 0 || index >= static_cast<int>(List.size())) return;
  ListIndex = index;
  if (Click) Click();
}

void ComboBox::Type(const std::string& typed) {
  if (!Enabled || !Visible || !Editable) return;
  TypedText = typed;
  if (!ShowText(typed)) ListIndex = -1;
}

void Slider::Set(int value) {
  if (!Enabled || !Visible || value == Value || value < Min || value > Max) return;
  Value = value;
  if (Change) Change();
}

void UpDown::Set(int value) {
  if (!Enabled || !Visible || value == Value || value < Min || value > Max) return;
  Value = value;
  if (Change) Change();
}

void Toolbar::Press(const std::string& key) {
  for (const ToolButton& button : Buttons) {
    if (key == button.Key && button.Enabled && Enabled && Visible && ButtonClick) {
      ButtonClick(key);
      return;
    }
  }
}

}  // namespace tr7
