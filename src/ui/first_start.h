#pragma once

#include <QSocketNotifier>
#include <QString>
#include <functional>
#include <memory>

namespace tr7 {

/// The first start on some settings takes files from later ones: a tool that is open opens them,
/// instead of a second one that would fight it for the port.
class FirstStart {
 public:
  /// Settings files apart are tools apart.
  explicit FirstStart(const QString& settings_path);
  ~FirstStart();
  FirstStart(const FirstStart&) = delete;
  FirstStart& operator=(const FirstStart&) = delete;

  /// True: a tool is open and has been given the file.
  [[nodiscard]] bool HandOver(const QString& file);
  /// From now on later starts come to this one, unless they do to another already.
  void Listen(std::function<void(const QString& file)> open);

 private:
  QByteArray address_;
  int socket_ = -1;
  bool listens_ = false;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tr7
