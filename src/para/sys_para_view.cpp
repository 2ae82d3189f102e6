#include "para/sys_para_view.h"

#include <optional>
#include <string>
#include <vector>

#include "base/seq_file.h"
#include "forms/frm_main.h"
#include "forms/frm_system_para.h"
#include "para/para_hint.h"
#include "para/sys_para.h"
#include "para/sys_para_commands.h"
#include "para/sys_para_show.h"
#include "platform/doors.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/kept_work.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/views.h"
#include "steps/held_write.h"
#include "steps/transfer_scope.h"
#include "steps/write_taken.h"

namespace tr7 {
namespace {

Outcome ReadBlocks() {
  const WaitCursorScope wait_cursor;
  return ReadSysParaFromCt();
}

void GetSystemParametaValue() {
  const TransferScope transfer;
  if (!ConnectOrOpenPort() || ReadBlocks() != Outcome::Done) return;
  SysParaKnown = True;
  doors.forms->BringToFront(frmSystemPara);
  SysParaHyoji();
}

/// Takes the fields. False after the user has been told what is missing or wrong.
bool TakeFields() {
  if (SysParaFieldsFilled() != 0) {
    MsgBoxWithDetails(TwoLines(7, 8), RefusedSysPara());
    GoToRefusedSysPara();
    return false;
  }
  TorikomiSystemParametaValue();
  if (SystemParametaValueCheck() == 0) return true;
  MsgBoxWithDetails(TwoLines(1524, 1525), RefusedSysPara());
  GoToRefusedSysPara();
  return false;
}

void WriteSysParaFlow() {
  const TransferScope transfer;
  if (!AskYesToLose(Text(475)) || !ConnectOrOpenPort() || !TakeFields()) return;
  std::optional<Outcome> sent;  // nothing: why it was not begun has been told
  static_cast<void>(WriteHeld([&] {
    sent = WriteSysParaToCt();
    return *sent;
  }));
  if (!sent) return;
  if (*sent != Outcome::Done) return Tell(1528);
  SysParaRead = SysPara;
  SysParaKnown = True;
  MarkSysParaFields();
  TellWriteDone(1527);
}

void FieldEntered(std::size_t slot) {
  TellInStatusPanel(ParaRangeText("0", std::to_string(SysParaHighest(slot))));
}

/// Before anything is known of the controller all that is typed is the user's alone.
bool AnyFieldIsTheUsersAlone() {
  for (const SysParaField& field : frmSystemPara.Fields) {
    const TextBox& box = field.txtSystemPara;
    if (SysParaKnown ? !box.Difference.empty() : !box.Text.empty()) return true;
  }
  return false;
}

/// What has been typed is in no file: the user decides whether it goes.
bool RefusesToClose(CloseReason) {
  constexpr int kMsgDropEdits = 6536;
  return FlowKeepsViewsOpen() || (AnyFieldIsTheUsersAlone() && !AskToLose(Text(kMsgDropEdits)));
}

/// Fields that no file can hold: as they stand.
void KeepFields(KeptWork& work) {
  SeqWriter screen;
  for (const SysParaField& field : frmSystemPara.Fields) screen.Text(field.txtSystemPara.Text);
  work.screen = screen.Result();
}

bool TakeBackFields(const KeptWork& work) {
  if (frmSystemPara.Loaded && RefusesToClose(CloseReason::Code)) return false;
  ShowOrBringToFront(frmSystemPara);
  SeqReader texts(work.screen);
  for (SysParaField& field : frmSystemPara.Fields) {
    if (!texts.ReadText(field.txtSystemPara.Text)) return false;
  }
  MarkSysParaFields();
  return true;
}

KeepKind KeptFields() {
  return {.Word = "sys",
          .NameId = frmSystemPara.Tag,
          .Unsaved =
              [] {
                const bool unsaved = frmSystemPara.Loaded && AnyFieldIsTheUsersAlone();
                return std::vector<std::string>(unsaved ? 1 : 0);
              },
          .Keep = [](const std::string&, KeptWork& work) { KeepFields(work); },
          .TakeBack = TakeBackFields};
}

void LoadFields() {
  for (std::size_t index = 0; index < frmSystemPara.Fields.size(); ++index) {
    frmSystemPara.Fields[index].lblSystemPara.Caption = std::to_string(index + 1);
  }
  // Offline the controller may have been changed since it was read.
  if (SysParaKnown && !AppState.Offline) return SysParaHyoji();
  for (SysParaField& field : frmSystemPara.Fields) field.txtSystemPara.Text.clear();
}

void GoToNext(std::size_t index) {
  auto& fields = frmSystemPara.Fields;
  doors.forms->SetFocus(fields[(index + 1) % fields.size()].txtSystemPara);
}

}  // namespace

void InstallSysParaView() {
  FrmSystemPara& f = frmSystemPara;
  f.Load = LoadFields;
  f.QueryUnload = RefusesToClose;
  f.IsChanged = AnyFieldIsTheUsersAlone;
  f.CmdMuko = [] { SwitchControls(frmSystemPara, false); };
  f.CmdYuko = [] { SwitchControls(frmSystemPara, true); };
  f.cmdReadFromCt.Click = GetSystemParametaValue;
  f.cmdWritetoCt.Click = WriteSysParaFlow;
  f.cmdClose.Click = [] { CloseView(frmSystemPara, CloseReason::Code); };
  for (std::size_t index = 0; index < f.Fields.size(); ++index) {
    TextBox& box = f.Fields[index].txtSystemPara;
    box.GotFocus = [index] { FieldEntered(index + 1); };
    box.Change = MarkSysParaFields;
    box.Enter = [index] { GoToNext(index); };
  }
  f.OpenedBy = &frmMain.mnuViewSysPara;
  KeepKinds().push_back(KeptFields());
  frmMain.mnuViewSysPara.Click = [] { ShowOrBringToFront(frmSystemPara); };
}

}  // namespace tr7
