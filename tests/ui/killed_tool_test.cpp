// The tool dies or freezes while an axis runs: the guard beside it stops the axis.

#include "tests/ui/killed_tool.h"

#include <signal.h>

#include <QThread>
#include <random>

#include "core/main_entry.h"
#include "forms/frm_splash.h"
#include "tests/ui/sim_process.h"
#include "tests/ui/ui_test.h"

namespace tr7 {

int JogUntilKilled(char** arguments) {
  Desktop desktop({arguments[1], false, QLocale::c()});
  const ScreenUser user(desktop.forms);  // goes online, as proposed
  doors.settings->Set("Settings", "PortDevice1", arguments[0]);
  frmSplash.timerSplash.Interval = 10;
  Main();
  AppState.HomeDone = True;
  frmPosi.SSTabCommand().Selected = 2;
  frmPosi.SSTabCommand().Click();
  frmPosi.Teach.cmdJOGST.Press();
  if (!frmPosi.Teach.cmdJOG[1].Hold()) return 1;
  return QApplication::exec();
}

namespace {

constexpr int kLongestStartMs = 10'000, kLongestStopMs = 3'000, kStepMs = 10;

bool Moves(SimProcess& sim) { return sim.Tell("status").find("moving") != std::string::npos; }

bool Comes(SimProcess& sim, bool moving, int ms) {
  for (; ms > 0 && Moves(sim) != moving; ms -= kStepMs) QThread::msleep(kStepMs);
  return Moves(sim) == moving;
}

TEST(KilledTool, NoAxisRunsOn) {
  const int times = std::max(qEnvironmentVariableIntValue("TR7_KILLS"), 1);
  std::mt19937 random(std::random_device{}());
  for (const int how : {SIGTERM, SIGINT, SIGSEGV, SIGABRT, SIGKILL, SIGSTOP}) {
    for (int i = 0; i < times; ++i) {
      SCOPED_TRACE(how);
      const QTemporaryDir folder;
      SimProcess sim(TR7_SIM_PROGRAM, {"--homed"});
      QProcess tool;
      tool.start(QCoreApplication::applicationFilePath(),
                 {"--jog-until-killed", QString::fromStdString(sim.Path()),
                  folder.filePath("settings.ini")});
      ASSERT_TRUE(Comes(sim, true, kLongestStartMs)) << "it does not jog";
      QThread::msleep(random() % 400);
      ASSERT_TRUE(Moves(sim));
      ASSERT_EQ(kill(static_cast<pid_t>(tool.processId()), how), 0);
      EXPECT_TRUE(Comes(sim, false, kLongestStopMs));
      tool.kill();
      ASSERT_TRUE(tool.waitForFinished());
    }
  }
}

}  // namespace
}  // namespace tr7
