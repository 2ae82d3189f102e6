#include "para/para_keep.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/axes.h"
#include "base/seq_file.h"
#include "forms/frm_parameta2.h"
#include "para/para_columns.h"
#include "para/para_content.h"
#include "para/para_file.h"
#include "para/para_file_flow.h"
#include "para/para_marks.h"
#include "para/para_show.h"
#include "para/param_set.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMostEntries = 9999;

/// What a field shows. A list is found by its text, which its entries may have in another language,
/// else by its index.
struct Shown {
  std::string text;
  int index = -1;
};

void KeepField(SeqWriter& out, const Control& control) {
  const auto put = [&](const std::string& text, int index) {
    out.Text(control.Name);
    out.Text(text);
    out.Number(index);
    out.EndLine();
  };
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) put(box->Text, -1);
  if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
    put(list->Text(), list->ListIndex);
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) put("", option->Value);
}

void Keep(KeptWork& work) {
  work.path = work.name = frmParameta2.FilePath;
  if (ParamSet != ParamSetRecord{}) work.file = ParaFileText();
  SeqWriter screen;
  screen.Number(ParaFlags.ShownAxisCount);
  screen.EndLine();
  for (const Control* control : frmParameta2.Controls) KeepField(screen, *control);
  work.screen = screen.Result();
}

bool ReadScreen(const std::string& text, int& axes, std::map<std::string, Shown>& fields) {
  SeqReader items(text);
  if (!items.ReadInteger(0, kAxes, axes)) return false;
  while (!items.AtEnd()) {
    std::string name;
    Shown shown;
    if (!items.ReadText(name) || !items.ReadText(shown.text) ||
        !items.ReadInteger(-1, kMostEntries, shown.index)) {
      return false;
    }
    fields[name] = shown;
  }
  return true;
}

/// The set under the fields; none was known where there is no file.
bool TakeSet(const std::string& file) {
  if (file.empty()) return true;
  return ReadParaText(file) == 0 && TakeParamTable() == 0;
}

/// A size or a speed fills the lists behind it.
void PutList(ComboBox& list, const Shown& shown) {
  const bool known = list.ShowText(shown.text);
  const bool by_index = shown.index < static_cast<int>(list.List.size());
  if (!known) list.ListIndex = by_index ? shown.index : -1;
  if (list.Click) list.Click();
}

/// Lists first: what they set by themselves, the texts then overrule.
void PutFields(const std::map<std::string, Shown>& fields) {
  const auto each = [&](auto put) {
    for (Control* control : frmParameta2.Controls) {
      const auto found = fields.find(control->Name);
      if (found != fields.end()) put(*control, found->second);
    }
  };
  each([](Control& control, const Shown& shown) {
    if (auto* list = dynamic_cast<ComboBox*>(&control)) PutList(*list, shown);
  });
  each([](Control& control, const Shown& shown) {
    if (auto* box = dynamic_cast<TextBox*>(&control)) box->Text = shown.text;
    if (auto* option = dynamic_cast<OptionButton*>(&control)) option->Value = shown.index == 1;
  });
}

bool TakeBack(const KeptWork& work) {
  int axes = 0;
  std::map<std::string, Shown> fields;
  if (!ReadScreen(work.screen, axes, fields)) return false;
  if (!MayDropParaChanges(kAskSaveBeforeOpen)) return false;
  ShowOrBringToFront(frmParameta2);
  if (!TakeSet(work.file)) return false;
  if (axes > 0) YukoJikuHyojiSettei2(axes);
  if (!work.file.empty()) ParametaHyoji();
  PutFields(fields);
  MarkParaUnsaved();
  frmParameta2.FilePath = work.name;
  SettleParaColumns();  // other axes may be in use now
  MarkParaFields();
  return true;
}

}  // namespace

KeepKind KeptParameters() {
  return {.Word = "para",
          .NameId = frmParameta2.Tag,
          .Unsaved =
              [] {
                const bool unsaved = frmParameta2.Loaded && ParaIsChanged();
                return std::vector<std::string>(unsaved ? 1 : 0);
              },
          .Keep = [](const std::string&, KeptWork& work) { Keep(work); },
          .TakeBack = TakeBack};
}

}  // namespace tr7
