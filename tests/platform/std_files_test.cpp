#include "platform/std_files.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/atomic_save.h"
#include "tests/support/as_ordinary_user.h"

namespace tr7 {
namespace {

namespace fs = std::filesystem;

class StdFilesTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tr7-files-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }
  void Put(const std::string& name, const std::string& bytes) const {
    fs::create_directories((folder / name).parent_path());
    std::ofstream(folder / name, std::ios::binary) << bytes;
  }
  std::string Content(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t Entries() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
  }

  fs::path folder;
  StdFiles files{"/nowhere"};
};

TEST_F(StdFilesTest, SavesAndReadsAnyBytesUnderAnyName) {
  std::string all;
  for (int i = 0; i < 256 * 1024; ++i) all += static_cast<char>(i * 7);
  const std::string path = Path("位置 データ.qvd");
  for (const std::string& bytes : {all, std::string("short\r\n"), std::string()}) {
    ASSERT_EQ(SaveAtomically(files, path, bytes), FileFault::None);
    std::string read = "old";
    ASSERT_EQ(files.Read(path, all.size(), read), FileFault::None);
    EXPECT_EQ(read, bytes);
    EXPECT_EQ(Entries(), 1u);
  }
}

TEST_F(StdFilesTest, FaultsSayWhatIsWrong) {
  std::string bytes;
  FileFault fault = FileFault::None;
  Put("file", "content");
  EXPECT_EQ(files.Read(Path("none"), 10, bytes), FileFault::NotFound);
  EXPECT_EQ(files.Read(Path("file/below"), 10, bytes), FileFault::NotFound);
  EXPECT_EQ(files.Read(folder.string(), 10, bytes), FileFault::Other);
  EXPECT_EQ(files.Create(Path("none/new"), fault), nullptr);
  EXPECT_EQ(fault, FileFault::NotFound);
  EXPECT_EQ(files.Rename(Path("none"), Path("file")), FileFault::NotFound);
  EXPECT_EQ(files.Remove(Path("file")), FileFault::None);
  EXPECT_FALSE(files.Exists(Path("file")));
}

TEST_F(StdFilesTest, AFullDiskIsTold) {
  if (!fs::exists("/dev/full")) GTEST_SKIP();
  FileFault fault = FileFault::None;
  const auto writer = files.Create("/dev/full", fault);
  ASSERT_NE(writer, nullptr);
  const FileFault writing = writer->Write("x");
  EXPECT_EQ(writing == FileFault::None ? writer->Flush() : writing, FileFault::DiskFull);
}

TEST_F(StdFilesTest, AProtectedFileIsNotReplaced) {
  Put("locked", "old");
  fs::permissions(folder / "locked", fs::perms(0444));
  fs::permissions(folder, fs::perms::all);
  {
    const AsOrdinaryUser user;
    ASSERT_FALSE(std::ofstream(folder / "locked", std::ios::app));
    EXPECT_EQ(SaveAtomically(files, Path("locked"), "new"), FileFault::NotPermitted);
  }
  EXPECT_EQ(Content("locked"), "old");
  EXPECT_EQ(Entries(), 1u);
}

}  // namespace
}  // namespace tr7
