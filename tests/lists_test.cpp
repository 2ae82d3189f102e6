// The list files that the program brings along agree with one another and with the simulator.

#include <cmath>
#include <set>

#include "base/seq_file.h"
#include "device/dev_setting_store.h"
#include "device/unit_conversion.h"
#include "para/para_check.h"
#include "para/std_lists.h"
#include "para/std_table.h"
#include "prog/vocabulary.h"
#include "sim/setup.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class Lists : public StateTest {
 protected:
  /// The rows of a shipped catalogue.
  std::vector<DeviceRecord> Catalogue(bool new_type) {
    EXPECT_EQ(new_type ? ReadDeviceListNewAxis(0) : ReadDeviceListOldAxis(0), 0);
    const auto first = DeviceList[0].Rows.begin() + 1;
    return {first, first + DeviceList[0].RowCount};
  }
  /// The device on all four axes, in the form that settings and dialogues hold.
  static void Choose(const DeviceRecord& row, bool new_type) {
    for (int axis = 0; axis < kAxes; ++axis) {
      DevSettingRecord& device = DevSettei[axis];
      device.Size = new_type ? row.Size : " " + row.Size;
      device.Speed = row.Speed;
      device.Stroke = static_cast<std::int16_t>(row.Stroke);
      device.NewType = new_type;
      device.Vertical = False;
    }
  }
};

TEST_F(Lists, EveryDeviceHasGoodStandardValues) {
  for (const bool new_type : {true, false}) {
    std::set<std::string> seen;
    for (const DeviceRecord& row : Catalogue(new_type)) {
      SCOPED_TRACE(row.Raw);
      EXPECT_TRUE(seen.insert(row.Raw).second);
      Choose(row, new_type);
      const DevSettingRecord& device = DevSettei[0];
      EXPECT_EQ(CheckDeviceFormat(device.Size, device.Speed, device.Stroke), 0);
      for (const bool pg : {true, false}) {
        for (DevSettingRecord& pending : DevSettei) pending.WithPG = pg;
        ASSERT_EQ(IniParaFromStd(), 0);
        EXPECT_EQ(ParametaValueCheck(), 0);
        EXPECT_EQ(ParamSet.PgFunction[0], pg ? 1 : 0);
        ASSERT_EQ(IniParaFromStdForWrite(), 0);
        EXPECT_EQ(CheckParaFromStd(), 0);
      }
      const int ppr = new_type ? row.Ppr : 400;
      EXPECT_EQ(ParamSet.AxisLead[0], row.Lead);
      EXPECT_EQ(ParamSet.AxisPulse[0], ppr);
      EXPECT_EQ(ParamSet.AxisStroke[0], StrokeToPulse(row.Stroke, row.Lead, ppr));
      EXPECT_EQ(ParamSet.Actuator[0], JoinActuator(device.Size, device.Speed, device.Stroke));
      // What the fields of the parameter view take, and the speed limit of the gearing.
      EXPECT_TRUE(ParamSet.JogVel[0] <= 30 && ParamSet.HomeVel[0] <= 60 &&
                  ParamSet.HomeSeq[0] >= 1);
      EXPECT_LE(row.Lead * 25 * std::ceil(400.0 / ppr), 32767);
    }
    EXPECT_EQ(StdTable[0].size(), seen.size());
    std::set<double> orders;  // of homing
    for (const StdRow& row : StdTable[0]) orders.insert(row.Values[6]);
    EXPECT_EQ(orders, (std::set<double>{1, 2, 3, 4}));
  }
}

TEST_F(Lists, CommandsStandAtTheirCodes) {
  std::string text;
  ASSERT_TRUE(ReadTextFile(ProgramFile("Command.lst"), text).ok);
  SeqReader reader(std::move(text));
  int count = 0;
  ASSERT_TRUE(reader.ReadInteger(0, 99, count));
  std::vector<std::string> names(static_cast<std::size_t>(count));
  for (std::string& name : names) ASSERT_TRUE(reader.ReadText(name));
  EXPECT_TRUE(reader.AtEnd());
  ASSERT_EQ(count, 58);
  EXPECT_EQ(names[1] + names[5] + names[39], "HOMEPGRMVD");
  for (int code = 0; code < count; ++code) {
    const std::string_view name = RuleOfCode(code)->name;
    EXPECT_TRUE(name.empty() || name == names[static_cast<std::size_t>(code)]) << name;
  }
}

}  // namespace
}  // namespace tr7
