#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tr7 {

/// What has happened on the line.
enum class FrameEvent : std::uint8_t {
  Sent,
  SentAgain,  ///< the same request once more
  Received,
  BadPrefix,   ///< received, and not the answer to what was sent
  BadLength,   ///< received, and of a length that no answer has
  TimedOut,    ///< no answer in time; the bytes are those of a line that did not end
  PortFailed,  ///< the bytes are the reason, in the user's words
};

/// What the line has carried last: raw bytes, bounded in number and in size. A frame has a number
/// that it keeps; the oldest ones go.
class FrameRing {
 public:
  static constexpr std::size_t kMostFrames = 10'000, kMostBytes = 1u << 20, kLongestFrame = 4096;

  void Add(FrameEvent event, std::string_view bytes, std::uint32_t ms_of_day);
  /// What the exchange makes of the line that was received last.
  void JudgeLast(FrameEvent verdict);
  void Clear();

  /// Numbers of the kept frames: from the first one to ahead of the end.
  std::uint64_t First() const { return first_; }
  std::uint64_t End() const { return first_ + frames_.size(); }
  std::size_t Size() const { return frames_.size(); }

  // Of a kept frame.
  FrameEvent EventOf(std::uint64_t number) const { return At(number).event; }
  std::uint32_t MsOfDay(std::uint64_t number) const { return At(number).ms_of_day; }
  std::size_t LengthOf(std::uint64_t number) const { return At(number).length; }
  /// With CR LF.
  std::string BytesOf(std::uint64_t number) const;

 private:
  struct Frame {
    std::uint32_t ms_of_day;
    std::uint32_t at;  ///< of its first byte, counted on and on
    std::uint16_t length;
    FrameEvent event;
  };
  const Frame& At(std::uint64_t number) const {
    return frames_[static_cast<std::size_t>(number - first_)];
  }
  void DropFirst();
  void MakeRoom(std::size_t bytes);

  std::deque<Frame> frames_;
  std::uint64_t first_ = 1;
  std::vector<char> bytes_;  ///< a power of two, grown as needed; a byte stands at its count modulo
  std::uint32_t end_ = 0;    ///< count of all bytes so far, which wraps
};

/// The line's record. It is always kept, so that what led to a fault can be looked at behind it.
struct FrameLogRecord : FrameRing {
  std::function<void()> Noted;  ///< something new stands in it; empty: nobody looks

  void Note(FrameEvent event, std::string_view bytes);
};
extern FrameLogRecord FrameLog;

}  // namespace tr7
