#include "device/device_list.h"

#include <functional>
#include <string>
#include <vector>

#include "device/dev_setting.h"
#include "device/device_model.h"
#include "state/text.h"
#include "state/text_file.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kOld = "qvdevice.lst";
constexpr const char* kNew = "nqvdevice.lst";

class DeviceListTest : public StateTest {};

Names NoListBox() { return {Text(15) + "\n" + Text(16)}; }

TEST_F(DeviceListTest, ModelFieldsAreCutByPosition) {
  const struct {
    const char* raw;
    DeviceModel old_list, new_list;
  } rows[] = {{"28L-100", {"28", "L", 100}, {"28L", "-", 0}},
              {" 28L-100", {"2", "8", 0}, {" 28", "L", 100}},
              {"E35H-050", {"0", "5", -5}, {"E35", "H", 50}},
              {" 42D 600X", {"4", "2", 0}, {" 42", "D", 600}},
              {"05H- 5", {"5", "H", 5}, {"05H", "-", 5}},
              {" 28", {"2", "8", 0}, {" 28", "", 0}},
              {"", {"0", "", 0}, {"", "", 0}},
              {"型28L-100", {"0", "8", 0}, {"型28", "L", 100}}};
  for (const auto& row : rows) {
    const DeviceModel old_list = CutOldModel(row.raw), new_list = CutNewModel(row.raw);
    EXPECT_EQ(old_list.Size, row.old_list.Size) << row.raw;
    EXPECT_EQ(old_list.Speed, row.old_list.Speed) << row.raw;
    EXPECT_EQ(new_list.Size, row.new_list.Size) << row.raw;
    EXPECT_EQ(new_list.Speed, row.new_list.Speed) << row.raw;
    EXPECT_EQ(new_list.Stroke, row.new_list.Stroke) << row.raw;
  }
  EXPECT_EQ(CutOldModel("28L-100").Stroke, 100);
  EXPECT_EQ(CutOldModel("28L-05").Stroke, 5);
}

TEST_F(DeviceListTest, TheNewListGivesRowsAndSizes) {
  PutList(kNew,
          "4\r\n\" 28L-100\",2,400,1,0\r\n\"E35L-050\",4,192,2,1\r\n\" 28H-100\",6,400,0,2\r\n"
          "\"28 L-100\",8,400,0,0\r\nsurplus,items\r\n");
  ASSERT_EQ(ReadDeviceListNew(), 0);
  for (int axis = 0; axis < kAxes; ++axis) {
    const DeviceListRecord& list = DeviceList[axis];
    EXPECT_FALSE(DevListMissing[axis]);
    EXPECT_EQ(list.Rows[0].Raw, "4");
    EXPECT_EQ(list.Rows[0].Size, "");
    ASSERT_EQ(list.RowCount, 4);
    const DeviceRecord& row = list.Rows[2];
    EXPECT_EQ(row.Raw, "E35L-050");
    EXPECT_EQ(row.Size + row.Speed, "E35L");
    EXPECT_EQ(row.Stroke, 50);
    EXPECT_EQ(row.Lead, 4);
    EXPECT_EQ(row.Ppr, 192);
    EXPECT_EQ(row.PgKind, 2);
    EXPECT_EQ(row.VKind, 1);
    EXPECT_EQ(list.Sizes, (Names{" 28", "E35", "28 "}));
    EXPECT_TRUE(list.Speeds.empty());
  }
  const struct {
    const char* size;
    Names speeds;
  } rows[] = {{" 28", {"L", "H"}}, {"E35", {"L"}}, {"28", {}}, {"", {}}};
  for (const auto& row : rows) {
    MakeSpeedListNew(1, row.size);
    EXPECT_EQ(DeviceList[1].Speeds, row.speeds) << row.size;
  }
}

TEST_F(DeviceListTest, TheOldListComparesSizesByValue) {
  PutList(
      kOld,
      "4,\"28L-100\",2,x,,\" 5H-050\",6,\"\",0,\"28H-100\",7,0,0\r\n\"05L-020\",8,99999,-1\r\n");
  ASSERT_EQ(ReadDeviceListOld(), 0);
  const DeviceListRecord& list = DeviceList[3];
  ASSERT_EQ(list.RowCount, 4);
  EXPECT_EQ(list.Sizes, (Names{"28", "5"}));
  EXPECT_EQ(list.Speeds, (Names{"L", "H"}));
  EXPECT_EQ(list.Rows[4].Lead, 8);
  EXPECT_EQ(list.Rows[4].Ppr, 0);
  const struct {
    const char *size, *speed;
    int stroke, slot;
  } rows[] = {{" 28", "L", 100, 1}, {"28", "H", 100, 3},  {"  5", "L", 20, 4},
              {" 28", "L", 101, 0}, {" 28", "l", 100, 0}, {"E35", "L", 100, 0}};
  for (const auto& row : rows) EXPECT_EQ(list.Find(row.size, row.speed, row.stroke), row.slot);
}

