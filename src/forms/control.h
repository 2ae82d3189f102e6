#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "base/msg_id.h"
#include "forms/view.h"

namespace tr7 {

/// What every control has. `Tag` is the message of its caption; none leaves the caption alone.
struct Control {
  Control(View& owner, const char* type_name, std::string name, MsgId tag = {})
      : Owner(&owner), TypeName(type_name), Name(std::move(name)), Tag(tag) {
    owner.Controls.push_back(this);
  }
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  View* Owner;
  const char* TypeName;
  std::string Name;
  MsgId Tag;
  std::string Caption;
  std::string Tip;      ///< what the control is for; it stands for good
  std::string ToolTip;  ///< said in place of it while there is something to say
  /// What a screen reader says in front of the caption, or in place of one that there is not.
  std::vector<const Control*> NamedBy;
  /// What the other side holds in place of this value, in words: the control is marked, and its
  /// tool tip says them. Empty: nothing differs, or nothing is known.
  std::string Difference;
  bool Enabled = true;
  bool Visible = true;
  bool Connects = false;  ///< a command that goes online by itself where the session is offline
};

/// The controls that a part of a view has built: those from the making of this to `Close`.
class ControlSpan {
 public:
  explicit ControlSpan(View& owner) : owner_(owner), first_(owner.Controls.size()) {}
  void Close() { end_ = owner_.Controls.size(); }
  void SetVisible(bool on);

