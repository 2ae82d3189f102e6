#include <QApplication>
#include <QCommandLineParser>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "ui/desktop.h"
#include "ui/look.h"

namespace {

tr7::Profile ProfileOf(const QCoreApplication& application) {
  const QCommandLineOption demo("demo", "Settings of its own; port 1 is the simulated controller.");
  const QCommandLineOption settings("settings", "Settings in this file.", "file");
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions({demo, settings});
  parser.process(application);
  return {parser.value(settings), parser.isSet(demo)};
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(application);
  tr7::Desktop desktop(ProfileOf(application));
  tr7::InstallViews();
  tr7::Main();
  return desktop.forms.Ended() ? 0 : QApplication::exec();
}
