#include "platform/ini_settings_store.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace tr7 {
namespace {

using namespace std::string_literals;

const std::string kPath = "/home/user/qv-dev.ini";
const std::string kSection = "Settings";

TEST(IniSettingsStore, KeepsWhatWasSet) {
  MemoryFiles files;
  const std::string values[] = {"",          "軸 1",       "28 ",  "a=b", "[x]", "say \"go\"",
                                "C:\\dir\\", "two\nlines", "\r\n", "\\n", ";"};
  for (const std::string& value : values) {
    IniSettingsStore store(files, kPath);
    EXPECT_TRUE(store.Set(kSection, "Before", "b"));
    EXPECT_TRUE(store.Set(kSection, "Key", value));
    EXPECT_TRUE(store.Set("Other", "Key", "other"));
    for (const IniSettingsStore& read : {store, IniSettingsStore(files, kPath)}) {
      EXPECT_EQ(read.Get(kSection, "Key", "fallback"), value);
      EXPECT_EQ(read.Get(kSection, "Before", "") + read.Get("Other", "Key", ""), "bother");
    }
  }
}

TEST(IniSettingsStore, DamageCostsOnlyItsOwnKeys) {
  const std::string bodies[] = {
      "[Settings]\nBad\nPortNo=3\n",
      "[Settings]\nBad=\"open\nPortNo=3\n",
      "[Settings]\nBad=\"a\"b\nPortNo=3\n",
      "[Settings]\nBad=\"a\\x\"\nPortNo=3\n",
      "[Settings]\n=x\nPortNo=3\n",
      "[Settings]\nBad=\0\0\nPortNo=1\nPortNo=3\n"s,
      "\xEF\xBB\xBF[Settings]\r\n  PortNo =  3 \r\n",
      "[Setti\nPortNo=3\n",
      "[Other]\nPortNo=1\n; note\n[Settings]\n\nPortNo=3",
  };
  for (const std::string& body : bodies) {
    MemoryFiles files;
    files.Put(kPath, body);
    const IniSettingsStore store(files, kPath);
    EXPECT_EQ(store.Get(kSection, "PortNo", "(none)"), "3") << body;
    EXPECT_EQ(store.Get(kSection, "Bad", "(none)"), "(none)") << body;
  }
}

TEST(IniSettingsStore, WhatCannotBeSavedIsKeptForThisRun) {
  MemoryFiles files;
  files.Put(kPath, "[Settings]\nPortNo=3\n");
  files.read_only = true;
  IniSettingsStore store(files, kPath);
  EXPECT_FALSE(store.Set(kSection, "PortNo", "4"));
  EXPECT_EQ(store.Get(kSection, "PortNo", ""), "4");
  files.read_only = false;
  files.FailAt(1, FileFault::NotPermitted);
  IniSettingsStore unread(files, kPath);
  EXPECT_EQ(unread.Get(kSection, "PortNo", "1"), "1");
  EXPECT_FALSE(unread.Set(kSection, "PortNo", "5")) << "a file that was not read is not replaced";
  EXPECT_EQ(files.Content(kPath), "[Settings]\nPortNo=3\n");
  EXPECT_TRUE(store.Set(kSection, "PortNo", "4")) << "once it can be written";
  EXPECT_EQ(files.Content(kPath), "[Settings]\nPortNo=4\n");
}

}  // namespace
}  // namespace tr7
