// The manual: its pages against the views, the menus and the keys, and the ways to it.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QShortcut>
#include <QTest>

#include "core/build_facts.h"
#include "forms/frm_about.h"
#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_posi.h"
#include "forms/hold_button.h"
#include "prog/prog_view.h"
#include "state/message_box.h"
#include "state/views.h"
#include "tests/ui/ui_test.h"
#include "ui/binding.h"

namespace tr7 {
namespace {

const QDir kManual(TR7_SOURCE_DIR "/help");
const QStringList kLanguages{"ja", "en"};

QString Page(const QString& path) {
  QFile file(kManual.filePath(path));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Notes what would have been opened.
struct NotedPages : HelpViewer {
  bool Open(const std::string& path) override {
    opened = QString::fromStdString(path);
    return true;
  }
  QString opened;
};

class ManualTest : public UiTest {
 protected:
  /// Presses F1 in whatever dialogue stands, and tells the page that came.
  QString PageOfF1() {
    pages.opened.clear();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F1);
    Until([this] { return !pages.opened.isEmpty(); }, 2000);
    return pages.opened.section('/', -2);
  }
  NotedPages pages;
};

TEST(ManualPages, EveryLinkAndPictureIsThereAndEveryPageIsListed) {
  static const QRegularExpression kLink(R"re((?:href|src)="([^"#]+)")re");
  for (const QString& language : kLanguages) {
    const QDir folder(kManual.filePath(language));
    const QStringList files = folder.entryList({"*.html"});
    EXPECT_GT(files.size(), 20);
    const QString contents = Page(language + "/index.html");
    for (const QString& file : files) {
      EXPECT_TRUE(file == "index.html" || contents.contains('"' + file + '"'))
          << file.toStdString();
      auto links = kLink.globalMatch(Page(language + '/' + file));
      while (links.hasNext()) {
        const QString target = links.next().captured(1);
        EXPECT_TRUE(QFile::exists(folder.filePath(target)))
            << file.toStdString() << " -> " << target.toStdString();
      }
    }
  }
}

/// A menu's command by its caption, a button's key.
void ExpectListed(const Control& control, const QString& list) {
  static const QRegularExpression kMarks("\\(&.\\)|&|\\.\\.\\.");
  const bool menu = dynamic_cast<const Menu*>(&control) != nullptr;
  const QString caption = Q(control.Caption).remove(kMarks);
  EXPECT_TRUE(!menu || list.contains('>' + caption + '<')) << control.Name;
  const auto* button = dynamic_cast<const CommandButton*>(&control);
  const auto* held = dynamic_cast<const HoldButton*>(&control);
  const std::string key = button ? button->Key : held ? held->Key : "";
  EXPECT_TRUE(key.empty() || list.contains("<kbd>" + Q(key) + "</kbd>")) << key;
}

TEST_F(ManualTest, EveryViewHasItsPageAndEveryCommandAndKeyStandsInTheList) {
  StartOffline();
  NewProgView();
  for (int language = 0; language < 2; ++language) {
    UseJapanese(language == 0);
    const QString list = Page(kLanguages[language] + "/keys.html");
    for (View* view : AllViews()) {
      ApplyViewCaptions(*view);
      const QString page = kLanguages[language] + '/' + Q(view->HelpPage) + ".html";
      EXPECT_TRUE(kManual.exists(page)) << view->Name << ": " << page.toStdString();
      for (const Control* control : view->Controls) ExpectListed(*control, list);
    }
    const QWidget& frame = *desktop.forms.WidgetOf(frmMain.lblStatus)->window();
    for (const QAction* action : frame.findChildren<QAction*>()) {
      const QString key = action->shortcut().toString();
      const bool ours = frmMain.Find(action->objectName().toStdString()) && !key.isEmpty();
      EXPECT_TRUE(!ours || list.contains("<kbd>" + key + "</kbd>")) << key.toStdString();
    }
  }
}

TEST_F(ManualTest, F1OpensThePageOfWhatIsInFront) {
  StartOffline();
  doors.help = &pages;
  frmMain.mnuHelpContents.Press();
  EXPECT_TRUE(pages.opened.endsWith("/en/positions.html")) << pages.opened.toStdString();
  user.on_modal["frmOptions2"] = [this](View&) {
    EXPECT_EQ(PageOfF1(), "en/options.html");
    frmOptions2.cmdCancel.Press();
  };
  frmMain.mnuSettingOptions.Press();
  user.on_box = [this](const std::string&) {
    EXPECT_EQ(PageOfF1(), "en/messages.html");
    return MsgAnswer::Yes;
  };
  EXPECT_EQ(MsgBox("question", MsgButtons::YesNo), MsgAnswer::Yes);
  // What is no view names its own page.
  QWidget& part = *desktop.forms.WidgetOf(frmPosi.cmdPosiNew);
  part.setProperty(kHelpPageProperty, "simulator");
  Activate(part);
  part.setFocus();
  QTest::keyClick(part.window()->windowHandle(), Qt::Key_F1);
  EXPECT_TRUE(Until([this] { return pages.opened.endsWith("/en/simulator.html"); }));
  // A box says where there is no manual.
  user.on_box = nullptr;
  AppState.HelpFilePath = "/nowhere/help/index.html";
  frmMain.mnuHelpKeys.Press();
  EXPECT_EQ(user.boxes.back(), Text(5157, "/nowhere/help/en/keys.html"));
}

TEST_F(ManualTest, AboutCopiesAllThatItSays) {
  StartOffline();
  user.on_modal["frmAbout"] = [](View&) {
    frmAbout.cmdCopy.Press();
    frmAbout.cmdClose.Press();
  };
  frmMain.mnuHelpAbout.Press();
  const QString copied = Q(desktop.clipboard.Text());
  const QStringList expected{Q(frmMain.Caption), Q(BuildRevision()), qVersion(), "MIT License",
                             "OTHER DEALINGS IN THE"};
  for (const QString& part : expected) EXPECT_TRUE(copied.contains(part)) << part.toStdString();
}

}  // namespace
}  // namespace tr7
