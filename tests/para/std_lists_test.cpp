#include "para/std_lists.h"

#include "para/std_table.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

constexpr const char* kOldFile = "tr7qvstpr.lst";
constexpr const char* kNewFile = "tr7nqvstpr.lst";
constexpr const char* kCommonFile = "tr7cmstpr.lst";

constexpr const char* kHeader = "\"QV-R7\",\"QV-STDPRM\"\r\n";
constexpr const char* kRow28 = "\" 28L-100\",101,11,12,13,14,1,20000,2,400,15,1,\" 28L100\"\r\n";
constexpr const char* kRow35 = "\" 35H-200\",201,21,22,23,24,2,13334,6,401,25,0,\" 35H200\"\r\n";
constexpr const char* kRow42 = "\" 42H-300\",301,31,32,33,34,3,15000,8,402,35,1,\" 42H300\"\r\n";

/// Row i holds 10 i in column 1, and 10 i + 5 in column 2.
std::string CommonFile() {
  const int rows[] = {2, 9, 10};
  const char* tags[] = {"PG", "ETC", "SPECIAL"};
  std::string file = "\"QV-R7\",\"QV-CMNPRM\"\r\n3\r\n";
  int row = 0;
  for (int section = 0; section < 3; ++section) {
    file += std::string("\"") + tags[section] + "\"," + std::to_string(rows[section]) + ",3\r\n";
    for (int i = 0; i < rows[section]; ++i, ++row) {
      file += "\"x\"," + std::to_string(row * 10) + "," + std::to_string(row * 10 + 5) + "\r\n";
    }
  }
  return file;
}

class StdListsTest : public StateTest {
 protected:
  StdListsTest() {
    PutList(kNewFile, std::string(kHeader) + "3,13\r\n" + kRow28 + kRow35 + kRow42);
    PutList(kOldFile, std::string(kHeader) + "1,13\r\n" +
                          "\" 28L-100\",901,91,92,93,94,4,20000,2,900,95,0,\" 28L100\"\r\n");
    PutList(kCommonFile, CommonFile());
    for (DevSettingRecord& device : DevSettei) SetDevice(device, " 28", "L", 100);
    SetDevice(DevSettei[1], " 35", "H", 200);
    SetDevice(DevSettei[2], " 42", "H", 300);
  }
};

/// The values of one axis over rows of the parameter set.
std::vector<double> Values(int axis, int first, int last) {
  std::vector<double> values;
  for (int row = first; row <= last; ++row) values.push_back(ParaValue(ParamSet, row, axis));
  return values;
}

using Numbers = std::vector<double>;

TEST_F(StdListsTest, EveryRowFindsItsParameter) {
  DevSettei[1].WithPG = True;
  ASSERT_EQ(IniParaFromStd(), 0);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(Values(0, 1, 5), (Numbers{101, 11, 12, 13, 14}));
  EXPECT_EQ(Values(0, 7, 12), (Numbers{20000, 2, 400, 15, 1, 0}));
  EXPECT_EQ(Values(1, 1, 5), (Numbers{201, 21, 22, 23, 24}));
  EXPECT_EQ(Values(1, 7, 12), (Numbers{13334, 6, 401, 25, 0, 0}));
  EXPECT_EQ(ParamSet.Actuator[2], " 42H300");
  EXPECT_EQ(ParamSet.ActSize[2] + ParamSet.ActSpeed[2], " 42H");
  EXPECT_EQ(Values(0, 14, 15), (Numbers{0, 10}));
  EXPECT_EQ(Values(1, 14, 15), (Numbers{5, 15}));  // with PG: column 2
  EXPECT_EQ(Values(1, 16, 19), (Numbers{20, 30, 40, 50}));
  EXPECT_EQ(Values(3, 20, 24), (Numbers{60, 70, 80, 90, 100}));
  EXPECT_EQ(Values(3, 28, 30), (Numbers{140, 150, 160}));
  EXPECT_EQ(Values(0, 25, 27), (Numbers{110, 15, 130}));  // AXIS is the mask, not the list's
  EXPECT_EQ(Values(0, 31, 34), (Numbers{170, 180, 190, 200}));
}

TEST_F(StdListsTest, TheOrderOfHomingComesFromTheRowOfTheLastScan) {
  using Orders = AxisArray<std::int16_t>;
  const auto orders = [](const char* size, const char* speed, int stroke) {
    SetDevice(DevSettei[3], size, speed, stroke);
    IniParaFromStd();
    return ParamSet.HomeSeq;
  };
  EXPECT_EQ(orders(" 28", "L", 100), (Orders{1, 1, 1, 1}));
  EXPECT_EQ(orders(" 42", "H", 301), (Orders{0, 0, 0, 0})) << "behind the last row";
  AppState.AxisMuko[3] = True;
  EXPECT_EQ(orders(" 28", "L", 100), (Orders{3, 3, 3, 3})) << "axis 3 is scanned last";
  AppState.AxisMuko[3] = False;
  DevSettei[0].NewType = False;  // takes the row of that number of its own list, which has one
  EXPECT_EQ(orders(" 28", "L", 100), (Orders{4, 1, 1, 1}));
  EXPECT_EQ(orders(" 35", "H", 200), (Orders{0, 2, 2, 2}));
}

