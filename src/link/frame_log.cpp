#include "link/frame_log.h"

#include <algorithm>

#include "platform/doors.h"

namespace tr7 {

FrameLogRecord FrameLog;

void FrameRing::DropFirst() {
  frames_.pop_front();
  ++first_;
}

/// Room for so many more bytes: more memory as long as there may be, then the oldest frames go.
void FrameRing::MakeRoom(std::size_t bytes) {
  constexpr std::size_t kAtFirst = 4 * kLongestFrame;
  const auto used = [this] {
    return frames_.empty() ? std::size_t{0} : static_cast<std::uint32_t>(end_ - frames_[0].at);
  };
  std::size_t room = std::max(bytes_.size(), kAtFirst);
  while (room < used() + bytes && room < kMostBytes) room *= 2;
  if (room != bytes_.size()) {
    std::vector<char> grown(room);
    const auto live = static_cast<std::uint32_t>(used());
    for (std::uint32_t at = end_ - live; at != end_; ++at) {
      grown[at % room] = bytes_[at % bytes_.size()];
    }
    bytes_ = std::move(grown);
  }
  while (used() + bytes > bytes_.size()) DropFirst();
}

void FrameRing::Add(FrameEvent event, std::string_view bytes, std::uint32_t ms_of_day) {
  bytes = bytes.substr(0, kLongestFrame);
  if (frames_.size() == kMostFrames) DropFirst();
  MakeRoom(bytes.size());
  frames_.push_back({ms_of_day, end_, static_cast<std::uint16_t>(bytes.size()), event});
  for (const char byte : bytes) bytes_[end_++ % bytes_.size()] = byte;
}

void FrameRing::JudgeLast(FrameEvent verdict) {
  const auto last = std::find_if(frames_.rbegin(), frames_.rend(), [](const Frame& frame) {
    return frame.event == FrameEvent::Received;
  });
  if (last != frames_.rend()) last->event = verdict;
}

void FrameRing::Clear() {
  first_ = End();
  frames_.clear();
}

std::string FrameRing::BytesOf(std::uint64_t number) const {
  const Frame& frame = At(number);
  std::string bytes(frame.length, '\0');
  std::uint32_t at = frame.at;
  for (char& byte : bytes) byte = bytes_[at++ % bytes_.size()];
  return bytes;
}

void FrameLogRecord::Note(FrameEvent event, std::string_view bytes) {
  Add(event, bytes, doors.pump->MsOfDay());
  if (Noted) Noted();
}

}  // namespace tr7
