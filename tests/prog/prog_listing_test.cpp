// The listing under the user's hands, and the file that keeps it.

#include "prog/prog_clip.h"
#include "prog/prog_lines.h"
#include "prog/prog_targets.h"
#include "prog/prog_undo.h"
#include "tests/prog/prog_user.h"

namespace tr7 {
namespace {

class ProgListing : public ProgUser {
 protected:
  ProgListing() { StartOffline(true); }
};

TEST_F(ProgListing, KeysAreDroppedAndFoldedByColumn) {
  const char* const kTaken[] = {"MVP4IOPFR/-!", "P4I5OPfr.", "P4I5OPfr.-",
                                "P4I5OPfr/-",   "P4I5OPfr",  "mvP4i5opfr./-!\""};
  for (int col = 1; col <= 6; ++col) {
    std::string taken;
    for (const char typed : std::string("mvP4i5opfr./-!\"")) taken += ProgKey(col, typed);
    std::erase(taken, '\0');
    EXPECT_EQ(taken, kTaken[col - 1]) << col;
  }
}

TEST_F(ProgListing, LinesComeAndGo) {
  ProgView& view = Program({"LB 1", "LB 2", "LB 3"});
  Grid& listing = view.flgdProg;
  EXPECT_EQ(listing.TypeInto(1, 1, "lb"), 1);
  EXPECT_EQ(listing.Text(1, 1), "LB");
  listing.SelectCell(2, 2);
  cmdInsLineProg_Click(view);
  EXPECT_EQ(Boxes(), Texts{Text(388) + "\n" + Text(389)});
  listing.Select(2, 1, 2, 6);
  view.cmdInsLineProg.Press();
  EXPECT_EQ(Steps(view), (Texts{"LB 1", "", "LB 2", "LB 3"}));
  listing.Select(3, 6, 2, 1);
  view.cmdDelLineProg.Press();
  EXPECT_EQ(Steps(view), (Texts{"LB 1", "LB 3"}));
  EXPECT_EQ(listing.Text(2, 0), "2");
  listing.SelectCell(2, 6);
  ProgEnterKey(view);
  EXPECT_EQ(listing.Row * 10 + listing.Col, 31);
  listing.Select(1, 0, 3, 0);
  view.cmdDelLineProg.Press();
  EXPECT_EQ(Steps(view), Texts{""}) << "the last line stays";
  EXPECT_EQ(forms.focus, &listing);
  view.Store.ProgCopyNo = 100;
  Put(view, Texts(20, "LB 9"));
  listing.Select(1, 1, 1, 6);
  view.cmdInsLineProg.Press();
  EXPECT_EQ(Steps(view).size(), 20u) << "a full program loses its last step";
}

TEST_F(ProgListing, LinesTravelOverTheClipboard) {
  ProgView& from = Program({"MVP 1 _ I1 O1 say\"so", "VEL 400"});
  from.flgdProg.SelectCell(1, 2);
  PrgDataLineCopy(from);
  EXPECT_EQ(Boxes(), Texts{Text(392)});
  from.flgdProg.Select(1, 1, 2, 6);
  from.cmdProgLineCopy.Press();
  ProgView& to = Program({"LB 1", "LB 2"});
  to.flgdProg.SelectCell(2, 3);
  ProgDataLinePaste(to);
  EXPECT_EQ(Boxes(), Texts{Text(337)});
  to.flgdProg.Select(2, 1, 2, 6);
  to.cmdProgLinePaste.Press();
  EXPECT_EQ(Steps(to), (Texts{"LB 1", "MVP 1 _ I1 O1 say\"so", "VEL 400", "LB 2"}));
  frmMain.mnuEditUndo.Press();
  EXPECT_EQ(Steps(to), (Texts{"LB 1", "LB 2"})) << "one edit";
  to.Store.ProgCopyNo = 100;
  Put(to, Texts(19, "LB 9"));
  to.flgdProg.Select(1, 1, 1, 6);
  to.cmdProgLinePaste.Press();
  EXPECT_EQ(Steps(to).size(), 20u);
  EXPECT_EQ(frmMain.sbStatusBar.Panels[kPanelError], Text(7128, "20", "1"));
  for (const char* text : {"1\t2\t3\t4\t5\t6", "TIM\t1\t\t\t\t\"two\rlines\""}) {
    doors.clipboard->SetText(text);
    to.flgdProg.Select(1, 1, 1, 6);
    EXPECT_EQ(to.cmdProgLinePaste.Enabled, *text == 'T') << "lines of a program alone";
  }
  Put(to, {"_ _ _ _ _ _"});
  to.cmdProgLinePaste.Press();
  EXPECT_EQ(Steps(to), Texts{"TIM 1 _ _ _ two lines"});
  Put(to, {"LB 1 _ _ _ _"});
  doors.clipboard->SetText("XYZ\t5\rTIM");
  to.flgdProg.SelectCell(1, 1);
  frmMain.mnuEditPaste.Press();
  EXPECT_EQ(Steps(to), Texts{"LB 5"}) << "a command that is none keeps the old one";
}

TEST_F(ProgListing, JumpsAndCallsFindTheirTargets) {
  const Grid& listing = Program({"JUMP 2", "JUMP R2", "CALL 2", "LB 2", "SR 2", "CALL 3"}).flgdProg;
  std::string targets;
  for (int step = 1; step <= 6; ++step) targets += std::to_string(TargetOfStep(listing, step));
  EXPECT_EQ(targets, "405000");
}

TEST_F(ProgListing, AFileKeepsEveryCell) {
  ProgView& view = Program({"MVP 1 _ _ O1 a,\"b\"", "VEL 500"});
  forms.answers = {MsgAnswer::Ok};
  forms.file_answers = {"/d/job.prg"};
  view.Store.ProgChanged = True;
  view.cmdProgSaveAs.Press();
  EXPECT_EQ(Boxes(), (Texts{Text(134), Text(441)}));
  EXPECT_EQ(view.Caption, "Program [job]");
  EXPECT_FALSE(view.Store.ProgChanged);
  std::string file;
  ASSERT_TRUE(ReadTextFile("/d/job.prg", file).ok);
  EXPECT_EQ(file,
            "\"QV-R7\"\r\n\"Program\"\r\n2\r\n\"MVP\",\"1\",\"\",\"\",\"O1\",\"a,\"\"b\"\"\"\r\n"
            "\"VEL\",\"500\",\"\",\"\",\"\",\"\"\r\n");
  view.flgdProg.TypeInto(1, 2, "2");
  view.Commands.Undo();
  EXPECT_FALSE(view.Store.ProgChanged);
  forms.answers = {MsgAnswer::Ok};
  forms.file_answers = {"/d/job.prg"};
  Program({"VEL 1"}).cmdProgSaveAs.Press();
  EXPECT_TRUE(view.Store.ProgChanged && view.Store.FilePath.empty()) << "it is in no file now";
  SetActiveView(&view);
  Boxes();
  view.flgdProg.TypeInto(1, 2, "3");
  view.Commands.Redo();
  EXPECT_EQ(view.flgdProg.Text(1, 2), "3") << "an edit leaves nothing to bring back";
  ProgIsSaved(view);
  view.Commands.Undo();
  ProgIsSaved(view);
  view.Commands.Redo();  // what stood there at the first save is not what was saved last
  forms.answers = {MsgAnswer::No};
  frmMain.mnuFileClose.Press();
  EXPECT_EQ(Boxes(), Texts{Text(1033) + "\n" + Text(1034)});
}

}  // namespace
}  // namespace tr7
