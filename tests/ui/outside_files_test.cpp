// Files that come from outside: a later start, and what is dropped on the frame.

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QUrl>

#include "forms/frm_grp.h"
#include "state/message_box.h"
#include "tests/ui/ui_test.h"
#include "ui/first_start.h"

namespace tr7 {
namespace {

class OutsideFilesTest : public UiTest {
 protected:
  void LookAtChoice(View&) override { EXPECT_FALSE(frmGrp.Visible); }
  QString Settings() { return folder.filePath("settings.ini"); }
};

TEST_F(OutsideFilesTest, ALaterStartHandsItsFileToTheOneThatIsOpen) {
  QString given;
  {
    FirstStart first(Settings()), second(Settings());
    EXPECT_FALSE(second.HandOver("/a.qvd"));
    first.Listen([&](const QString& file) { given = file; });
    second.Listen([](const QString&) { FAIL() << "there is one already"; });
    EXPECT_FALSE(FirstStart(folder.filePath("other.ini")).HandOver("/b.qvd"));
    EXPECT_TRUE(FirstStart(Settings()).HandOver("/c.qvd"));
    EXPECT_TRUE(Until([&] { return !given.isEmpty(); }));
    EXPECT_EQ(given, "/c.qvd");
  }
  EXPECT_FALSE(FirstStart(Settings()).HandOver("/d.qvd"));
}

TEST_F(OutsideFilesTest, AFileOpensInItsViewOnceNothingStandsAgainstIt) {
  const QString path = folder.filePath("a.grp");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("\"QV-R7\",\"GRP\"\r\n99,2\r\n\"2\",10,25\r\n");
  file.close();
  desktop.outside.Add({path});
  StartOffline();
  const auto opened = [] { return frmGrp.Visible; };
  EXPECT_TRUE(Until(opened));
  frmGrp.cmdClose.Press();
  user.on_box = [&](const std::string&) {
    desktop.outside.Add({path});
    WaitMs(50);
    EXPECT_TRUE(!opened() && frmMain.sbStatusBar.Panels[kPanelError] == Text(7170, "a.grp"));
    return MsgAnswer::Ok;
  };
  MsgBox("question");
  user.on_box = nullptr;
  EXPECT_TRUE(Until(opened));
  frmGrp.cmdClose.Press();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path)});
  QWidget* frame = desktop.forms.WidgetOf(frmMain.lblStatus)->window();
  QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(frame, &enter);
  QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(frame, &drop);
  EXPECT_TRUE(Until(opened));
}

}  // namespace
}  // namespace tr7
