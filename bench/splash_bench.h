#pragma once

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

/// A small field in the middle of the screen.
inline QImage Middle() {
  constexpr int kSide = 32;
  QScreen& screen = *QGuiApplication::primaryScreen();
  const QPoint at = screen.geometry().center() - QPoint(kSide / 2, kSide / 2);
  return screen.grabWindow(0, at.x(), at.y(), kSide, kSide).toImage();
}

/// From the start of the program to its splash; below 0: it never came.
inline double OneStartMs(const QString& tool, const QString& settings_file) {
  constexpr qint64 kLongestMs = 5000;
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

/// Milliseconds from the start of the program `tool` to its splash in the middle of the screen;
/// the middle one of several starts, each ended again at once. Below 0: it never came, or this
/// screen lets nobody look at it.
inline double SplashMs(const QString& tool, const QString& settings_file) {
  constexpr int kStarts = 7;
  std::vector<double> times;
  for (int i = 0; i < kStarts; ++i) {
    times.push_back(OneStartMs(tool, settings_file));
    if (times.back() < 0) return -1;
  }
  return Median(times);
}

}  // namespace tr7bench
