#include "core/open_file.h"

#include "data/grp_table.h"
#include "forms/frm_grp.h"
#include "state/busy_scope.h"
#include "state/recent_files.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

constexpr const char* kGroups = "\"QV-R7\",\"GRP\"\r\n99,2\r\n\"2\",10,25\r\n";

class OpenFileTest : public FlowTest {
 protected:
  void SetUp() override {
    StartOffline();
    Forget();
    virt.files.Put("/a.grp", kGroups);
    virt.files.Put("/letter.txt", "Dear all\r\n");
    virt.files.Put("/empty.qvd", "");
    virt.files.Put("/a.prg", "\"QV-R7\",\"Program\"\r\n");
  }
};

TEST_F(OpenFileTest, AFileOpensByItsHeadInTheViewOfItsKindUnasked) {
  OpenFileByPath("/a.grp");
  EXPECT_TRUE(frmGrp.Visible && forms.file_dialogs.empty());
  EXPECT_EQ(GrpTable.GrpStart[2], 10);
  EXPECT_EQ(frmMain.mnuRecentGrp.Entries(), std::vector<std::string>{"/a.grp"});
}

TEST_F(OpenFileTest, WhatCannotBeOpenedSaysWhyAndChangesNothing) {
  const std::pair<const char*, const char*> kRows[] = {{"/letter.txt", "cannot be opened"},
                                                       {"/a.prg", "Program Mode"},
                                                       {"/gone", "gone"},
                                                       {"/empty.qvd", "is empty"}};
  for (const auto& [path, word] : kRows) {
    OpenFileByPath(path);
    EXPECT_NE(forms.LastBox().find(word), std::string::npos) << forms.LastBox();
  }
  {
    const CommandsOff flow;
    EXPECT_FALSE(MayOpenFile());
    OpenFileByPath("/a.grp");
  }
  EXPECT_FALSE(frmGrp.Visible);
  EXPECT_TRUE(RecentFiles(FileKind::Group).empty() && RecentFiles(FileKind::Program).empty());
}

TEST_F(OpenFileTest, TheTenNewestStandInTheMenuAndOneThatIsGoneLeavesIt) {
  for (int n = 1; n <= 11; ++n) RememberFile(FileKind::Group, "/" + std::to_string(n) + ".grp");
  RememberFile(FileKind::Group, "/5.grp");
  const auto entries = frmMain.mnuRecentGrp.Entries();
  ASSERT_EQ(entries.size(), 10U);
  EXPECT_TRUE(entries[0] == "/5.grp" && entries[1] == "/11.grp" && entries[9] == "/2.grp");
  frmMain.mnuRecentGrp.Pick(1);
  EXPECT_NE(forms.LastBox().find("/11.grp"), std::string::npos);
  EXPECT_EQ(frmMain.mnuRecentGrp.Entries().size(), 9U);
}

}  // namespace
}  // namespace tr7