TEST_F(DeviceListTest, EachAxisMayHoldTheOtherList) {
  ASSERT_EQ(ReadDeviceListNew(), 0);
  ASSERT_EQ(ReadDeviceListOldAxis(2), 0);
  EXPECT_TRUE(DeviceList[2].SizeIsNumber);
  EXPECT_EQ(DeviceList[2].Sizes[0], "28");
  EXPECT_FALSE(DeviceList[1].SizeIsNumber);
  EXPECT_EQ(DeviceList[1].Sizes[0], " 20");
}

std::string NewRows(int count, const std::function<std::string(int)>& model) {
  std::string rows = std::to_string(count) + "\r\n";
  for (int i = 0; i < count; ++i) rows += "\"" + model(i) + "\",2,400,0,0\r\n";
  return rows;
}

std::string Letter(int i) { return std::string(1, static_cast<char>('A' + i)); }

TEST_F(DeviceListTest, DamagedListsTakeTheFailurePathAndSayWhere) {
  const auto sizes = [](int i) { return "S" + Letter(i) + "0L-100"; };
  const auto speeds = [](int i) { return " 28" + Letter(i) + "-100"; };
  const auto line = [](const char* number) { return Text(6332, number, kNew); };
  const std::string row = "\" 28L-100\",2,400,0,0\r\n", too_many = Text(6335, kNew, "11");
  const struct {
    std::string content;
    int rows;  ///< that stand afterwards; -1: a good file
    std::string fault;
  } files[] = {{NewRows(99, [](int) { return " 28L-100"; }), -1, ""},
               {NewRows(11, sizes), -1, ""},
               {NewRows(100, [](int) { return " 28L-100"; }), 0, line("1")},
               {NewRows(12, sizes), 12, too_many},
               {NewRows(12, speeds), 12, too_many},
               {"3\r\n" + row + row, 2, line("3")},                     // the count lies
               {"2\r\n" + row + "\" 28L-100\",2,400,0", 1, line("3")},  // cut short
               {"1\r\n\" 28L-100\",L,400,0,0\r\n", 0, line("2")},
               {"\"QV-R7\",\"PRM\"", 0, Text(6322, kNew, Text(6324))},
               {std::string(100 << 20, '1'), 0, Text(5913, kNew)}};
  for (const auto& file : files) {
    SCOPED_TRACE(file.content.substr(0, 60));
    ASSERT_EQ(ReadDeviceListOldAxis(0), 0);
    PutList(kNew, file.content);
    const bool good = file.rows < 0;
    EXPECT_EQ(ReadDeviceListNewAxis(0), good ? 0 : 1);
    EXPECT_EQ(DevListMissing[0], !good);
    EXPECT_EQ(Boxes(), good ? Names{} : Names{NoListBox()[0] + "\n\n" + file.fault});
    if (good) continue;
    EXPECT_EQ(DeviceList[0].RowCount, file.rows);
    EXPECT_TRUE(DeviceList[0].Sizes.empty() && DeviceList[0].Speeds.empty());
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
    EXPECT_EQ(Boxes(), Names{words}) << numbers;
    EXPECT_EQ(DeviceList[0].RowCount, 2);
    EXPECT_EQ(DeviceList[0].Speeds.size() + DeviceList[0].Sizes.size(), 1u);
  }
}

TEST_F(DeviceListTest, AMissingListEndsTheReadAtTheFirstAxis) {
  virt.files.Remove(ProgramFile(kNew));
  EXPECT_EQ(ReadDeviceListNew(), 1);
  EXPECT_EQ(Boxes(), NoListBox());
  EXPECT_TRUE(DevListMissing[0]);
  EXPECT_FALSE(DevListMissing[1]);

  ASSERT_EQ(ReadDeviceListOld(), 0);
  EXPECT_FALSE(DevListMissing[0]);
  DevSetting[2].Series = "NB";
  EXPECT_EQ(ReadDeviceListOld(), 1);
  EXPECT_EQ(Boxes(), NoListBox());
  EXPECT_FALSE(DevListMissing[1]);
  EXPECT_TRUE(DevListMissing[2]);
  EXPECT_EQ(DeviceList[2].RowCount, 0);
  EXPECT_FALSE(DevListMissing[3]);
}

