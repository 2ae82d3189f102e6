#include "ui/spoken_names.h"

#include <QRegularExpression>
#include <algorithm>
#include <set>
#include <string_view>

#include "forms/control.h"
#include "ui/binding.h"

namespace tr7 {
namespace {

using Labels = std::vector<const Control*>;

bool Is(const Control& control, const std::set<std::string_view>& types) {
  return types.contains(control.TypeName);
}

/// The labels of the control's row and column in a table of the view.
Labels OfTable(const View& view, const Control& control) {
  for (const FieldTable& table : view.Tables) {
    for (const FieldRow& row : table.Rows) {
      const auto at = std::find(row.Fields.begin(), row.Fields.end(), &control);
      if (at == row.Fields.end()) continue;
      const auto column = static_cast<std::size_t>(at - row.Fields.begin());
      if (row.InOnePlace || column >= table.Heads.size()) return {row.Name};
      return {row.Name, table.Heads[column]};
    }
  }
  return {};
}

/// The caption that stands in front of a field, in the record's order.
Labels InFront(const View& view, const Control& control) {
  const Control* before = nullptr;
  for (const Control* other : view.Controls) {
    if (other == &control) break;
    if (other->Tag && Is(*other, {"Label", "CheckBox", "OptionButton"})) before = other;
  }
  return before ? Labels{before} : Labels{};
}

Labels LabelsOf(const View& view, const Control& control) {
  if (!control.NamedBy.empty()) return control.NamedBy;
  if (Labels labels = OfTable(view, control); !labels.empty()) return labels;
  if (Is(control, {"TextBox", "ComboBox", "UpDown", "Slider"})) return InFront(view, control);
  return {};
}

/// Without the mark of the key, "(&R)" or "&".
QString Plain(const std::string& caption) {
  static const QRegularExpression mark("\\(&.\\)");
  return Q(caption).remove(mark).remove('&').simplified();
}

}  // namespace

SpokenNames::SpokenNames(const View& view, const Widgets& widgets) {
  for (const auto& [control, widget] : widgets) {
    if (Is(*control, {"Label", "Image", "Frame", "Menu", "StatusBar", "ProgressBar"})) continue;
    Name name{widget, &control->Tip, {}, {}, false};
    for (const Control* label : LabelsOf(view, *control)) name.words.push_back(&label->Caption);
    if (Is(*control, {"CommandButton", "HoldButton", "CheckBox", "OptionButton"})) {
      name.words.push_back(&control->Caption);
    }
    names_.push_back(std::move(name));
  }
}

void SpokenNames::Push() {
  const auto stands = [](const std::string* word, const std::string& shown) {
    return *word == shown;
  };
  for (Name& name : names_) {
    const bool same = std::equal(name.words.begin(), name.words.end(), name.shown.begin(),
                                 name.shown.end(), stands);
    if (same && name.told) continue;
    name.shown.clear();
    QStringList words;
    for (const std::string* word : name.words) {
      name.shown.push_back(*word);
      if (!word->empty()) words << Plain(*word);
    }
    name.widget->setAccessibleName(words.isEmpty() ? Q(*name.tip) : words.join(' '));
    name.told = !name.widget->accessibleName().isEmpty();
  }
}

}  // namespace tr7
