#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <string>

namespace tr7 {

/// A running qv-r7-sim on a pseudo-terminal of its own; ends with the object.
class SimProcess {
 public:
  explicit SimProcess(const QString& program, const QStringList& options = {}) {
    process_.start(program, options + QStringList{"--quit-on-eof"});
    path_ = ReadLine();
  }
  ~SimProcess() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(2000)) process_.kill();
    process_.waitForFinished(2000);
  }
  SimProcess(const SimProcess&) = delete;
  SimProcess& operator=(const SimProcess&) = delete;

  /// The pseudo-terminal's path; empty when the program did not start.
  const std::string& Path() const { return path_; }
  /// Gives a command on its standard input; its answer.
  std::string Tell(const char* command) {
    process_.write(command);
    process_.write("\n");
    return ReadLine();
  }

 private:
  std::string ReadLine() {
    while (process_.state() != QProcess::NotRunning && !process_.canReadLine()) {
      if (!process_.waitForReadyRead(5000)) break;
    }
    return QString::fromUtf8(process_.readLine()).trimmed().toStdString();
  }

  QProcess process_;
  std::string path_;
};

}  // namespace tr7