TEST_F(DeviceListTest, LookupsReadTheFileAfresh) {
  PutList(kNew, "2\r\n\" 28L-100\",2,400,1,0\r\n\"E35L-050\",4,192,2,1\r\n");
  const struct {
    const char *size, *speed;
    int stroke;
    bool found;
    int lead, ppr, pg, v;
  } rows[] = {{" 28", "L", 100, true, 2, 400, 1, 0},  {"E35", "L", 50, true, 4, 192, 2, 1},
              {"28", "L", 100, false, 0, 0, 99, 99},  {" 28", "L", 101, false, 0, 0, 99, 99},
              {" 28", "H", 100, false, 0, 0, 99, 99}, {"", "", 0, false, 0, 0, 99, 99}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.size);
    DeviceLookup = DeviceLookupRecord{};
    EXPECT_EQ(FindDeviceNew(row.size, row.speed, row.stroke), row.found ? 0 : 1);
    EXPECT_EQ(GetLeadAndPprNew(row.size, row.speed, row.stroke), row.found ? 0 : 1);
    EXPECT_EQ(DeviceLookup.Lead, row.lead);
    EXPECT_EQ(DeviceLookup.Ppr, row.ppr);
    EXPECT_EQ(GetPgKindNew(row.size, row.speed, row.stroke), row.pg);
    EXPECT_EQ(GetVKindNew(row.size, row.speed, row.stroke), row.v);
  }
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(DeviceList[0].RowCount, 0);  // the memory copy is not theirs

  PutList(kNew, "1\r\n\" 28L-100\",6,400,0,0\r\n");
  ASSERT_EQ(GetLeadAndPprNew(" 28", "L", 100), 0);
  EXPECT_EQ(DeviceLookup.Lead, 6);

  PutList(kNew, "2\r\n\" 28L-100\",6,400,0,0\r\n");
  EXPECT_EQ(FindDeviceNew(" 28", "L", 100), 1);
  EXPECT_EQ(GetPgKindNew(" 28", "L", 100), 99);
  EXPECT_EQ(GetVKindNew(" 28", "L", 100), 99);
  const std::string reason = "\n\n" + Text(6332, "2", kNew), in_short = Text(15) + reason;
  EXPECT_EQ(Boxes(), (Names{in_short, in_short, in_short}));
  EXPECT_EQ(GetLeadAndPprNew(" 28", "L", 100), 1);
  EXPECT_EQ(Boxes(), Names{NoListBox()[0] + reason});
}

TEST_F(DeviceListTest, LeadsComeFromTheList) {
  ASSERT_EQ(ReadDeviceListOld(), 0);
  for (DevSettingRecord& device : DevSetting) {
    device.Size = " 28";
    device.Speed = "H";
    device.Stroke = 100;
    device.Ppr = 400;
  }
  AppState.AxisMuko[3] = True;
  AppState.StrokePulse = {4000, 4000, 4000, 4000};
  SetLeadFromOldList();
  EXPECT_TRUE(Boxes().empty());
  for (int axis = 0; axis < 3; ++axis) {
    EXPECT_EQ(DevSetting[axis].Lead, 6);
    EXPECT_EQ(DevSetting[axis].MmPerPulse, 0.015);
    EXPECT_EQ(AppState.StrokeMm[axis], 60);
  }
  EXPECT_EQ(DevSetting[3].Lead, 0);
  EXPECT_EQ(AppState.StrokeMm[3], 0);

  // One unknown device: the others have theirs, and the strokes wait.
  DevSetting[0].Stroke = 123;
  DevSetting[1].Speed = "L";
  SetLeadFromOldList();
  EXPECT_EQ(Boxes(), Names{Text(17)});
  EXPECT_EQ(DevSetting[0].Lead, 6);
  EXPECT_EQ(DevSetting[1].Lead, 2);
  EXPECT_EQ(AppState.StrokeMm[1], 60);
}

}  // namespace
}  // namespace tr7
