#include "device/device_model.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

constexpr const char* kOld = "qvdevice.lst";
constexpr const char* kNew = "nqvdevice.lst";

class DeviceListTest : public StateTest {
 protected:
  const std::string no_list_ = Text(15) + "\n" + Text(16);
};

TEST_F(DeviceListTest, ModelFieldsAreCutByPosition) {
  const auto joined = [](const DeviceModel& model) {
    return model.Size + "|" + model.Speed + "|" + std::to_string(model.Stroke);
  };
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"28L-100", "28|L|100", "28L|-|0"}, {" 28L-100", "2|8|-10", " 28|L|100"},
      {"E35H-050", "0|5|-5", "E35|H|50"}, {" 42D 600X", "4|2|60", " 42|D|600"},
      {" 28", "2|8|0", " 28||0"},         {"", "0||0", "||0"},
      {"28L-05", "28|L|5", "28L|-|5"},    {"型28L-100", "0|8|-10", "型28|L|100"}};
  for (const auto& [raw, old_list, new_list] : rows) {
    EXPECT_EQ(joined(CutOldModel(raw)), old_list);
    EXPECT_EQ(joined(CutNewModel(raw)), new_list);
  }
}

TEST_F(DeviceListTest, TheNewListGivesRowsAndSizes) {
  PutList(kNew,
          "4\r\n\" 28L-100\",2,400,1,0\r\n\"E35L-050\",4,192,2,1\r\n\" 28H-100\",6,400,0,2\r\n"
          "\"28 L-100\",8,400,0,0\r\nsurplus,items\r\n");
  ASSERT_EQ(ReadDeviceListNew(), 0);
  const DeviceListRecord& list = DeviceList[3];
  ASSERT_EQ(list.RowCount, 4);
  const DeviceRecord& row = list.Rows[2];
  EXPECT_EQ(row.Raw + row.Size + row.Speed + std::to_string(row.Stroke), "E35L-050E35L50");
  EXPECT_EQ((std::vector<int>{row.Lead, row.Ppr, row.PgKind, row.VKind}),
            (std::vector<int>{4, 192, 2, 1}));
  EXPECT_EQ(list.Sizes, (Texts{" 28", "E35", "28 "}));
  MakeSpeedListNew(3, " 28");
  EXPECT_EQ(list.Speeds, (Texts{"L", "H"}));
}

TEST_F(DeviceListTest, TheOldListComparesSizesByValue) {
  PutList(
      kOld,
      "4,\"28L-100\",2,x,,\" 5H-050\",6,\"\",0,\"28H-100\",7,0,0\r\n\"05L-020\",8,99999,-1\r\n");
  ASSERT_EQ(ReadDeviceListOldAxis(3), 0);
  const DeviceListRecord& list = DeviceList[3];
  ASSERT_EQ(list.RowCount, 4);
  EXPECT_EQ(list.Sizes, (Texts{"28", "5"}));
  EXPECT_EQ(list.Speeds, (Texts{"L", "H"}));
  EXPECT_EQ(list.Rows[4].Lead, 8);
  EXPECT_EQ(list.Find(" 28", "L", 100), 1);
  EXPECT_EQ(list.Find("28", "H", 100), 3);
  EXPECT_EQ(list.Find("  5", "L", 20), 4);
  EXPECT_EQ(list.Find(" 28", "L", 101) + list.Find(" 28", "l", 100) + list.Find("E35", "L", 100),
            0);
}

/// A list of devices that differ in one letter of their sizes.
std::string NewRows(int count) {
  std::string rows = std::to_string(count) + "\r\n";
  for (int i = 0; i < count; ++i) {
    rows += std::string("\"S") + static_cast<char>('A' + i) + "0L-100\",2,400,0,0\r\n";
  }
  return rows;
}

TEST_F(DeviceListTest, DamagedListsTakeTheFailurePathAndSayWhere) {
  const auto line = [](const char* number) { return Text(6332, number, kNew); };
  const std::string row = "\" 28L-100\",2,400,0,0\r\n", too_many = Text(6335, kNew, "11");
  const std::pair<std::string, std::string> files[] = {
      {NewRows(11), ""},
      {NewRows(12), too_many},
      {"100\r\n", line("1")},
      {"3\r\n" + row + row, line("3")},  // the count lies
      {"1\r\n\" 28L-100\",L,400,0,0\r\n", line("2")},
      {"\"QV-R7\",\"PRM\"", Text(6322, kNew, Text(6324))},
      {std::string(100 << 20, '1'), Text(5913, kNew)}};
  for (const auto& [content, fault] : files) {
    SCOPED_TRACE(content.substr(0, 60));
    PutList(kNew, content);
    const bool good = fault.empty();
    EXPECT_EQ(ReadDeviceListNewAxis(0), good ? 0 : 1);
    EXPECT_EQ(DevListMissing[0], !good);
    EXPECT_EQ(Boxes(), good ? Texts{} : Texts{no_list_ + "\n\n" + fault});
    EXPECT_EQ(DeviceList[0].Sizes.empty(), !good);
  }
}

TEST_F(DeviceListTest, ARowWithANumberOutOfItsRangeIsLeftOutAndNamedOnce) {
  const std::string good = "\" 28L-100\",2,400,0,0\r\n";
  for (const char* numbers : {"2,400,3,0", "2,400,0,-1", "0,400,0,0", "2,32768,0,0", "1.5,1,0,0"}) {
    PutList(kNew, "3\r\n" + good + "\" 28H-050\"," + numbers + "\r\n" + good);
    const std::string words = Text(6333, kNew) + "\n\n" + Text(6321, "3", " 28H-050");
    DeviceLookup = DeviceLookupRecord{};
    EXPECT_EQ(FindDeviceNew(" 28", "H", 50), 1);
    EXPECT_EQ(ReadDeviceListNew(), 0);
    EXPECT_EQ(Boxes(), Texts{words}) << numbers;
    EXPECT_EQ(DeviceList[0].RowCount, 2);
  }
}

}  // namespace
}  // namespace tr7
