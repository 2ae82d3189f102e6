// Views that exist in numbers, on a kind of view that only this test has.

#include "state/view_instances.h"

#include "state/busy_scope.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

int living = 0;

/// A draft that asks before it closes, until it is saved.
struct DraftView : View {
  explicit DraftView(int number) : View("frmDraft" + std::to_string(number)) {
    MdiChild = true;
    ++living;
  }
  ~DraftView() override { --living; }
  CommandButton cmdClose{*this, "cmdClose"};
  bool Saved = false;
};

class ViewInstancesTest : public FlowTest {
 protected:
  ViewInstancesTest() { StartOffline(); }

  DraftView& OpenDraft() {
    auto& draft = NewView<DraftView>(AppState.NextProgViewNo);
    draft.Caption = "Draft " + std::to_string(AppState.NextProgViewNo++);
    draft.Commands.Save = [&draft] { draft.Saved = true; };
    draft.QueryUnload = [this, &draft](CloseReason) {
      asked_about.push_back(draft.Caption);
      return !draft.Saved && MsgBox(draft.Caption, MsgButtons::OkCancel) != MsgAnswer::Ok;
    };
    draft.CmdMuko = [&draft] { draft.cmdClose.Enabled = false; };
    draft.CmdYuko = [&draft] { draft.cmdClose.Enabled = true; };
    draft.cmdClose.Click = [this, &draft] {
      const int before = living;
      CloseView(draft, CloseReason::Code);
      pump.RunFor(100'000);
      EXPECT_EQ(living, before) << "a view outlives the handler that closes it";
    };
    ShowView(draft);
    return draft;
  }

  std::vector<std::string> asked_about;
};

TEST_F(ViewInstancesTest, ThreeOfAKindAreServedEachForItself) {
  OpenDraft();
  DraftView& second = OpenDraft();
  DraftView& third = OpenDraft();
  frmMain.mnuWindowTileVertical.Press();
  EXPECT_EQ(forms.arrangements.size(), 1u);
  SetActiveView(&second);
  frmMain.mnuFileSave.Press();
  EXPECT_TRUE(second.Saved && !third.Saved) << "a command is the front view's";
  EXPECT_FALSE(frmMain.mnuFileNew.Enabled) << "and what it cannot do is off";
  {
    const CommandsOff commands_off;
    EXPECT_FALSE(second.cmdClose.Enabled || third.cmdClose.Enabled);
  }
  frmMain.mnuFileClose.Press();
  EXPECT_EQ(ActiveView(), &third) << "the newest that is left comes to the front";
  forms.answers = {MsgAnswer::Cancel, MsgAnswer::Ok};
  third.cmdClose.Press();
  EXPECT_TRUE(third.Visible);
  third.cmdClose.Press();
  EXPECT_EQ(asked_about, (std::vector<std::string>{"Draft 2", "Draft 3", "Draft 3"}));
  pump.RunFor(1000);
  EXPECT_EQ(living, 1);
  EXPECT_EQ(ActiveView()->Caption, "Draft 1");
}

TEST_F(ViewInstancesTest, AllCloseWithTheFrameOrNoneDoes) {
  std::vector<DraftView*> drafts;
  for (int i = 0; i < 5; ++i) drafts.push_back(&OpenDraft());
  forms.answers = {MsgAnswer::Ok, MsgAnswer::Cancel};
  EXPECT_FALSE(CloseView(frmMain, CloseReason::ControlMenu));
  EXPECT_EQ(asked_about, (Texts{"Draft 1", "Draft 2"}));
  for (const DraftView* draft : drafts) EXPECT_TRUE(draft->Visible);
  // One is closed by the question of another.
  drafts[1]->QueryUnload = [&drafts](CloseReason) {
    if (drafts[3]->Loaded) UnloadView(*drafts[3]);
    return false;
  };
  forms.answers.assign(3, MsgAnswer::Ok);
  EXPECT_TRUE(CloseView(frmMain, CloseReason::ControlMenu));
  EXPECT_TRUE(forms.ended && forms.answers.empty());
  ResetState();
  EXPECT_EQ(living, 0);
}

}  // namespace
}  // namespace tr7
