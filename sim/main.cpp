#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <string>
#include <vector>

#include "sim/controller.h"
#include "sim/options.h"
#include "sim/pty.h"
#include "sim/server.h"

namespace {

constexpr int kFailed = 1;
constexpr int kBadOptions = 2;

int Fail(const std::string& message, int status) {
  std::fprintf(stderr, "qv-r7-sim: %s\n", message.c_str());
  return status;
}

int Run(const qvr7sim::Options& options) {
  qvr7sim::Pty pty;
  const std::string shut = pty.Open();
  if (!shut.empty()) return Fail(shut, kFailed);
  qvr7sim::Controller controller(options.setup, options.seed);
  controller.SetFaults(options.faults);
  controller.SetSilent(options.silent);
  for (int axis : options.failing_homings) controller.FailNextHoming(axis);

  std::printf("%s\n", pty.path().c_str());
  std::fflush(stdout);
  const std::string failed =
      qvr7sim::Serve(&pty, &controller, STDIN_FILENO, STDOUT_FILENO, options.quit_on_eof,
                     options.tell_motion ? STDERR_FILENO : -1);
  return failed.empty() ? 0 : Fail(failed, kFailed);
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  qvr7sim::Options options;
  const std::string wrong =
      qvr7sim::ParseOptions(std::vector<std::string>(argv + 1, argv + argc), &options);
  if (!wrong.empty()) return Fail(wrong, kBadOptions);
  if (options.help) {
    std::fputs(qvr7sim::HelpText().c_str(), stdout);
    return 0;
  }
  return Run(options);
}
