#include "platform/atomic_save.h"
#include "state/files_here.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/位置.qvd";

class TextFile : public StateTest {
 protected:
  MemoryFiles& files = virt.files;
};

TEST_F(TextFile, TheSettingChoosesTheCodePage) {
  const std::string text = "位置\r\n";
  for (const std::string setting : {"65001", "932", "", "1252"}) {
    doors.settings->Set("Settings", "CodePage", setting);
    ASSERT_TRUE(SaveTextFile(kPath, text).ok);
    EXPECT_EQ(files.Content(kPath), setting == "65001" ? text : "\x88\xCA\x92\x75\r\n") << setting;
    std::string read;
    EXPECT_TRUE(ReadTextFile(kPath, read).ok);
    EXPECT_EQ(read, text);
  }
}

TEST_F(TextFile, AFileOfAnotherCodePageIsRefusedWithItsLine) {
  // U+FFFD that was saved so is a character as any other.
  const std::tuple<const char*, const char*, int> rows[] = {{"65001", "1\r\n\x88\xCA\r\n\xFF", 2},
                                                            {"65001", "1\r\n\uFFFD", 0},
                                                            {"932", "1\r\n2\r\na\x88", 3}};
  for (const auto& [page, bytes, bad_line] : rows) {
    doors.settings->Set("Settings", "CodePage", page);
    files.Put(kPath, bytes);
    std::string text = "kept";
    const TextFileResult result = ReadTextFile(kPath, text);
    EXPECT_EQ(result.ok, bad_line == 0);
    EXPECT_EQ(text == "kept", bad_line > 0);
    const std::string words = Text(6320, "位置.qvd", std::to_string(bad_line));
    EXPECT_EQ(result.words, bad_line > 0 ? words : "");
  }
}

TEST_F(TextFile, AFaultAtAnyCallOfASaveLeavesTheOldFile) {
  const int calls_before = files.Calls();
  ASSERT_TRUE(SaveTextFile(kPath, "old").ok);
  ASSERT_EQ(files.Calls() - calls_before, 5);
  const std::size_t paths = files.Paths().size();
  for (int call = 1; call <= 5; ++call) {
    files.FailAt(call, FileFault::DiskFull);
    EXPECT_EQ(SaveTextFile(kPath, "something new").fault, FileFault::DiskFull) << call;
    EXPECT_EQ(files.Content(kPath), "old") << call;
    EXPECT_EQ(files.Paths().size(), paths) << call;
  }
}

TEST_F(TextFile, APowerCutAtAnyCallOfASaveLeavesOneFileWhole) {
  for (const bool existed : {true, false}) {
    for (int call = 1; call <= 6; ++call) {
      MemoryFiles disk;
      if (existed) disk.Put(kPath, "old");
      disk.PowerCutAt(call);
      const FileFault fault = SaveAtomically(disk, kPath, "new");
      disk.PowerOn();
      const auto left = disk.Content(kPath);
      const auto before = existed ? std::optional<std::string>("old") : std::nullopt;
      EXPECT_EQ(left, fault == FileFault::None ? std::optional<std::string>("new") : before);
      EXPECT_EQ(fault == FileFault::None, call == 6);
      // The next save takes no harm from what the cut left behind.
      EXPECT_EQ(SaveAtomically(disk, kPath, "next"), FileFault::None);
      EXPECT_EQ(disk.Content(kPath), "next");
      EXPECT_EQ(disk.Paths(), std::vector{kPath});
    }
  }
}

TEST_F(TextFile, AFileThatAViewShowsIsKnownHoweverItsPathIsSpelled) {
  NoteBytes("/data/../a.qvd", "bytes");
  FileIsShown("/./a.qvd");
  EXPECT_NE(ShownMark("/a.qvd"), "");
}

}  // namespace
}  // namespace tr7
