#include "device/unit_conversion.h"

#include <cmath>
#include <tuple>

#include "base/text_helpers.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class UnitConversion : public StateTest {
 protected:
  UnitConversion() {
    for (DevSettingRecord& device : DevSetting) {
      SetDevice(device, " 28", "H", 100);
      device.Lead = 6;
      device.Ppr = 800;
    }
  }
};

TEST_F(UnitConversion, PulsesAndMillimetres) {
  EXPECT_EQ(PulseToMm(6, 800, 1), 0.0075);
  EXPECT_EQ(MmToPulse(6, 800, 100), 13333);
  EXPECT_EQ(MmToPulse(4, 400, 0.005), 0);  // half a pulse: to the even neighbour below
  EXPECT_EQ(MmToPulse(4, 400, 0.015), 2);  // one and a half: above
  EXPECT_EQ(MmToPulse(4, 400, -0.015), -2);
  for (int pulses = 0; pulses <= 262143; pulses += 7) {
    ASSERT_EQ(MmToPulse(6, 800, *PulseToMm(6, 800, pulses)), pulses);
  }
}

TEST_F(UnitConversion, FailuresAreResults) {
  EXPECT_FALSE(PulseToMm(6, 0, 10) || MmToPulse(0, 800, 10) || MmToPulse(1e-300, 1e300, 1e300));
  EXPECT_FALSE(SnapMmToPulse(0, 1, 800, 1) || SnapMmToPulse(6, 1, 0, 1));
  EXPECT_FALSE(SnapMmToPulse(6, 0, 800, std::nan("")));
  EXPECT_FALSE(StrokeToPulse(100, 0, 800) || StrokeToPulse(1e9, 1, 1e9));
}

TEST_F(UnitConversion, SnappingDecidesTheTieByMode) {
  const struct {
    double mm;
    int down, up;  ///< pulses in mode 0 and 1
  } rows[] = {{0.003, 0, 0},          {0.00375, 0, 1},
              {0.004, 1, 1},          {0.0037496, 0, 0},  // 0.49995 of a pulse rounds to 0.4999
              {0.00374975, 0, 0},  // 0.49997 counts as the tie: half added still cuts to 0
              {0.00375025, 0, 1},  // 0.50003 counts as the tie
              {0.0037508, 1, 1},   // 0.50011 is above
              {100.005, 13334, 13334}};
  for (const auto& row : rows) {
    EXPECT_EQ(SnapMmToPulse(6, 0, 800, row.mm), row.down * 0.0075) << row.mm;
    EXPECT_EQ(SnapMmToPulse(6, 1, 800, row.mm), row.up * 0.0075) << row.mm;
  }
}

TEST_F(UnitConversion, ASnappedValueIsThatManyPulses) {
  for (const double ppr : {192.0, 384.0, 400.0, 800.0}) {
    for (const double lead : {2.0, 6.0, 12.0}) {
      for (int pulses = 0; pulses < 60000; pulses += 11) {
        const auto snapped = SnapMmToPulse(lead, 1, ppr, Val(FormatMm(pulses * lead / ppr)));
        ASSERT_TRUE(snapped);
        ASSERT_EQ(MmToPulse(lead, ppr, *snapped), pulses) << lead << ' ' << ppr;
      }
    }
  }
}

TEST_F(UnitConversion, TypedTextIsCut) {
  const struct {
    const char* typed;
    double mm;
  } rows[] = {{"12.34567", 12.345},
              {"12345678", 1234567},
              {"1234567.9", 1234567},
              {"0.9999", 0.999},
              {"123456.789", 123456.789},
              {"-1.23456", -1.234},
              {"", 0},
              {"1 2.5", 12.5},
              {"abc", 0}};
  for (const auto& row : rows) EXPECT_EQ(CutMmText(row.typed), row.mm) << row.typed;
}

TEST_F(UnitConversion, ComputedValueIsCut) {
  const struct {
    double mm, cut;
  } rows[] = {{0.0075, 0.007}, {0.99996, 1}, {0.9999, 0.999}, {100.005, 100.005}, {0.1, 0.1}};
  for (const auto& row : rows) EXPECT_DOUBLE_EQ(CutComputedMm(row.mm), row.cut) << row.mm;
}

