#pragma once

#include <QString>

namespace tr7bench {

/// Milliseconds from the start of the program `tool` to its splash in the middle of the screen;
/// the middle one of several starts, each ended again at once. Below 0: it never came, or this
/// screen lets nobody look at it.
double SplashMs(const QString& tool, const QString& settings_file);

}  // namespace tr7bench
