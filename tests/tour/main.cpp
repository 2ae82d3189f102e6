// Drives the real tool in its real windows, against a simulated controller on a pseudo-terminal,
// and leaves a picture of each step: qv-tr7-tour --sim PROGRAM FOLDER.

#include <QApplication>
#include <QCommandLineParser>
#include <QCursor>
#include <QDir>
#include <QScreen>
#include <QSettings>
#include <QThread>
#include <cstdio>
#include <cstdlib>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/scripts.h"
#include "ui/desktop.h"
#include "ui/look.h"

namespace tr7::tour {
namespace {

struct Arguments {
  QString sim;
  QString folder;
  QString session;  ///< empty: all of them, each in a process of its own
  QStringList only;
};

Arguments Parse(const QCoreApplication& application) {
  const QCommandLineOption sim("sim", "The simulated controller.", "program");
  const QCommandLineOption session("play", "Runs this session in this process.", "name");
  const QCommandLineOption only(
      "only", "Runs this script (look) or session (look-ja) alone; may be repeated.", "name");
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions({sim, session, only});
  parser.addPositionalArgument("folder", "Where pictures and files go.");
  parser.process(application);
  if (parser.positionalArguments().size() != 1 || !parser.isSet(sim)) parser.showHelp(2);
  return {parser.value(sim), parser.positionalArguments().constFirst(), parser.value(session),
          parser.values(only)};
}

QStringList Pictures(const QString& folder) {
  return QDir(folder).entryList({"[0-9]*-*.png"}, QDir::Files, QDir::Name);
}

/// What a tour before left here.
void RemoveOldTour(const QString& folder) {
  QDir().mkpath(folder);
  const QStringList files =
      QDir(folder).entryList({"tour*.qvd", "tour*.prg", "tour*.pdf", "tour-*.ini"}, QDir::Files) +
      Pictures(folder);
  for (const QString& file : files) QDir(folder).remove(file);
}

/// A failed step ends the process at once: nobody is there to answer the tool's questions.
[[noreturn]] void Fail(User& user, const char* why) {
  std::printf("tour: FAILED at \"%s\": %s\n", user.Doing().c_str(), why);
  std::fflush(stdout);
  try {
    user.Picture("failed");
  } catch (const TourFailure& failure) {
    std::printf("tour: no picture of it: %s\n", failure.what());
  }
  std::fflush(stdout);
  std::_Exit(EXIT_FAILURE);
}

/// How a script is seen.
struct Showing {
  const char* name;
  int language;
  look::Theme theme;
  QStringList scripts = {};  ///< that a tour of all shows so; empty: all
};

/// One session in this process.
int Play(const Script& script, const Showing& showing, const Arguments& arguments) {
  SimProcess sim(arguments.sim, script.sim_options);
  const QString file = arguments.folder + "/tour-" + arguments.session + ".ini";
  QSettings settings(file, QSettings::IniFormat);
  settings.setValue("Settings/PortNo", 1);
  settings.setValue("Settings/PortDevice1", QString::fromStdString(sim.Path()));
  settings.setValue("Settings/Language", showing.language);
  settings.sync();
  look::Apply(*qApp, showing.theme);
  Desktop desktop({file, false});
  InstallViews();
  const int first = static_cast<int>(Pictures(arguments.folder).size()) + 1;
  User user(desktop.forms, sim, arguments.folder, arguments.session, first);
  std::binary_semaphore ended(0);
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    constexpr std::chrono::seconds kUntilEnded(20);
    try {
      script.run(user);
      if (!ended.try_acquire_for(kUntilEnded)) throw TourFailure("the tool does not end");
    } catch (const TourFailure& failure) {
      Fail(user, failure.what());
    }
  }));
  // The mouse of the machine must not point at what the script works on.
  QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
  thread->start();
  Main();
  if (!desktop.forms.Ended()) QApplication::exec();
  ended.release();
  thread->wait();
  return EXIT_SUCCESS;
}

/// One session in a process of its own.
bool PlayApart(const QString& session, const Arguments& arguments) {
  std::printf("session %s\n", qPrintable(session));
  std::fflush(stdout);
  return QProcess::execute(QCoreApplication::applicationFilePath(),
                           {"--sim", arguments.sim, "--play", session, arguments.folder}) == 0;
}

/// What a tour is to play; a name that is asked for counts above what a tour of all leaves out.
bool Wanted(const Script& script, const Showing& showing, const QString& session,
            const QStringList& only) {
  if (!only.isEmpty()) return only.contains(script.name) || only.contains(session);
  return showing.scripts.isEmpty() || showing.scripts.contains(script.name);
}

/// The sessions asked for; without a name all of them. Each script is seen in Japanese and is seen
/// dark, so that a few are enough to show both at once.
int Run(const Arguments& arguments) {
  const Showing showings[] = {{"en", 2, look::Theme::Light},
                              {"ja", 1, look::Theme::Light},
                              {"dark", 2, look::Theme::Dark},
                              {"ja-dark", 1, look::Theme::Dark, {"look", "prog", "io", "data"}}};
  if (arguments.session.isEmpty()) RemoveOldTour(arguments.folder);
  for (const Script& script : Scripts()) {
    for (const Showing& showing : showings) {
      const QString session = QString("%1-%2").arg(script.name, showing.name);
      if (arguments.session == session) return Play(script, showing, arguments);
      const bool wanted = Wanted(script, showing, session, arguments.only);
      if (!arguments.session.isEmpty() || !wanted || PlayApart(session, arguments)) continue;
      std::printf("tour: session %s failed\n", qPrintable(session));
      return EXIT_FAILURE;
    }
  }
  const auto pictures = static_cast<int>(Pictures(arguments.folder).size());
  const bool played = arguments.session.isEmpty() && pictures > 0;
  std::printf(played ? "tour: every step showed what it should; %d pictures in %s\n"
                     : "tour: no such session; %d pictures in %s\n",
              pictures, qPrintable(arguments.folder));
  return played ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace
}  // namespace tr7::tour

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return tr7::tour::Run(tr7::tour::Parse(application));
}
