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
    auto first = std::make_unique<FirstStart>(Settings());
    FirstStart second(Settings());
    EXPECT_FALSE(second.HandOver("/a.qvd"));
    first->Listen([&](const QString& file) { given = file; });
    second.Listen([&](const QString& file) { given = "second: " + file; });
    EXPECT_FALSE(FirstStart(folder.filePath("other.ini")).HandOver("/b.qvd"));
    EXPECT_TRUE(FirstStart(Settings()).HandOver("/c.qvd"));
    EXPECT_TRUE(Until([&] { return !given.isEmpty(); }));
    EXPECT_EQ(given, "/c.qvd");
    first.reset();
    EXPECT_TRUE(Until([&] { return FirstStart(Settings()).HandOver("/e.qvd"); }));
    EXPECT_TRUE(Until([&] { return given == "second: /e.qvd"; }));
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
    std::string& panel = frmMain.sbStatusBar.Panels[kPanelError];
    EXPECT_TRUE(!opened() && panel == Text(7170, "a.grp"));
    panel.clear();  // as any good reply does
    EXPECT_TRUE(Until([&] { return panel == Text(7170, "a.grp"); }));
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
