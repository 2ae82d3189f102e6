// Drives the real tool in its real windows, against a simulated controller on a pseudo-terminal,
// and leaves a picture of each step: qv-tr7-tour --sim PROGRAM FOLDER.

#include <QApplication>
#include <QCommandLineParser>
#include <QCursor>
#include <QDir>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <semaphore>

#include "core/install_views.h"
#include "core/main_entry.h"
#include "tests/tour/failure.h"
#include "tests/tour/session.h"
#include "ui/desktop.h"
#include "ui/look.h"

namespace tr7::tour {
namespace {

constexpr std::chrono::seconds kUntilEnded(20);

struct Arguments {
  QString sim;
  QString folder;
  QString session;  ///< empty: all of them, each in a process of its own
  QStringList only;
};

Arguments Parse(const QCoreApplication& application) {
  const QCommandLineOption sim("sim", "The simulated controller.", "program");
  const QCommandLineOption session("play", "Runs this session in this process.", "name");
  const QCommandLineOption only("only", "Runs this session alone; may be repeated.", "name");
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
  return QDir(folder).entryList({"[0-9][0-9]-*.png"}, QDir::Files, QDir::Name);
}

// All sessions.

/// What a tour before left here.
void RemoveOldTour(const QString& folder) {
  const QStringList files =
      QDir(folder).entryList({"tour*.qvd", "tour-*.ini"}, QDir::Files) + Pictures(folder);
  for (const QString& file : files) QDir(folder).remove(file);
}

int RunAll(const Arguments& arguments) {
  QDir().mkpath(arguments.folder);
  RemoveOldTour(arguments.folder);
  for (const Session& session : Sessions()) {
    if (!arguments.only.isEmpty() && !arguments.only.contains(session.name)) continue;
    std::printf("session %s\n", session.name);
    std::fflush(stdout);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {"--sim", arguments.sim, "--play", session.name, arguments.folder});
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
      std::printf("tour: session %s failed\n", session.name);
      return 1;
    }
  }
  std::printf("tour: every step showed what it should; %d pictures in %s\n",
              static_cast<int>(Pictures(arguments.folder).size()), qPrintable(arguments.folder));
  return 0;
}

// One session.

std::string WriteSettings(const Session& session, const QString& folder, const std::string& port) {
  const std::string path = (folder + "/tour-" + session.name + ".ini").toStdString();
  std::ofstream file(path, std::ios::trunc);
  file << "[Settings]\nPortNo=1\nPortDevice1=" << port << "\n";
  for (const std::string& line : session.settings) file << line << "\n";
  return path;
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

int RunSession(const Session& session, const Arguments& arguments) {
  SimProcess sim(arguments.sim.toStdString(), session.sim_options);
  const std::string settings = WriteSettings(session, arguments.folder, sim.Port());
  look::Apply(*qobject_cast<QApplication*>(QCoreApplication::instance()));
  Desktop desktop({QString::fromStdString(settings), false});
  InstallViews();
  const int first = static_cast<int>(Pictures(arguments.folder).size()) + 1;
  User user(desktop.forms, arguments.folder, session.name, first);
  Tour tour{user, sim, arguments.folder};
  bool finished = false;
  std::binary_semaphore ended(0);
  const std::unique_ptr<QThread> script(QThread::create([&] {
    try {
      session.script(tour);
      if (!ended.try_acquire_for(kUntilEnded)) throw TourFailure("the tool does not end");
      finished = true;
    } catch (const TourFailure& failure) {
      Fail(user, failure.what());
    }
  }));
  // The mouse of the machine must not point at what the script works on.
  QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
  script->start();
  Main();
  if (!desktop.forms.Ended()) QApplication::exec();
  ended.release();
  script->wait();
  return finished ? EXIT_SUCCESS : EXIT_FAILURE;
}

int RunNamed(const Arguments& arguments) {
  for (const Session& session : Sessions()) {
    if (arguments.session == session.name) return RunSession(session, arguments);
  }
  std::printf("tour: there is no session %s\n", qPrintable(arguments.session));
  return EXIT_FAILURE;
}

}  // namespace
}  // namespace tr7::tour

int main(int argc, char** argv) {
  using namespace tr7::tour;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const Arguments arguments = Parse(application);
  if (arguments.session.isEmpty()) return RunAll(arguments);
  try {
    return RunNamed(arguments);
  } catch (const TourFailure& failure) {
    std::printf("tour: FAILED: %s\n", failure.what());
    return EXIT_FAILURE;
  }
}
