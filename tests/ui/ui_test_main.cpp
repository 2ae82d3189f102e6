#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <string_view>

#include "core/install_views.h"
#include "tests/ui/killed_tool.h"
#include "ui/look.h"

int main(int argc, char** argv) {
  // What the plugin for screens that nobody sees has to say of itself is left out.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith("This plugin does not")) std::fprintf(stderr, "%s\n", qPrintable(text));
  });
  ::testing::InitGoogleTest(&argc, argv);
  // A screen that nobody sees, of the size that the tool is made for.
  if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen") {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TR7_SOURCE_DIR "/tests/ui/screen.json");
  }
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(*qApp);
  tr7::InstallViews();
  if (argc == 4 && std::string_view(argv[1]) == "--jog-until-killed") {
    return tr7::JogUntilKilled(argv + 2);
  }
  if (argc == 3 && std::string_view(argv[1]) == "--edit-until-killed") {
    return tr7::EditUntilKilled(argv[2]);
  }
  return RUN_ALL_TESTS();
}
