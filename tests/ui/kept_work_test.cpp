// The tool is killed while its user works: the next start offers what was on the screen.

#include <signal.h>

#include <QApplication>
#include <QDateTime>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>
#include <cstdio>

#include "core/keep_work.h"
#include "forms/frm_kept_work.h"
#include "forms/frm_main.h"
#include "forms/frm_posi.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "tests/ui/killed_tool.h"
#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

constexpr int kKeepMs = 200, kEditMs = 20, kLongestStartMs = 20'000, kSlackMs = 5000;
constexpr int kFirstRow = 2, kLastRow = kPosiMaxNo + 1;

}  // namespace

int EditUntilKilled(const char* argument) {
  OneStart tool(argument);
  frmMain.TimerKeep.Interval = kKeepMs;
  tool.StartOffline();
  SetLoadedPosiRange({1, kPosiMaxNo});
  PosiTableInit();
  FG_ShowTable();
  QTimer edits;
  QObject::connect(&edits, &QTimer::timeout, &edits, [] {
    const std::string now = std::to_string(QDateTime::currentMSecsSinceEpoch());
    for (const int row : {kFirstRow, kLastRow}) frmPosi.flgdData.TypeInto(row, kComment, now);
  });
  edits.start(kEditMs);
  while (KeepState.kept.empty()) Pump();
  std::puts("kept");
  std::fflush(stdout);
  return QApplication::exec();
}

namespace {

TEST(KilledTool, TheNextStartOffersWhatWasEditedAndNoneWhileItRuns) {
  long long oldest = 0;
  for (int left = qEnvironmentVariable("TR7_KILLS", "3").toInt(); left > 0; --left) {
    OneStart next;
    const QString settings = next.folder.filePath("settings.ini");
    UserWorkFolder other(WorkPath({settings})), another(WorkPath({settings}));
    QProcess tool;
    tool.start(QCoreApplication::applicationFilePath(), {"--edit-until-killed", settings});
    ASSERT_TRUE(tool.waitForReadyRead(kLongestStartMs));
    QThread::msleep(QRandomGenerator::global()->bounded(400));
    EXPECT_TRUE(other.TakeLeft().empty());
    const long long killed = QDateTime::currentMSecsSinceEpoch();
    ASSERT_EQ(kill(static_cast<pid_t>(tool.processId()), SIGKILL), 0);
    ASSERT_TRUE(tool.waitForFinished());
    EXPECT_EQ(other.TakeLeft().size(), 1u);
    EXPECT_TRUE(another.TakeLeft().empty()) << "the other one has it";
    other.Leave();
    next.user.on_modal["frmKeptWork"] = [](View&) { frmKeptWork.cmdTakeBackAll.Press(); };
    next.StartOffline();
    ASSERT_EQ(frmPosi.flgdData.Rows(), kLastRow + 1) << "nothing was offered";
    const std::string& edit = frmPosi.flgdData.Text(kFirstRow, kComment);
    EXPECT_EQ(frmPosi.flgdData.Text(kLastRow, kComment), edit);
    oldest = std::max(oldest, killed - std::stoll(edit));
    EXPECT_LE(oldest, kKeepMs + kSlackMs);
  }
  std::printf("at most %lld ms were lost\n", oldest);
}

}  // namespace
}  // namespace tr7
