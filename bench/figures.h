#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace tr7bench {

/// Prints one figure, "name=value".
inline void Report(const char* name, double value, int decimals) {
  std::printf("%s=%.*f\n", name, decimals, value);
  std::fflush(stdout);
}

inline double MsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

/// Milliseconds that `work` takes.
inline double MsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return MsSince(start);
}

inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// The middle one of `runs` times of `work`, ms.
inline double MedianMsOf(int runs, const std::function<void()>& work) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) times.push_back(MsOf(work));
  return Median(times);
}

/// Percent of one core that this process takes from its making on.
class CpuMeter {
 public:
  double Percent() const {
    const auto cpu = static_cast<double>(std::clock() - cpu_) / CLOCKS_PER_SEC;
    return cpu / Seconds() * 100;
  }
  double Seconds() const { return MsSince(start_) / 1000; }

 private:
  std::clock_t cpu_ = std::clock();  // of the processor, by this process
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// Memory of this process that is resident now, kB.
inline long ResidentKb() {
  std::ifstream status("/proc/self/status");
  const std::string key = "VmRSS:";
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(key)) return std::stol(line.substr(key.size()));
  }
  return 0;
}

}  // namespace tr7bench
