#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "ui/desktop.h"
#include "ui/first_start.h"
#include "ui/look.h"
#include "ui/system_theme.h"

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

/// What the toolkit takes for itself from the command line.
void AddToolkitOptions(QCommandLineParser& parser) {
  const QStringList with_value{
      "platform",     "platformpluginpath", "platformtheme", "plugin",     "display",
      "session",      "geometry",           "title",         "icon",       "qwindowgeometry",
      "qwindowtitle", "qwindowicon",        "style",         "stylesheet", "qmljsdebugger"};
  for (const QString& name : with_value) {
    QCommandLineOption option(name, {}, "value");
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
  for (const char* name : {"reverse", "widgetcount"}) {
    QCommandLineOption option(name);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  }
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
}

/// Ends the process with the words that were asked for, or with those on how it is used.
[[noreturn]] void Answer(QCommandLineParser& parser, bool understood, int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (understood) parser.process(application);
  const QString error = parser.errorText();
  std::fputs(qPrintable((error.isEmpty() ? "" : error + "\n\n") + parser.helpText()), stderr);
  std::exit(2);
}

/// Ahead of everything that needs a screen. Ends the process on --help and --version, and on an
/// option or a value that there is not.
Arguments ReadArguments(int argc, char** argv) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({kDemo, kSettings, kTheme});
  parser.addPositionalArgument(
      "file", "Positions, parameters, groups, macros or a program to open.", "[file]");
  AddToolkitOptions(parser);
  QStringList words;
  for (int i = 0; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
  const bool understood = parser.parse(words);
  const auto theme = ThemeOf(parser.value(kTheme));
  const bool asked = parser.isSet("help") || parser.isSet("help-all") || parser.isSet("version");
  if (!understood || !theme || asked) Answer(parser, understood && asked, argc, argv);
  return {{parser.value(kSettings), parser.isSet(kDemo), QLocale::system()},
          *theme,
          parser.positionalArguments().value(0)};
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationVersion(QString::fromStdString(tr7::VersionText()));
  const Arguments arguments = ReadArguments(argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tr7::look::Apply(application, arguments.theme);
  std::optional<tr7::FirstStart> first(
      std::in_place, QString::fromStdString(tr7::SettingsPath(arguments.profile)));
  // Several may start at once: one is the first, the others come to it.
  const bool is_first = first->Claim(), names_file = !arguments.file.isEmpty();
  if (!is_first && names_file && first->HandOver(arguments.file)) return 0;
  const auto system_theme = arguments.theme == tr7::look::Theme::System
                                ? tr7::FollowSystemTheme()
                                : std::unique_ptr<tr7::SystemTheme>();
  tr7::Desktop desktop(arguments.profile);
  tr7::InstallViews();
  if (names_file) desktop.outside.Add({QFileInfo(arguments.file).absoluteFilePath()});
  first->Listen([&desktop](const QString& file) { desktop.outside.Add({file}); });
  tr7::Main();
  const int end = desktop.forms.Ended() ? 0 : QApplication::exec();
  first.reset();  // who starts from now on starts anew
  return end;
}
