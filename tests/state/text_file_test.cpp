#include "state/text_file.h"

#include "base/code_page.h"
#include "platform/atomic_save.h"
#include "state/text.h"
#include "tests/support/memory_files.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

const std::string kPath = "/data/位置.qvd";

class TextFile : public StateTest {
 protected:
  TextFile() { doors.files = &files; }
  void UseUtf8() { doors.settings->Set("Settings", "CodePage", "65001"); }

  MemoryFiles files;
};

TEST_F(TextFile, FilesAreInTheSystemsCodePage) {
  ASSERT_TRUE(SaveTextFile(kPath, "位置\r\n").ok);
  EXPECT_EQ(files.Content(kPath), "\x88\xCA\x92\x75\r\n");
  std::string text;
  ASSERT_TRUE(ReadTextFile(kPath, text).ok);
  EXPECT_EQ(text, "位置\r\n");
}

TEST_F(TextFile, TheSettingChoosesTheCodePage) {
  const struct {
    const char* setting;
    int page;
  } rows[] = {{"65001", 65001}, {"932", 932}, {"", 932}, {"abc", 932}, {"1252", 932}};
  EXPECT_EQ(FileCodePage(), 932);
  for (const auto& row : rows) {
    doors.settings->Set("Settings", "CodePage", row.setting);
    EXPECT_EQ(FileCodePage(), row.page) << row.setting;
  }
  UseUtf8();
  ASSERT_TRUE(SaveTextFile(kPath, "軸😀").ok);
  EXPECT_EQ(files.Content(kPath), "軸😀");
}

TEST_F(TextFile, AMissingCharacterRefusesTheSaveBeforeAnythingIsWritten) {
  files.Put(kPath, "old");
  const TextFileResult result = SaveTextFile(kPath, "one\r\ntwo\r\nx😀y\r\n");
  EXPECT_FALSE(result.ok);
  EXPECT_EQ(result.fault, FileFault::None);
  EXPECT_EQ(result.bad_line, 3);
  EXPECT_EQ(result.bad_character, "😀");
  EXPECT_EQ(result.words, "Line 3 holds the character \"😀\", which the file cannot hold.");
  EXPECT_EQ(files.Calls(), 0);
  EXPECT_EQ(files.Content(kPath), "old");
}

TEST_F(TextFile, AFileOfAnotherCodePageIsRefusedWithItsLine) {
  const struct {
    const char *page, *bytes;
    int line;  ///< 0: it is read
  } rows[] = {{"65001", "1\r\n\x88\xCA\r\n\xFF", 2},
              {"65001", "1\r\n\uFFFD", 0},  // saved so, it is a character as any other
              {"932", "1\r\n2\r\na\x88", 3}};
  for (const auto& row : rows) {
    doors.settings->Set("Settings", "CodePage", row.page);
    files.Put(kPath, row.bytes);
    std::string text = "kept";
    const TextFileResult result = ReadTextFile(kPath, text);
    EXPECT_EQ(result.bad_line, row.line);
    EXPECT_EQ(result.ok, row.line == 0);
    EXPECT_EQ(text == "kept", row.line > 0);
    EXPECT_EQ(result.words,
              row.line > 0 ? Text(6320, "位置.qvd", std::to_string(row.line)) : std::string());
  }
}

TEST_F(TextFile, ReadingFailsInWords) {
  const struct {
    FileFault fault;
    const char* words;
  } rows[] = {{FileFault::NotFound, "The file \"位置.qvd\" does not exist."},
              {FileFault::NotPermitted,
               "You have no permission to open or to write the file \"位置.qvd\"."},
              {FileFault::DiskFull, "The disk is full. The file \"位置.qvd\" cannot be written."},
              {FileFault::TooLarge, "The file \"位置.qvd\" is too large to be data of this kind."},
              {FileFault::Other, "The file \"位置.qvd\" could not be read or written."}};
  files.Put(kPath, "content");
  for (const auto& row : rows) {
    files.FailAt(1, row.fault);
    std::string text = "kept";
    const TextFileResult result = ReadTextFile(kPath, text);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.fault, row.fault);
    EXPECT_EQ(result.words, row.words);
    EXPECT_EQ(text, "kept");
  }
  std::string text;
  EXPECT_EQ(ReadTextFile("/none", text).fault, FileFault::NotFound);
  EXPECT_EQ(ReadTextFile(kPath, text, 6).fault, FileFault::TooLarge);
  EXPECT_TRUE(ReadTextFile(kPath, text, 7).ok);
}

TEST_F(TextFile, AFaultAtAnyCallOfASaveLeavesTheOldFile) {
  files.Put(kPath, "old");
  ASSERT_TRUE(SaveTextFile(kPath, "old").ok);
  const int calls = files.Calls();
  ASSERT_EQ(calls, 5);
  for (int call = 1; call <= calls; ++call) {
    files.FailAt(call, FileFault::DiskFull);
    const TextFileResult result = SaveTextFile(kPath, "something new");
    EXPECT_EQ(result.fault, FileFault::DiskFull) << call;
    EXPECT_EQ(result.words, Text(5912, "位置.qvd"));
    EXPECT_EQ(files.Content(kPath), "old") << call;
    EXPECT_EQ(files.Paths(), std::vector{kPath}) << call;
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

TEST_F(TextFile, NamesAndFolders) {
  const struct {
    const char* path;
    const char* title;
  } rows[] = {{"/a/b/c.qvd", "c.qvd"},
              {"C:\\data\\軸.qvd", "軸.qvd"},
              {"C:\\a/b", "b"},
              {"plain.qvd", "plain.qvd"},
              {"/a/", ""},
              {"", ""}};
  for (const auto& row : rows) EXPECT_EQ(FileTitle(row.path), row.title);
  EXPECT_EQ(ProgramFile("Command.lst"), "/program/Command.lst");
}

}  // namespace
}  // namespace tr7
