#include "state/settings.h"

#include <string>

#include "forms/frm_main.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class SettingsTest : public StateTest {
 protected:
  void Put(const std::string& key, const std::string& value) {
    virt.settings.Set("Settings", key, value);
  }
};

TEST_F(SettingsTest, MotionSettingsAndTheirCorrections) {
  struct Case {
    const char* key;
    std::int16_t AppStateRecord::*field;
    const char* stored;
    int expected;
  };
  const Case cases[] = {{"VelOf100Pls", &AppStateRecord::VelOf100Pls, nullptr, 20},
                        {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "60", 60},
                        {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "61", 1},
                        {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "fast", 1},
                        {"AccOf100Pls", &AppStateRecord::AccOf100Pls, "-1", -1},
                        {"AccOf100Pls2", &AppStateRecord::AccOf100Pls2, "0", 0},
                        {"AccOfJog", &AppStateRecord::AccOfJog, "4", 1},
                        {"AccOfJog2", &AppStateRecord::AccOfJog2, nullptr, 2},
                        {"AccOfJog2", &AppStateRecord::AccOfJog2, "0", 1}};
  for (const Case& c : cases) {
    virt.settings.values.clear();
    if (c.stored) Put(c.key, c.stored);
    LoadMotionSettings();
    EXPECT_EQ(AppState.*c.field, c.expected) << c.key << " = " << (c.stored ? c.stored : "absent");
  }
}

TEST_F(SettingsTest, StartSettingsAndTheirDefaults) {
  virt.settings.values.clear();
  LoadDefaults();
  LoadSettingDispMmUnit();
  EXPECT_EQ(AppState.LangOffset, 0);
  EXPECT_EQ(AppState.PortNo, 1);
  EXPECT_TRUE(AppState.PortOccupy && AppState.MmRoundUp && AppState.DispMmUnit);

  Put("Language", "2");
  Put("PortNo", "10");
  for (const char* key : {"PortOccupy", "MmRoundUp", "DispMmUnit"}) Put(key, "0");
  LoadDefaults();
  LoadSettingDispMmUnit();
  EXPECT_EQ(AppState.LangOffset, 10000);
  EXPECT_EQ(AppState.PortNo, 1) << "outside 1 to 9";
  EXPECT_FALSE(AppState.PortOccupy || AppState.MmRoundUp || AppState.DispMmUnit);
}

TEST_F(SettingsTest, TheWindowsRectangleGoesToTheStore) {
  frmMain.Left = -12.5;
  frmMain.Top = 30;
  frmMain.Width = 15240;
  frmMain.Height = 11000;
  frmMain.Maximised = true;
  AppState.PortNo = 4;
  SaveSettingsAtExit();
  std::string stored;
  for (const char* key :
       {"MainMaximised", "MainLeft", "MainTop", "MainWidth", "MainHeight", "PortNo"}) {
    stored += virt.settings.Get("Settings", key, "") + " ";
  }
  EXPECT_EQ(stored, "1 -12.5 30 15240 11000 4 ");
}

}  // namespace
}  // namespace tr7
