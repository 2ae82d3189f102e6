// The list files that the program brings along agree with one another and with the simulator.

#include <algorithm>
#include <cmath>
#include <set>

#include "base/seq_file.h"
#include "device/dev_setting_store.h"
#include "device/device_list.h"
#include "device/device_names.h"
#include "device/unit_conversion.h"
#include "para/para_check.h"
#include "para/param_set.h"
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

TEST_F(Lists, TheCatalogueShowsEveryKind) {
  std::set<int> pg, vertical, pprs;
  int never_vertical = 0;
  for (const DeviceRecord& row : Catalogue(true)) {
    pg.insert(row.PgKind);
    vertical.insert(row.VKind);
    never_vertical += row.VKind == 0;
    pprs.insert(row.Ppr);
    // The controller reports two digits of size, or "E" for the one size with a letter.
    EXPECT_TRUE(row.Size[0] == ' ' || row.Size + row.Speed == "E35L") << row.Raw;
    EXPECT_NE(row.Speed, "E");

    Choose(row, true);
    AppState.AxisMuko = {False, True, True, True};
    FileDevice[0] = "QV-" + row.Size + row.Speed + "-" + row.Raw.substr(5);
    EXPECT_EQ(ParseDeviceNames(), 0) << row.Raw;
    EXPECT_EQ(DevSettei[0].Stroke, row.Stroke);
  }
  EXPECT_EQ(pg, (std::set<int>{0, 1, 2}));
  EXPECT_EQ(vertical, (std::set<int>{0, 1, 2}));
  EXPECT_EQ(never_vertical, 1) << "chosen devices count as vertical: its own file asks";
  EXPECT_EQ(pprs, (std::set<int>{192, 400}));
}

TEST_F(Lists, ADeviceOfBothCataloguesIsOneDevice) {
  const std::vector<DeviceRecord> news = Catalogue(true);
  int both = 0, old_only = 0;
  for (const DeviceRecord& row : Catalogue(false)) {
    const auto twin = std::find_if(news.begin(), news.end(), [&](const DeviceRecord& other) {
      return other.Size == " " + row.Size && other.Speed == row.Speed && other.Stroke == row.Stroke;
    });
    ++(twin == news.end() ? old_only : both);
    EXPECT_TRUE(twin == news.end() || twin->Lead == row.Lead) << row.Raw;
  }
  EXPECT_GT(both, 0);
  EXPECT_EQ(old_only, 1) << "it is offered, and message 36 says why it cannot be taken";
}

TEST_F(Lists, TheSimulatorsDevicesAreCatalogued) {
  std::vector<qvr7sim::Device> devices{qvr7sim::Device{}};
  for (const qvr7sim::Device& device : qvr7sim::Setup::Useful().devices) devices.push_back(device);
  for (const qvr7sim::Device& device : devices) {
    SCOPED_TRACE(device.size + device.speed + std::to_string(device.stroke_mm));
    const std::string speed(1, device.speed);
    ASSERT_EQ(GetLeadAndPprNew(device.size, speed, device.stroke_mm), 0);
    EXPECT_EQ(DeviceLookup.Lead, device.lead);
    EXPECT_EQ(DeviceLookup.Ppr, device.ppr);
    const int kind = GetPgKindNew(device.size, speed, device.stroke_mm);
    EXPECT_TRUE(kind == 1 || kind == (device.pg == 0 ? 0 : 2));
    Choose(DeviceRecord{"", device.size, speed, device.stroke_mm}, true);
    ASSERT_EQ(IniParaFromStd(), 0);
    EXPECT_EQ(ParamSet.AxisStroke[0], qvr7sim::MaxPulses(device));
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
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 58u);

  EXPECT_EQ(names[1] + names[5] + names[39], "HOMEPGRMVD");
  for (int code = 0; code < count; ++code) {
    const std::string_view name = RuleOfCode(code)->name;
    EXPECT_TRUE(name.empty() || name == names[static_cast<std::size_t>(code)]) << name;
  }
}

}  // namespace
}  // namespace tr7