TEST_F(UnitConversion, StrokeInPulsesIsCarriedUp) {
  const struct {
    double stroke, lead, ppr;
    int pulses;
  } rows[] = {{90, 6, 800, 12000},     {0, 6, 800, 0},
              {13333.05, 1, 1, 13334}, {13333.04, 1, 1, 13333},
              {13333.1, 1, 1, 13334},  {13333.95, 1, 1, 13334},
              {13333.96, 1, 1, 13334}, {32767, 1, 32767, 1073676289}};
  for (const auto& row : rows) {
    EXPECT_EQ(StrokeToPulse(row.stroke, row.lead, row.ppr), row.pulses) << row.stroke;
  }
}

TEST_F(UnitConversion, LimitsOfTheAxes) {
  AppState.AxisMuko[2] = True;
  for (auto* limits : {&AppState.StrokePulse, &AppState.MaxMm, &AppState.StrokeMm}) limits->fill(5);
  AppState.MaxPulse.fill(5);
  DevSetting[1].Stroke = 90;
  ASSERT_EQ(Culc_MaxPulse(), 0);
  EXPECT_EQ(AppState.MaxPulse, (AxisArray<std::int32_t>{13334, 12000, 0, 13334}));
  EXPECT_EQ(AppState.StrokePulse, (AxisArray<double>{13334, 12000, 0, 13334}));
  ASSERT_EQ(CalcMaxMm(), 0);
  AppState.StrokePulse[1] = 1;
  ASSERT_EQ(CalcStrokeMm(), 0);
  EXPECT_EQ(AppState.MaxMm[1], 90);
  EXPECT_EQ(AppState.MaxMm[2], 5);
  EXPECT_NEAR(AppState.MaxMm[0], 100.0045, 0.0006);
  EXPECT_EQ(AppState.StrokeMm[1], 0.007);
  EXPECT_EQ(AppState.StrokeMm[2], 5);
}

TEST_F(UnitConversion, AFailedLimitStoresNothing) {
  const auto limits = [] {
    return std::tuple(AppState.MaxPulse, AppState.StrokePulse, AppState.MaxMm, AppState.MaxVel,
                      AppState.StrokeMm);
  };
  const auto before = limits();
  DevSetting[3].Lead = 0;
  EXPECT_EQ(Culc_MaxPulse(), 1);
  DevSetting[3].Lead = 6;
  DevSetting[3].Ppr = 0;
  const auto all = {CalcMaxMm, CalcMaxVel, CalcStrokeMm};
  for (const auto calculate : all) EXPECT_EQ(calculate(), 1);
  EXPECT_EQ(limits(), before);
  AppState.AxisMuko[3] = True;
  EXPECT_EQ(Culc_MaxPulse(), 0);
  for (const auto calculate : all) EXPECT_EQ(calculate(), 0);
}

TEST_F(UnitConversion, SpeedOfAnAxisInUse) {
  const struct {
    std::int16_t lead, ppr;
    int result;
    int vel;
  } rows[] = {{6, 800, 0, 75}, {1310, 400, 0, 32750}, {1311, 400, 1, 5}, {1310, 200, 1, 5},
              {3, 800, 0, 38}, {1, 800, 0, 12},       {2, 192, 0, 104},  {6, 0, 1, 5}};
  for (const auto& row : rows) {
    AppState.MaxVel.fill(5);
    DevSetting[0].Lead = row.lead;
    DevSetting[0].Ppr = row.ppr;
    EXPECT_EQ(CalcMaxVel(), row.result) << row.lead << '/' << row.ppr;
    EXPECT_EQ(AppState.MaxVel[0], row.vel) << row.lead << '/' << row.ppr;
  }
}

TEST_F(UnitConversion, SpeedOfAnAxisNotInUseFollowsItsDevice) {
  const struct {
    const char* size;
    const char* speed;
    int vel;
  } rows[] = {{"   ", "D", 30},  {" 99", "L", 75},  {" 42", "D", 400}, {" 50", "L", 100},
              {" 28", "L", 50},  {" 50", "H", 300}, {" 28", "H", 150}, {" 35", "H", 150},
              {" 42", "H", 200}, {"E35", "H", 200}, {" 20", "D", 77}};
  AppState.AxisMuko[0] = True;
  for (const auto& row : rows) {
    AppState.MaxVel[0] = 77;
    DevSetting[0].Size = row.size;
    DevSetting[0].Speed = row.speed;
    ASSERT_EQ(CalcMaxVel(), 0);
    EXPECT_EQ(AppState.MaxVel[0], row.vel) << row.size << row.speed;
  }
  EXPECT_EQ(SpeedLimit(0), 30);
  EXPECT_EQ(SpeedLimit(1), 75);
  SetDevice(DevSetting[1], " 42", "D", 100);
  EXPECT_EQ(SpeedLimit(1), 400);
}

}  // namespace
}  // namespace tr7
