#pragma once

#include <QCoreApplication>
#include <QMetaObject>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <semaphore>
#include <stdexcept>

namespace tr7::tour {

/// A step that did not show what it should; the words say what was missing.
struct TourFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The script runs in a thread of its own, as a user beside the tool. All that touches the tool
// runs in the tool's thread, inside whichever event loop or wait of the tool is on.

/// Hands `act` over and does not wait.
inline void Post(const std::function<void()>& act) {
  QMetaObject::invokeMethod(QCoreApplication::instance(), act, Qt::QueuedConnection);
}

/// Does what a user does, and waits until it is done; not for long, since a click that opens a
/// dialogue returns only when that has been answered.
inline void Act(const std::function<void()>& act) {
  constexpr std::chrono::milliseconds kDialogueIsUp(300);
  const auto done = std::make_shared<std::binary_semaphore>(0);
  Post([done, act] {
    act();
    done->release();
  });
  (void)done->try_acquire_for(kDialogueIsUp);
}

/// Runs `look` in the tool's thread and gives its result. A tool that serves no events for so long
/// has failed.
template <typename Look>
auto InTool(Look look) -> decltype(look()) {
  using Result = decltype(look());
  struct Shared {
    std::optional<Result> result;
    std::binary_semaphore done{0};
  };
  constexpr std::chrono::seconds kLongest(20);
  // Shared, since a look that came too late would find its caller gone.
  const auto shared = std::make_shared<Shared>();
  Post([shared, look] {
    shared->result.emplace(look());
    shared->done.release();
  });
  if (!shared->done.try_acquire_for(kLongest)) throw TourFailure("the tool does not answer");
  return *shared->result;
}

}  // namespace tr7::tour
