#include "core/window_state.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/seq_file.h"
#include "forms/frm_main.h"
#include "forms/grid.h"
#include "platform/doors.h"
#include "prog/command_list.h"
#include "prog/prog_view.h"
#include "state/app_state.h"
#include "state/for_mode.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {

WindowStateRecord WindowState;

namespace {

constexpr const char* kSection = "Windows";
constexpr const char* kOpen = "Open";    ///< what was open, as `WordOf` says; the one in front last
constexpr const char* kFilled = "Fill";  ///< a view inside the frame fills it
/// Twips; what is stored lies within, or it is damaged.
constexpr int kFarthest = 150000, kSmallest = 1500, kNarrowestColumn = 150;

using Numbers = std::vector<int>;

std::string Recall(const std::string& key) {
  const auto noted = WindowState.notes.find(key);
  return noted == WindowState.notes.end() ? doors.settings->Get(kSection, key, "") : noted->second;
}

void Note(const std::string& key, const std::string& value) {
  if (Recall(key) != value) WindowState.notes[key] = value;
}

/// There is one of it, inside the frame: its place is its own.
bool HasPlace(const View& view) { return view.MdiChild && view.Renew; }

/// Views of one layout share what is known of it.
std::string KeyOf(const View& view, const std::string& part) { return view.Layout + "." + part; }

template <typename Kind, typename Use>
void ForControls(View& view, Use use) {
  for (Control* control : view.Controls) {
    if (auto* one = dynamic_cast<Kind*>(control)) use(*one, KeyOf(view, control->Name));
  }
}

void RecallWidths(Grid& grid, const std::string& key) {
  const Numbers widths = RecallNumbers(key, 0, kFarthest);
  if (static_cast<int>(widths.size()) != grid.Cols()) return;
  for (int col = 0; col < grid.Cols(); ++col) {
    const int width = widths[static_cast<std::size_t>(col)];
    grid.SetUserWidth(col, width < kNarrowestColumn ? 0 : width);
  }
}

void NoteWidths(const Grid& grid, const std::string& key) {
  Numbers widths;
  for (int col = 0; col < grid.Cols(); ++col) widths.push_back(grid.UserWidth(col));
  const bool any = std::any_of(widths.begin(), widths.end(), [](int width) { return width != 0; });
  if (any || !Recall(key).empty()) NoteNumbers(key, widths);
}

void RecallPlace(View& view) {
  view.Maximised = Recall(kFilled) != "0";
  // The first view has no other to go by.
  view.Placed = view.StaysOpen && !view.Maximised;
  const Numbers place = RecallNumbers(KeyOf(view, "Place"), -kFarthest, kFarthest);
  if (place.size() != 4 || place[2] < kSmallest || place[3] < kSmallest) return;
  view.Left = place[0];
  view.Top = place[1];
  view.Width = place[2];
  view.Height = place[3];
  view.Placed = true;
}

void NotePlace(const View& view) {
  if (!view.Placed) return;
  Numbers place;
  for (const double side : {view.Left, view.Top, view.Width, view.Height}) {
    place.push_back(static_cast<int>(side));
  }
  NoteNumbers(KeyOf(view, "Place"), place);
}

void RecallPages(View& view) {
  constexpr int kMostPages = 99;
  SeqReader items(Recall(KeyOf(view, "Pages")));
  std::string name;
  for (int page = 0; !items.AtEnd();) {
    if (!items.ReadText(name) || !items.ReadInteger(0, kMostPages, page)) return;
    view.Pages[name] = page;
  }
}

void NotePages(const View& view) {
  if (view.Pages.empty()) return;
  SeqWriter items;
  for (const auto& [name, page] : view.Pages) {
    items.Text(name);
    items.Number(page);
  }
  Note(KeyOf(view, "Pages"), items.Result());
}

void RecallView(View& view) {
  if (HasPlace(view)) {
    RecallPlace(view);
    RecallPages(view);
  }
  ForControls<Grid>(view, RecallWidths);
}

void NoteView(View& view) {
  if (HasPlace(view)) {
    NotePlace(view);
    NotePages(view);
    ForControls<TabStrip>(view, [](const TabStrip& tabs, const std::string& key) {
      NoteNumbers(key, {tabs.Selected});
    });
  }
  ForControls<Grid>(view, NoteWidths);
}

/// A tab that is off now stays behind.
void RecallTab(TabStrip& tabs, const std::string& key) {
  const Numbers tab = RecallNumbers(key, 0, static_cast<int>(tabs.Tabs.size()) - 1);
  if (tab.size() != 1 || tab[0] == tabs.Selected) return;
  if (!tabs.Visible || !tabs.Tabs[static_cast<std::size_t>(tab[0])].Enabled) return;
  tabs.Selected = tab[0];
  if (tabs.Click) tabs.Click();
}

/// By what it opens again: a view by its name, a program by its file. Empty: it does not.
std::string WordOf(const View& view) {
  if (view.OpenedBy) return view.Name;
  const auto* program = dynamic_cast<const ProgView*>(&view);
  return program ? program->Store.FilePath : std::string();
}

bool IsPath(std::string_view word) { return word.find_first_of("/\\") != word.npos; }

/// Its command opens the view, where it is on.
void ReopenView(const std::string& name) {
  for (View* view : AllViews()) {
    if (view->Name != name || !view->OpenedBy) continue;
    if (!view->Visible) view->OpenedBy->Press();
    if (!view->Visible) return;
    ForControls<TabStrip>(*view, RecallTab);
    doors.forms->BringToFront(*view);
    return;
  }
}

}  // namespace

std::vector<int> RecallNumbers(const std::string& key, int low, int high) {
  SeqReader items(Recall(key));
  Numbers numbers;
  for (int number = 0; !items.AtEnd();) {
    if (!items.ReadInteger(low, high, number)) return {};
    numbers.push_back(number);
  }
  return numbers;
}

void NoteNumbers(const std::string& key, const std::vector<int>& numbers) {
  SeqWriter items;
  for (const int number : numbers) items.Number(number);
  Note(key, items.Result());
}

void RestoreWindows() {
  constexpr int kMsgNotAgain = 7171;
  bool programs = FitsMode(ForMode::Program);
  SeqReader words(Recall(kOpen));
  std::string word, left_out;
  while (!AppState.Closing && !words.AtEnd() && words.ReadText(word)) {
    if (!IsPath(word)) {
      ReopenView(word);
    } else if (programs && !(doors.files->Exists(word) && ShowProgFile(word))) {
      left_out = FileTitle(word);
      // Without its list of commands none can be shown, and that is told once.
      programs = CommandList.CmdCount > 0 || !doors.files->Exists(word);
    }
  }
  if (!left_out.empty()) TellInStatusPanel(Text(kMsgNotAgain, left_out));
}

void RememberWindows() {
  SeqWriter open;
  const auto note = [&open](const View& view) {
    const std::string word = WordOf(view);
    if (!word.empty()) open.Text(word);
  };
  const View* front = ActiveView();
  for (View* view : OpenViews()) {
    NoteView(*view);
    if (view != front) note(*view);
  }
  if (front) note(*front);
  if (WindowState.NotePart) WindowState.NotePart();
  Note(kOpen, open.Result());
  if (front) Note(kFilled, front->Maximised ? "1" : "0");
  for (const auto& [key, value] : WindowState.notes) doors.settings->Set(kSection, key, value);
}

void InstallWindowState() {
  ViewComes = RecallView;
  ViewGoes = NoteView;
}

}  // namespace tr7
