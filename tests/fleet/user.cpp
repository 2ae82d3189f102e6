#include "forms/frm_compare.h"
#include "forms/frm_options2.h"
#include "forms/frm_print_select.h"
#include "forms/frm_prog_no.h"
#include "tests/fleet/voyage.h"

namespace tr7 {
namespace {

void Pick(Random& random, ComboBox& combo) {
  if (!combo.List.empty()) combo.Pick(random.Below(static_cast<int>(combo.List.size())));
}

void ChangeADevice(Random& random, DeviceView& view) {
  const int axis = random.Below(kAxes);
  switch (random.Below(6)) {
    case 0:
      return Pick(random, view.comboAxisSelect);
    case 1:
      return view.chkAxisEnable[axis].Set(!view.chkAxisEnable[axis].Value);
    case 2:
      return view.chkNewOrOld[axis].Set(!view.chkNewOrOld[axis].Value);
    case 3:
      return view.chkDevPgUse[axis].Set(!view.chkDevPgUse[axis].Value);
    default:
      Pick(random, view.comboDeviceSize[axis]);
      Pick(random, view.comboDeviceSpeed[axis]);
      Pick(random, view.comboDeviceStroke[axis]);
  }
}

/// Changes this and that, perhaps writes, and leaves by one of the buttons.
void AnswerDevices(Voyage& voyage, DeviceView& view) {
  Random& random = voyage.random;
  for (int changes = random.Below(4); changes > 0; --changes) ChangeADevice(random, view);
  if (random.Chance(40)) {
    voyage.sent_at_refusal.reset();  // a command of its own
    view.cmdPrmCtWrite.Press();
  }
  for (CommandButton* button : {&view.cmdDeviceSet, &view.cmdDeviceBack, &view.cmdDeviceCancel}) {
    if (view.Visible && random.Chance(60)) button->Press();
  }
  if (view.Visible) view.cmdDeviceCancel.Press();
}

void AnswerChoice(Voyage& voyage, SelectionView& view) {
  Random& random = voyage.random;
  if (random.Chance(10)) view.cmdBack.Press();
  if (view.Visible && random.Chance(10)) view.cmdCancel.Press();
  if (!view.Visible) return;
  const auto choices = static_cast<int>(std::count_if(
      view.options.begin(), view.options.end(), [](const OptionButton* o) { return o->Visible; }));
  const int choice = random.Chance(60) ? 0 : random.Below(choices);
  voyage.choices[view.lblPrompt.Caption] = choice;
  AnswerSelection(view, choice);
}

void AnswerRange(Random& random, SelectPosiNoView& view) {
  if (random.Chance(50)) {
    view.cmdOk.Press();  // as proposed
  } else {
    const int first = random.Between(1, 40);
    FillRange(view, first, first + random.Below(15));
  }
  if (view.Visible) view.cmdCancel.Press();
}

void AnswerOptions(Random& random) {
  FrmOptions2& f = frmOptions2;
  for (int tab = 0; tab < 4; ++tab) {
    ClickTab(f.tabOptions, tab);
    if (random.Chance(50)) continue;
    f.chkPortOccupy.Set(!f.chkPortOccupy.Value);
    (random.Chance(50) ? f.optRoundUp : f.optRoundDown).Press();
    (random.Chance(50) ? f.optUnitMm : f.optUnitPulse).Press();
    (random.Chance(50) ? f.optJapanese : f.optEnglish).Press();
  }
  if (random.Chance(20)) (random.Chance(60) ? f.cmdExport : f.cmdImport).Press();
  (random.Chance(80) ? f.cmdOk : f.cmdCancel).Press();
}

/// Compares any two sides, and takes over this and that.
void AnswerCompare(Voyage& voyage) {
  Random& random = voyage.random;
  FrmCompare& f = frmCompare;
  for (int acts = random.Below(6); acts > 0 && f.Visible; --acts) {
    Pick(random, random.Chance(20) ? f.comboHere : f.comboThere);
    voyage.sent_at_refusal.reset();  // a command of its own
    f.cmdCompare.Press();
    if (random.Chance(20)) f.chkEqualToo.Set(!f.chkEqualToo.Value);
    f.flgdCompare.SelectCell(random.Below(f.flgdCompare.Rows()), 0);
    CommandButton& take = random.Chance(20) ? f.cmdTakeAll : f.cmdTake;
    if (!f.Visible || !take.Enabled || random.Chance(50)) continue;
    voyage.took = true;
    take.Press();
  }
  if (f.Visible) f.cmdClose.Press();
}

/// One of the few programs that the user works with.
void AnswerProgNo(Voyage& voyage) {
  Random& random = voyage.random;
  frmProgNo.flgdProgNo.SelectCell(random.OneOf({1, 1, 2, 8, 21}), 1);
  if (random.Chance(85)) return frmProgNo.cmdOk.Press();
  voyage.sent_at_refusal = voyage.virt.port.sent.size();
  frmProgNo.cmdCancel.Press();
}

MsgAnswer AnswerBox(Voyage& voyage, const MessageBoxCall& call) {
  Random& random = voyage.random;
  if (call.Buttons == MsgButtons::Ok) {
    // The controller's own refusal.
    const bool refused = call.Text.starts_with(Text(104) + "\n") && call.Text.ends_with("]");
    if (refused) {
      voyage.sent_at_refusal = voyage.virt.port.sent.size();
      voyage.refused_at.insert(*voyage.sent_at_refusal);
    }
    return MsgAnswer::Ok;
  }
  if (call.Buttons != MsgButtons::OkCancel) {
    return random.OneOf({MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::No, MsgAnswer::Cancel});
  }
  if (random.Chance(85)) return MsgAnswer::Ok;
  voyage.sent_at_refusal = voyage.virt.port.sent.size();
  return MsgAnswer::Cancel;
}

}  // namespace

std::string AnyPath(Random& random) {
  return std::string("/work/") + random.OneOf({"a", "b", "c"}) + ".qvd";
}

void PerhapsCancel(Voyage& voyage) {
  if (!voyage.random.Chance(25)) return;
  voyage.virt.pump.After(voyage.random.Below(2'500'000), [] { frmMain.cmdComCancel.Press(); });
}

void SeatUser(Voyage& voyage) {
  VirtualFormHost& forms = voyage.virt.forms;
  forms.on_message_box = [&voyage](const MessageBoxCall& call) -> std::optional<MsgAnswer> {
    return AnswerBox(voyage, call);
  };
  forms.on_file_dialog = [&voyage](const FileDialogCall& call) -> std::optional<std::string> {
    if (voyage.random.Chance(15)) return std::nullopt;
    if (call.DefaultExtension != "qvd") return "/work/p." + call.DefaultExtension;
    std::string path = AnyPath(voyage.random);
    for (int look = 3; !call.Save && look > 0 && !voyage.virt.files.Exists(path); --look) {
      path = AnyPath(voyage.random);
    }
    voyage.last_path = path;
    return path;
  };
  forms.on_any_modal = [&voyage](View& view) {
    Random& random = voyage.random;
    if (auto* choice = dynamic_cast<SelectionView*>(&view)) {
      AnswerChoice(voyage, *choice);
    } else if (auto* range = dynamic_cast<SelectPosiNoView*>(&view)) {
      AnswerRange(random, *range);
    } else if (auto* devices = dynamic_cast<DeviceView*>(&view)) {
      AnswerDevices(voyage, *devices);
    } else if (&view == &frmOptions2) {
      AnswerOptions(random);
    } else if (&view == &frmPrintSelect) {
      voyage.virt.printer.wanted = random.Chance(80);
      frmPrintSelect.chkPrintPara.Set(random.Chance(50));
      frmPrintSelect.optPrintPosi[random.Chance(30)].Press();
      frmPrintSelect.cmdSelectPosiFile.Press();
      frmPrintSelect.cmdPrintSet.Press();
      frmPrintSelect.cmdCancel.Press();
    } else if (&view == &frmProgNo) {
      AnswerProgNo(voyage);
    } else if (&view == &frmCompare) {
      AnswerCompare(voyage);
    }
  };
}

}  // namespace tr7
