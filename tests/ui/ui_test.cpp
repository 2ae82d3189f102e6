#include "tests/ui/ui_test.h"

#include <QCoreApplication>
#include <QTimer>

#include "core/reset_state.h"

namespace tr7 {

UiTest::FreshState::FreshState() {
  ResetState();
  UseJapanese(false);
}

UiTest::UiTest()
    : desktop({folder.filePath("settings.ini"), false, QLocale::c()}), user(desktop.forms) {}

void UiTest::UseJapanese(bool japanese) {
  AppState.LanguageNo = japanese ? 1 : 2;
  AppState.LangOffset = japanese ? 0 : 10000;
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

void UiTest::Settle() {
  desktop.forms.Push();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents();
}

}  // namespace tr7
