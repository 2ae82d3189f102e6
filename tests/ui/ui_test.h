#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"
#include "tests/ui/screen_user.h"
#include "ui/desktop.h"

namespace tr7 {

class GridTable;

/// The desktop's doors on a screen that nobody sees: start values, English, settings of its own.
class UiTest : public ::testing::Test {
 protected:
  /// On this settings file; on one of its own where none is named.
  explicit UiTest(const QString& settings = {});

  /// Starts the tool offline, in English unless Japanese is in use, with the devices proposed.
  void StartOffline(bool program_mode = false);
  /// What a test has to look at while a choice of the start stands.
  virtual void LookAtChoice(View&) {}
  /// Texts of the language from here on; views that are shown keep theirs.
  static void UseJapanese(bool japanese);
  /// Serves events and ticks until it holds; false when that takes longer than `ms`.
  bool Until(const std::function<bool()>& holds, int ms = 5000);
  /// Serves events and ticks for so long.
  void WaitMs(int ms);
  /// Keys by their names, "Shift+Down Return $", to whatever has them: the open editor, else the
  /// grid.
  void PressKeys(GridTable& table, const char* keys);
  /// Brings the widget's window to the front.
  static void Activate(QWidget& widget);
  /// Draws what the records hold and serves the events that this makes.
  void Settle();

 private:
  struct FreshState {
    FreshState();
  };
  FreshState fresh_;

 protected:
  QTemporaryDir folder;
  Desktop desktop;
  ScreenUser user;
};

/// One start of the tool among several.
struct OneStart : UiTest {
  explicit OneStart(const QString& settings = {}) : UiTest(settings) {}
  using UiTest::folder, UiTest::desktop, UiTest::user, UiTest::StartOffline;
  void TestBody() override {}
};

}  // namespace tr7