TEST_F(StdListsTest, TheDirectWriteLeavesWhatTheControllerHas) {
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < kAxes; ++axis) SetParaValue(ParamSet, row, axis, 7);
  }
  DevSettei[0].WithPG = True;
  ASSERT_EQ(IniParaFromStdForWrite(), 0);
  EXPECT_EQ(Values(0, 1, 6), (Numbers{101, 11, 12, 13, 14, 7}));
  EXPECT_EQ(Values(0, 7, 12), (Numbers{20000, 2, 400, 15, 7, 0}));
  EXPECT_EQ(Values(0, 14, 15), (Numbers{5, 15}));
  EXPECT_EQ(Values(0, 16, 29), Numbers(14, 7));
  EXPECT_EQ(Values(0, 31, 34), Numbers(4, 7));
  // From the row of AUTO START PRG No., not from its own (160).
  for (int axis = 0; axis < kAxes; ++axis) EXPECT_EQ(ParamSet.SoftLimit[axis], 110);
}

TEST_F(StdListsTest, AMissingDeviceComesOutAfterTheCommonRowsChanged) {
  SetDevice(DevSettei[1], "28", "L", 100);  // sizes compare as text
  ParamSet.HomeOffset[1] = 77;
  for (auto ini : {IniParaFromStd, IniParaFromStdForWrite}) {
    EXPECT_EQ(ini(), 1);
    EXPECT_EQ(Boxes(), Texts{Text(36) + "\n\n" + Text(6340, "AXIS2", "28L-100")});
  }
  EXPECT_EQ(ParamSet.HomeOffset[0], 101);
  EXPECT_EQ(ParamSet.HomeOffset[1], 77);
  EXPECT_EQ(ParamSet.PgAlarm[1], 10);
  EXPECT_EQ(ParamSet.SmTimer, 50);
  AppState.AxisMuko[1] = True;  // an absent axis needs no device
  EXPECT_EQ(IniParaFromStd(), 0);
}

TEST_F(StdListsTest, ADamagedListSaysWhatIsWrongAndChangesNothing) {
  const std::string good = CommonFile(), none = Text(28) + "\n" + Text(29);
  const auto at = [](const char* line, const char* list) { return Text(6332, line, list); };
  const std::tuple<const char*, std::string, std::string, std::string> rows[] = {
      {kNewFile, "\"QV-R6\",\"QV-STDPRM\"\r\n1,13\r\n" + std::string(kRow28),
       Text(26) + "(1AXIS)\n\n" + at("1", kNewFile), ""},
      {kNewFile, good, Text(26) + "(1AXIS)\n\n" + Text(6322, kNewFile, Text(6329)), ""},
      {kNewFile, kHeader + std::string("1,13\r\n\"a\",1,32768,1,1,1,1,1,1,1,1,1,\"a\"\r\n"),
       none + "\n\n" + at("3", kNewFile), ""},
      {kCommonFile, With(good, "\r\n3\r\n", "\r\n4\r\n"), none + "\n\n" + at("26", kCommonFile),
       ""},
      {kCommonFile, With(good, "QV-R7", "QV-R8"), Text(27) + "\n\n" + at("1", kCommonFile), ""},
      {kCommonFile, With(good, "\"ETC\"", "\"SPECIAL\""), "", "\n\n" + at("6", kCommonFile)},
      {kCommonFile, With(good, "\"SPECIAL\",10", "\"SPECIAL\",9"),
       none + "\n\n" + at("25", kCommonFile), ""},
      {kCommonFile, With(good, "\"PG\",2,3", "\"PG\",2,2"), none + "\n\n" + at("3", kCommonFile),
       ""}};
  for (const auto& [list, content, box, reason] : rows) {
    SCOPED_TRACE(content);
    const std::string before = *virt.files.Content(ProgramFile(list));
    PutList(list, content);
    EXPECT_EQ(IniParaFromStd(), 1);
    EXPECT_EQ(ParamSet, ParamSetRecord{});
    Texts boxes{Text(36) + reason};
    if (!box.empty()) boxes.insert(boxes.begin(), box);
    EXPECT_EQ(Boxes(), boxes);
    PutList(list, before);
  }
}

}  // namespace
}  // namespace tr7
