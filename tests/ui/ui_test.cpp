#include "tests/ui/ui_test.h"

#include <QCoreApplication>
#include <QTimer>

#include "core/main_entry.h"
#include "core/reset_state.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "ui/grid_table.h"

namespace tr7 {

UiTest::FreshState::FreshState() {
  ResetState();
  UseJapanese(false);
}

UiTest::UiTest(const QString& settings)
    : desktop(
          {settings.isEmpty() ? folder.filePath("settings.ini") : settings, false, QLocale::c()}),
      user(desktop.forms) {}

void UiTest::UseJapanese(bool japanese) {
  AppState.LanguageNo = japanese ? 1 : 2;
  AppState.LangOffset = japanese ? 0 : 10000;
}

void UiTest::StartOffline(bool program_mode) {
  desktop.settings.Set("Settings", "Language", AppState.LanguageNo == 1 ? "1" : "2");
  user.on_modal["frmSelection"] =
      user.on_modal["frmSelection2"] = [this, program_mode](View& view) {
        auto& selection = static_cast<SelectionView&>(view);
        const bool of_mode = selection.lblPrompt.Caption == Text(74);
        selection.options[of_mode ? program_mode : 1]->Press();
        LookAtChoice(view);
        selection.cmdOk.Press();
      };
  frmSplash.timerSplash.Interval = 10;
  Main();
  ASSERT_TRUE(AppState.Offline && AppState.CtMode == program_mode);
  Settle();
}

bool UiTest::Until(const std::function<bool()>& holds, int ms) {
  bool over = false;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&over] { over = true; });
  timer.setSingleShot(true);
  timer.start(ms);
  while (!holds() && !over) Pump();
  return holds();
}

void UiTest::WaitMs(int ms) {
  Until([] { return false; }, ms);
}

void UiTest::PressKeys(GridTable& table, const char* keys) {
  for (const QString& name : QString(keys).split(' ')) {
    const QKeyCombination key = QKeySequence::fromString(name)[0];
    QWidget* target = &table;
    if (table.Editor()) target = table.Editor();
    name.size() == 1 ? QTest::keyClick(target, name[0].toLatin1())
                     : QTest::keyClick(target, key.key(), key.keyboardModifiers());
    Settle();
  }
}

void UiTest::Activate(QWidget& widget) {
  widget.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(widget.window()));
}

void UiTest::Settle() {
  desktop.forms.Push();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

}  // namespace tr7
