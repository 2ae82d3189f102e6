#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <algorithm>
#include <optional>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "ui/desktop.h"
#include "ui/file_drop.h"
#include "ui/first_start.h"
#include "ui/look.h"

namespace {

const QCommandLineOption kDemo("demo", "Settings of its own; port 1 is the simulated controller.");
const QCommandLineOption kSettings("settings", "Settings in this file.", "file");
const QCommandLineOption kTheme("theme", "system, light or dark; otherwise after the system.",
                                "name");

struct Arguments {
  tr7::Profile profile;
  tr7::look::Theme theme;
  QString file;  ///< to open; empty: none
};

/// None: there is none of that name.
std::optional<tr7::look::Theme> ThemeOf(const QString& name) {
  using tr7::look::Theme;
  if (name.isEmpty() || name == "system") return Theme::System;
  if (name == "light") return Theme::Light;
  return name == "dark" ? std::optional(Theme::Dark) : std::nullopt;
}

/// Ends the process on --help and --version, and on an option that there is not.
Arguments ReadArguments(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({kDemo, kSettings, kTheme});
  parser.addPositionalArgument(
      "file", "Positions, parameters, groups, macros or a program to open.", "[file]");
  parser.process(application);
  const auto theme = ThemeOf(parser.value(kTheme));
  if (!theme) parser.showHelp(2);
  return {{parser.value(kSettings), parser.isSet(kDemo), QLocale::system()},
          *theme,
          parser.positionalArguments().value(0)};
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
  if (AsksForWords(argc, argv)) ReadArguments(QCoreApplication(argc, argv));
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const Arguments arguments = ReadArguments(application);
  tr7::look::Apply(application, arguments.theme);
  tr7::FirstStart first(QString::fromStdString(tr7::SettingsPath(arguments.profile)));
  if (!arguments.file.isEmpty() && first.HandOver(arguments.file)) return 0;
  tr7::Desktop desktop(arguments.profile);
  tr7::InstallViews();
  tr7::Main();
  if (desktop.forms.Ended()) return 0;
  const auto open = [&desktop](const QString& file) {
    tr7::OpenFilesFromOutside({file}, desktop.forms);
  };
  if (!arguments.file.isEmpty()) open(QFileInfo(arguments.file).absoluteFilePath());
  first.Listen(open);
  return desktop.forms.Ended() ? 0 : QApplication::exec();
}
