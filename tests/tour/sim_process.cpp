#include "tests/tour/sim_process.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "tests/tour/failure.h"

namespace tr7::tour {
namespace {

constexpr int kAnswerMs = 5000;

[[noreturn]] void Become(const std::string& program, std::vector<std::string> words) {
  words.insert(words.begin(), program);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  execv(program.c_str(), arguments.data());
  constexpr int kNotStarted = 127;
  _exit(kNotStarted);
}

}  // namespace

SimProcess::SimProcess(const std::string& program, const std::vector<std::string>& options) {
  std::vector<std::string> words = options;
  words.emplace_back("--quit-on-eof");
  std::array<int, 2> in{}, out{};
  if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) {
    throw TourFailure(std::string("no pipe: ") + std::strerror(errno));
  }
  process_ = fork();
  if (process_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    Become(program, words);
  }
  close(in[0]);
  close(out[1]);
  input_ = in[1];
  output_ = out[0];
  if (process_ < 0) throw TourFailure("cannot start " + program);
  port_ = ReadLine();
  if (port_.empty() || port_.front() != '/') {
    throw TourFailure(program + " gives no port but \"" + port_ + "\"");
  }
}

SimProcess::~SimProcess() {
  close(input_);
  close(output_);
  if (process_ <= 0) return;
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

std::string SimProcess::ReadLine() {
  for (;;) {
    const std::size_t end = unread_.find('\n');
    if (end != std::string::npos) {
      const std::string line = unread_.substr(0, end);
      unread_.erase(0, end + 1);
      return line;
    }
    pollfd readable{output_, POLLIN, 0};
    std::array<char, 512> bytes{};
    const bool came = poll(&readable, 1, kAnswerMs) == 1;
    const ssize_t count = came ? read(output_, bytes.data(), bytes.size()) : 0;
    if (count <= 0) throw TourFailure("the simulated controller says nothing");
    unread_.append(bytes.data(), static_cast<std::size_t>(count));
  }
}

std::string SimProcess::Tell(const std::string& command) {
  const std::string line = command + "\n";
  if (write(input_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
    throw TourFailure("the simulated controller takes no command");
  }
  const std::string answer = ReadLine();
  if (!answer.starts_with("ok")) throw TourFailure("\"" + command + "\" gives \"" + answer + "\"");
  return answer;
}

}  // namespace tr7::tour
