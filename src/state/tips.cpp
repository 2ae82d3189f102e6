#include "state/tips.h"

#include <string>
#include <string_view>

#include "forms/control.h"
#include "forms/hold_button.h"
#include "state/text.h"
#include "state/tip_table.h"

namespace tr7 {
namespace {

constexpr std::string_view kFieldOfTable = "areaTable";

const Tip* FindIn(std::string_view layout, std::string_view name) {
  for (const ViewTips& view : TipTable()) {
    if (layout != view.layout) continue;
    for (const Tip& tip : view.tips) {
      if (name == tip.name) return &tip;
    }
  }
  return nullptr;
}

/// By the name as it is, then without the number at its end; of the view, then of any view.
const Tip* FindTip(const View& view, std::string_view name) {
  const std::string_view base = name.substr(0, name.find_last_not_of("0123456789") + 1);
  for (const std::string_view layout : {std::string_view(view.Layout), std::string_view()}) {
    for (const std::string_view wanted : {name, base}) {
      if (const Tip* found = FindIn(layout, wanted)) return found;
    }
  }
  return nullptr;
}

std::string KeyOf(const Control& control) {
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) return button->Key;
  if (const auto* button = dynamic_cast<const HoldButton*>(&control)) return button->Key;
  return {};
}

void ApplyTableTips(const FieldTable& table, MsgId tip) {
  for (const FieldRow& row : table.Rows) {
    for (std::size_t i = 0; i < row.Fields.size(); ++i) {
      const bool headed = !row.InOnePlace && i < table.Heads.size();
      row.Fields[i]->Tip =
          Text(tip, row.Name->Caption, headed ? table.Heads[i]->Caption : std::string());
    }
  }
}

}  // namespace

void ApplyViewTips(View& view) {
  for (Control* control : view.Controls) {
    if (auto* lamp = dynamic_cast<Image*>(control)) {
      lamp->Tip = Text(lamp->Dark);
      lamp->LitTip = Text(lamp->Lit);
    }
    const Tip* tip = FindTip(view, control->Name);
    if (!tip) continue;
    control->Connects = tip->connects;
    const std::string key = KeyOf(*control);
    control->Tip = Text(tip->text) + (key.empty() ? std::string() : " (" + key + ")");
  }
  const Tip* of_fields = FindTip(view, kFieldOfTable);
  for (const FieldTable& table : view.Tables) {
    if (of_fields) ApplyTableTips(table, of_fields->text);
  }
}

}  // namespace tr7
