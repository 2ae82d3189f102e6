#pragma once

#include <sys/resource.h>

#include <chrono>
#include <fstream>
#include <string>

namespace tr7bench {

/// Processor time that this process has used so far, seconds.
inline double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Percent of one core that this process takes from its making on.
class CpuMeter {
 public:
  double Percent() const { return (CpuSeconds() - cpu_) / Seconds() * 100; }
  double Seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  double cpu_ = CpuSeconds();
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
