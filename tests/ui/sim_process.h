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
    while (process_.state() != QProcess::NotRunning && !process_.canReadLine()) {
      if (!process_.waitForReadyRead(5000)) break;
    }
    path_ = QString::fromUtf8(process_.readLine()).trimmed().toStdString();
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

 private:
  QProcess process_;
  std::string path_;
};

}  // namespace tr7
