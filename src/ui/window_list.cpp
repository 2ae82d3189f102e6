#include "ui/window_list.h"

#include <QAction>
#include <QActionGroup>
#include <QMdiSubWindow>
#include <QPointer>
#include <QShortcut>
#include <utility>

#include "forms/hold_button.h"

namespace tr7 {
namespace {

constexpr int kMostWithMnemonic = 9;

/// "&1 Position Data": an ampersand of the title's own is no mnemonic.
QString EntryOf(int number, QString title) {
  title.replace('&', "&&");
  const QString digit = number > kMostWithMnemonic ? QString() : QStringLiteral("&%1 ").arg(number);
  return digit + title;
}

}  // namespace

void ListWindowsIn(QMenu& menu, QMdiArea& area, const CommandGate& gate) {
  auto* listed = new QActionGroup(&menu);
  QObject::connect(&menu, &QMenu::aboutToShow, listed, [&menu, &area, listed, gate] {
    const QList<QAction*> before = listed->actions();
    qDeleteAll(before);
    int number = 0;
    for (QMdiSubWindow* window : area.subWindowList(QMdiArea::CreationOrder)) {
      if (number == 0) listed->addAction(menu.addSeparator());
      QAction* entry = menu.addAction(EntryOf(++number, window->windowTitle()));
      listed->addAction(entry);
      entry->setCheckable(true);
      entry->setChecked(window == area.activeSubWindow());
      const QPointer<QMdiSubWindow> target(window);
      QObject::connect(entry, &QAction::triggered, target, [&area, target, gate] {
        if (target && gate()) area.setActiveSubWindow(target);
      });
    }
  });
}

void StepThroughWindows(QWidget& frame, QMdiArea& area, const CommandGate& gate) {
  const std::pair<QKeySequence, void (QMdiArea::*)()> steps[] = {
      {Qt::CTRL | Qt::Key_Tab, &QMdiArea::activateNextSubWindow},
      {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, &QMdiArea::activatePreviousSubWindow}};
  for (const auto& [key, step] : steps) {
    auto* shortcut = new QShortcut(key, &frame);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &area, [&area, step = step, gate] {
      // What that stops waits for the controller: not within the area's change of windows.
      LetGoOfHeldButton();
      if (gate()) (area.*step)();
    });
  }
}

}  // namespace tr7