 private:
  View& owner_;
  std::size_t first_;
  std::size_t end_ = 0;
};

struct Label : Control {
  Label(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "Label", name, tag) {}
  double Width = 0;  ///< twips; 0: as wide as the layout makes it
  Handler<void()> DblClick;
};

/// A picture lamp: lit or dark by `Visible`. Its tip says which, and what that means.
struct Image : Control {
  Image(View& owner, const std::string& name, MsgId lit, MsgId dark)
      : Control(owner, "Image", name), Lit(lit), Dark(dark) {}
  MsgId Lit, Dark;     ///< messages of the tip
  std::string LitTip;  ///< in place of `Tip` while it is lit
};

struct Frame : Control {
  Frame(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "Frame", name, tag) {}
};

/// What means one thing in every view has one key in all of them; empty: none.
std::string KeyOfCaption(MsgId tag);

struct CommandButton : Control {
  CommandButton(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "CommandButton", name, tag), Key(KeyOfCaption(tag)) {}
  bool Default = false;  ///< Enter presses it
  bool Cancel = false;   ///< Escape presses it
  bool Urgent = false;   ///< acts when it goes down, whatever edit is open: a stop
  std::string Key;       ///< presses it wherever the focus is in its window, "Ctrl+Up"; empty: none
  Handler<void()> Click;
  /// Presses the button as a user does: nothing when it is off or hidden.
  void Press() {
    if (Enabled && Visible && Click) Click();
  }
};

struct TextBox : Control {
  TextBox(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "TextBox", name, tag) {}
  std::string Text;
  std::string Prompt;          ///< what the field asks for, shown faint while it is empty
  int MaxLength = 0;           ///< characters; 0: no limit
  std::string AllowedChars;    ///< keys that are taken beside Backspace and Tab; empty: all
  bool InputMethodOff = true;  ///< number fields switch the input method off
  Handler<void()> Change;
  Handler<void()> GotFocus;
  Handler<void()> LostFocus;
  Handler<void()> Enter;  ///< the Enter key
  /// The Undo key. False: there is nothing to bring back, and the field's own undo serves.
  Handler<bool()> Undo;
  /// Types a text as a user does: replaces the content by what the field takes of it.
  void Type(const std::string& typed);
};

struct CheckBox : Control {
  CheckBox(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "CheckBox", name, tag) {}
  bool Value = false;
  Handler<void()> Click;
  /// Sets the value as a user's click does, when it differs.
  void Set(bool on) {
    if (!Enabled || !Visible || Value == on) return;
    Value = on;
    if (Click) Click();
  }
};

/// One of a group; the group is all option buttons of the view with the same `Group`.
struct OptionButton : Control {
  OptionButton(View& owner, const std::string& name, int group, MsgId tag = {})
      : Control(owner, "OptionButton", name, tag), Group(group) {}
  int Group;
  bool Value = false;
  Handler<void()> Click;
  /// Chooses this option and clears the others of its group.
  void Choose();
  /// Chooses as a user's click does.
  void Press() {
    if (!Enabled || !Visible) return;
    Choose();
    if (Click) Click();
  }
};

struct ComboBox : Control {
  ComboBox(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "ComboBox", name, tag) {}
  std::vector<std::string> List;
  std::vector<int> ItemData;  ///< parallel to List
  int ListIndex = -1;         ///< -1: nothing chosen
  bool Editable = false;      ///< a text that the list lacks may be typed
  std::string TypedText;      ///< stands while nothing is chosen
  Handler<void()> Click;
  Handler<void()> LostFocus;
  Handler<void()> Enter;  ///< the Enter key
  void Clear();
  void AddItem(const std::string& text, int data);
  /// The chosen text, else the typed one, or empty.
  std::string Text() const;
  /// Shows the entry of that text; false (and no change) when the list lacks it.
  bool ShowText(const std::string& text);
  /// Chooses as a user does.
  void Pick(int index);
  /// Types as a user does; the text of an entry chooses that.
  void Type(const std::string& typed);
};

struct ListBox : Control {
  ListBox(View& owner, const std::string& name, MsgId tag = {})
      : Control(owner, "ListBox", name, tag) {}
  std::vector<std::string> List;
  int ListIndex = -1;
  Handler<void()> Click;
};

/// A number that steps up and down, or is typed.
struct UpDown : Control {
  UpDown(View& owner, const std::string& name, int min, int max)
      : Control(owner, "UpDown", name), Min(min), Max(max), Value(min) {}
  int Min, Max;
  int Value;  ///< `Min` to `Max`
  Handler<void()> Change;
  /// Sets the value as a user does, where it is allowed and another.
  void Set(int value);
};

/// A number on a scale.
struct Slider : Control {
  Slider(View& owner, const std::string& name, int min, int max, int step = 1)
      : Control(owner, "Slider", name), Min(min), Max(max), Step(step), Value(min) {}
  int Min, Max;
  int Step;   ///< of a key and of the wheel
  int Value;  ///< `Min` to `Max`
  Handler<void()> Change;
  /// Sets the value as a user does, where it is allowed and another.
  void Set(int value);
};

struct ProgressBar : Control {
  ProgressBar(View& owner, const std::string& name) : Control(owner, "ProgressBar", name) {}
  int Max = 100;
  int Value = 0;  ///< 0 to Max
};

/// A menu or a menu command; "-" in the layout makes separators, which have no record.
struct Menu : Control {
  Menu(View& owner, const std::string& name, MsgId tag = {}) : Control(owner, "Menu", name, tag) {}
  Menu* In = nullptr;  ///< the menu that it stands in
  std::string Key;     ///< shown behind the caption; what takes it is not the menu
  /// The button that does the same in its view: while that is in front, its key is shown.
  const CommandButton* Button = nullptr;
  Handler<void()> Click;
  /// In reach of the user: neither it nor a menu on the way to it is off or hidden.
  bool IsOn() const { return Enabled && Visible && (!In || In->IsOn()); }
  /// By its own state: logic gives commands too, and needs no way through the menus.
  void Press() {
    if (Enabled && Visible && Click) Click();
  }
};

/// A menu whose entries are asked for whenever it opens.
struct MenuList : Menu {
  using Menu::Menu;
  Handler<std::vector<std::string>()> Entries;
  MsgId EmptyId = {};             ///< what stands there while it has no entry
  Handler<void(int index)> Pick;  ///< index from 0
};

struct Tab {
  MsgId Tag = {};
  std::string Caption = {};
  bool Enabled = true;
};

struct TabStrip : Control {
  TabStrip(View& owner, const std::string& name, std::vector<Tab> tabs)
      : Control(owner, "TabStrip", name), Tabs(std::move(tabs)) {}
  std::vector<Tab> Tabs;
  int Selected = 0;
  Handler<void()> Click;
};

struct ToolButton {
  const char* Key;  ///< empty: a separator
  MsgId Tag = {};   ///< message id of the tool tip
  std::string ToolTipText = {};
  bool Enabled = true;
};

/// Buttons are addressed by index from 1, separators count.
struct Toolbar : Control {
  Toolbar(View& owner, const std::string& name, std::vector<ToolButton> buttons)
      : Control(owner, "Toolbar", name), Buttons(std::move(buttons)) {}
  std::vector<ToolButton> Buttons;
  Handler<void(const std::string& key)> ButtonClick;
  ToolButton& At(int index_from_1) {
    return Buttons.at(static_cast<std::size_t>(index_from_1) - 1);
  }
  void Press(const std::string& key);
};

struct StatusBar : Control {
  StatusBar(View& owner, const std::string& name, int panels)
      : Control(owner, "StatusBar", name), Panels(static_cast<std::size_t>(panels)) {}
  std::vector<std::string> Panels;  ///< index 0 is the first panel
};

/// Four controls of one kind, one an axis: index 0 to 3, names "base1" to "base4".
template <typename Kind>
struct PerAxis {
  PerAxis(View& owner, const std::string& base, MsgId tag = {})
      : items{Kind(owner, base + "1", tag), Kind(owner, base + "2", tag),
              Kind(owner, base + "3", tag), Kind(owner, base + "4", tag)} {}
  Kind& operator[](int axis) { return items.at(axis); }
  const Kind& operator[](int axis) const { return items.at(axis); }
  auto begin() { return items.begin(); }
  auto end() { return items.end(); }
  std::array<Kind, 4> items;
};

}  // namespace tr7
