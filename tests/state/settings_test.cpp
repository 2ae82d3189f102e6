#include "state/settings.h"

#include "state/settings_text.h"
#include "tests/support/state_test.h"

namespace tr7 {
namespace {

class SettingsTest : public StateTest {};

TEST_F(SettingsTest, WhatIsStoredIsTakenWithinItsRange) {
  const std::tuple<const char*, std::int16_t AppStateRecord::*, const char*, int> rows[] = {
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "60", 60},
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "61", 1},
      {"VelOf100Pls", &AppStateRecord::VelOf100Pls, "fast", 1},
      {"AccOf100Pls", &AppStateRecord::AccOf100Pls, "-1", -1},
      {"AccOf100Pls2", &AppStateRecord::AccOf100Pls2, "0", 0},
      {"AccOfJog", &AppStateRecord::AccOfJog, "4", 1},
      {"AccOfJog2", &AppStateRecord::AccOfJog2, "0", 1},
      {"PortNo", &AppStateRecord::PortNo, "10", 1},
      {"Language", &AppStateRecord::LangOffset, "2", 10000}};
  for (const auto& [key, field, stored, expected] : rows) {
    virt.settings.Set("Settings", key, stored);
    LoadMotionSettings();
    LoadDefaults();
    EXPECT_EQ(AppState.*field, expected) << key << " = " << stored;
  }
}

TEST_F(SettingsTest, AFileOfSettingsComesBackOrIsRefusedWithItsLine) {
  const SettingKeys keys{{"IoNameIn4", " door\n"}, {"PortNo", "2"}};
  SettingKeys here = keys;
  here["MainLeft"] = "7";
  const std::string good = SettingsAsText(here), head = good.substr(0, good.find('\n') + 1);
  EXPECT_EQ(SettingsBehindImport(keys, here), here);
  const std::pair<std::string, int> rows[] = {{good, 0},
                                              {"\xEF\xBB\xBF" + good + "\r\n", 0},
                                              {"", 1},
                                              {"[Settings]\nPortNo=2\n", 1},
                                              {head + "PortNo\n[end]\n", 2},
                                              {head + "A=\x80\n[end]\n", 2},
                                              {head + "A=1\nA=1\n[end]\n", 3},
                                              {good.substr(0, good.find("[end]")), 4},
                                              {good + "more", 5}};
  for (const auto& [text, line] : rows) {
    const SettingsRead read = ReadSettingsText(text);
    EXPECT_EQ(read.bad_line, line) << text;
    EXPECT_EQ(read.keys, line == 0 ? keys : SettingKeys()) << text;
  }
}

}  // namespace
}  // namespace tr7
