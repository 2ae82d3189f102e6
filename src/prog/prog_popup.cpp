#include "prog/prog_popup.h"

#include <algorithm>
#include <iterator>

#include "base/text_helpers.h"
#include "prog/command_list.h"
#include "prog/prog_lines.h"

namespace tr7 {
namespace {

bool BeginsWith(const std::string& name, const std::string& typed) {
  return typed.size() <= name.size() &&
         std::equal(typed.begin(), typed.end(), name.begin(),
                    [](char a, char b) { return ProgKey(kProgCommand, a) == b; });
}

bool AtCommandCell(const Grid& listing) {
  return listing.Row >= 1 && listing.Col == kProgCommand &&
         listing.MayEdit(listing.Row, listing.Col);
}

}  // namespace

bool ShowCommandList(ProgView& view) {
  if (!AtCommandCell(view.flgdProg) || ReadCommandLst() != 0) return false;
  FilterCommandList(view, {});
  const std::string held = Trim(view.flgdProg.Text(view.flgdProg.Row, kProgCommand));
  const auto& list = view.List1.List;
  const auto found = std::find(list.begin(), list.end(), held);
  view.List1.ListIndex = found == list.end() ? 0 : static_cast<int>(found - list.begin());
  view.List1.Visible = true;
  return true;
}

void FilterCommandList(ProgView& view, const std::string& typed) {
  ListBox& list = view.List1;
  list.List.clear();
  std::copy_if(
      CommandList.CmdList.begin(), CommandList.CmdList.end(), std::back_inserter(list.List),
      [&typed](const std::string& name) { return !name.empty() && BeginsWith(name, typed); });
  list.ListIndex = list.List.empty() ? -1 : 0;
}

void PickCommand(ProgView& view) {
  const ListBox& list = view.List1;
  const bool chosen = list.ListIndex >= 0 && list.ListIndex < static_cast<int>(list.List.size());
  if (list.Visible && chosen && AtCommandCell(view.flgdProg)) {
    const std::string name = list.List[static_cast<std::size_t>(list.ListIndex)];
    view.flgdProg.TypeInto(view.flgdProg.Row, kProgCommand, name);
  }
  HideCommandList(view);
}

void HideCommandList(ProgView& view) { view.List1.Visible = false; }

}  // namespace tr7
