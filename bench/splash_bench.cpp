#include "bench/splash_bench.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <vector>

#include "bench/figures.h"

namespace tr7bench {
namespace {

constexpr int kStarts = 7;
constexpr qint64 kLongestMs = 5000;

/// A small field in the middle of the screen.
QImage Middle() {
  constexpr int kSide = 32;
  QScreen& screen = *QGuiApplication::primaryScreen();
  const QPoint at = screen.geometry().center() - QPoint(kSide / 2, kSide / 2);
  return screen.grabWindow(0, at.x(), at.y(), kSide, kSide).toImage();
}

double OneStartMs(const QString& tool, const QString& settings_file) {
  const QImage before = Middle();
  if (before.isNull()) return -1;
  QProcess process;
  QElapsedTimer clock;
  clock.start();
  process.start(tool, {"--settings", settings_file});
  while (Middle() == before && clock.elapsed() < kLongestMs) QThread::usleep(500);
  const double ms = static_cast<double>(clock.nsecsElapsed()) / 1e6;
  process.kill();
  process.waitForFinished();
  while (Middle() != before && clock.elapsed() < 2 * kLongestMs) QThread::msleep(1);
  return ms < kLongestMs ? ms : -1;
}

}  // namespace

double SplashMs(const QString& tool, const QString& settings_file) {
  std::vector<double> times;
  for (int i = 0; i < kStarts; ++i) {
    times.push_back(OneStartMs(tool, settings_file));
    if (times.back() < 0) return -1;
  }
  return Median(times);
}

}  // namespace tr7bench
