#include <QApplication>
#include <QCommandLineParser>
#include <algorithm>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "ui/desktop.h"
#include "ui/look.h"

namespace {

const QCommandLineOption kDemo("demo", "Settings of its own; port 1 is the simulated controller.");
const QCommandLineOption kSettings("settings", "Settings in this file.", "file");

/// Ends the process on --help and --version, and on an option that there is not.
tr7::Profile ProfileOf(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({kDemo, kSettings});
  parser.process(application);
  return {parser.value(kSettings), parser.isSet(kDemo), QLocale::system()};
}

/// These are answered also where there is no screen to draw on.
bool AsksForWords(int argc, char** argv) {
  return std::any_of(argv + std::min(argc, 1), argv + argc, [](std::string_view argument) {
    constexpr std::string_view kWords[] = {"-h", "--help", "--help-all", "-v", "--version"};
    return std::find(std::begin(kWords), std::end(kWords), argument) != std::end(kWords);
  });
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationVersion(QString::fromStdString(tr7::VersionText()));
  if (AsksForWords(argc, argv)) ProfileOf(QCoreApplication(argc, argv));
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(application);
  tr7::Desktop desktop(ProfileOf(application));
  tr7::InstallViews();
  tr7::Main();
  return desktop.forms.Ended() ? 0 : QApplication::exec();
}
