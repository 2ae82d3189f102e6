#include "device/unit_conversion.h"

#include <cmath>

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
  const auto expect_pulses = [](double mm, int down, int up) {
    EXPECT_EQ(SnapMmToPulse(6, 0, 800, mm), down * 0.0075) << mm;
    EXPECT_EQ(SnapMmToPulse(6, 1, 800, mm), up * 0.0075) << mm;
  };
  expect_pulses(0.00375, 0, 1);
  expect_pulses(0.0037496, 0, 0);   // 0.49995 of a pulse rounds to 0.4999
  expect_pulses(0.00374975, 0, 0);  // 0.49997 counts as the tie: half added still cuts to 0
  expect_pulses(0.00375025, 0, 1);  // 0.50003 counts as the tie
  expect_pulses(0.0037508, 1, 1);   // 0.50011 is above
  expect_pulses(100.005, 13334, 13334);
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

TEST_F(UnitConversion, MillimetresAreCut) {
  const std::pair<const char*, double> typed[] = {
      {"12.34567", 12.345},       {"12345678", 1234567}, {"1234567.9", 1234567}, {"0.9999", 0.999},
      {"123456.789", 123456.789}, {"-1.23456", -1.234},  {"1 2.5", 12.5},        {"abc", 0}};
  for (const auto& [text, mm] : typed) EXPECT_EQ(CutMmText(text), mm) << text;
  const std::pair<double, double> computed[] = {
      {0.0075, 0.007}, {0.99996, 1}, {0.9999, 0.999}, {100.005, 100.005}, {0.1, 0.1}};
  for (const auto& [mm, cut] : computed) EXPECT_DOUBLE_EQ(CutComputedMm(mm), cut) << mm;
}

TEST_F(UnitConversion, StrokeInPulsesIsCarriedUp) {
  EXPECT_EQ(StrokeToPulse(90, 6, 800), 12000);
  EXPECT_EQ(StrokeToPulse(100, 6, 800), 13334);
  EXPECT_EQ(StrokeToPulse(13333.04, 1, 1), 13333);
  EXPECT_EQ(StrokeToPulse(13333.05, 1, 1), 13334);
  EXPECT_EQ(StrokeToPulse(13333.96, 1, 1), 13334);
  EXPECT_EQ(StrokeToPulse(32767, 1, 32767), 1073676289);
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

TEST_F(UnitConversion, SpeedOfAnAxisInUse) {
  const auto speed = [](int lead, int ppr) {
    AppState.MaxVel.fill(5);
    DevSetting[0].Lead = static_cast<std::int16_t>(lead);
    DevSetting[0].Ppr = ppr;
    const bool failed = CalcMaxVel() != 0;
    EXPECT_EQ(failed, AppState.MaxVel[0] == 5) << lead;
    return AppState.MaxVel[0];
  };
  EXPECT_EQ(speed(6, 800), 75);
  EXPECT_EQ(speed(3, 800), 38);
  EXPECT_EQ(speed(1, 800), 12);
  EXPECT_EQ(speed(2, 192), 104);
  EXPECT_EQ(speed(1310, 400), 32750);
  EXPECT_TRUE(speed(1311, 400) == 5 && speed(1310, 200) == 5 && speed(6, 0) == 5) << "refused";
}

TEST_F(UnitConversion, SpeedOfAnAxisNotInUseFollowsItsDevice) {
  AppState.AxisMuko[0] = True;
  const std::pair<std::string, int> speeds[] = {
      {"   D", 30},  {" 99L", 75},  {" 42D", 400}, {" 50L", 100}, {" 28L", 50}, {" 50H", 300},
      {" 28H", 150}, {" 35H", 150}, {" 42H", 200}, {"E35H", 200}, {" 20D", 77}};
  for (const auto& [device, vel] : speeds) {
    AppState.MaxVel[0] = 77;
    DevSetting[0].Size = device.substr(0, 3);
    DevSetting[0].Speed = device.substr(3);
    ASSERT_EQ(CalcMaxVel(), 0);
    EXPECT_EQ(AppState.MaxVel[0], vel) << device;
  }
  EXPECT_EQ(SpeedLimit(0), 30);
  EXPECT_EQ(SpeedLimit(1), 75);
  SetDevice(DevSetting[1], " 42", "D", 100);
  EXPECT_EQ(SpeedLimit(1), 400);
}

}  // namespace
}  // namespace tr7
