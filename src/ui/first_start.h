#pragma once

#include <QSocketNotifier>
#include <QString>
#include <QTimer>
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

  /// Takes the place of the first start: what later ones hand over waits until it is listened to.
  /// False: another has it, or it cannot be had.
  bool Claim();
  /// True: a tool is open and has been given the file.
  [[nodiscard]] bool HandOver(const QString& file);
  /// From now on this one is told what later starts hand over. While they come to another it waits
  /// for the end of that one, and takes its place.
  void Listen(std::function<void(const QString& file)> open);

 private:
  void ListenWhereFirst();

  QByteArray address_;
  int socket_ = -1;
  bool listens_ = false;
  std::function<void(const QString& file)> open_;
  std::unique_ptr<QSocketNotifier> notifier_;
  QTimer claim_again_;  ///< runs while another has the place
};

}  // namespace tr7
