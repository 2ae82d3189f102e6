#include "wire/wire_rows.h"

#include <algorithm>
#include <cctype>

#include "base/text_helpers.h"
#include "state/text.h"
#include "wire/wire_bytes.h"
#include "wire/wire_table.h"
#include "wire/wire_words.h"

namespace tr7 {

WireRowsRecord WireRows;

namespace {

constexpr int kSent = 5402, kReceived = 7706;
constexpr int kTimedOut = 7718, kAgain = 7719, kBadPrefix = 7720, kBadLength = 106,
              kPortFailed = 109;

std::string WithWords(MsgId fault, const std::string& words) {
  return Text(fault) + (words.empty() ? "" : " - " + words);
}

bool IsPoll(FrameEvent event, const std::string& bytes) {
  const WireCommand* command = CommandOfPrefix(bytes);
  // The sign of life has its three characters from another command.
  const WireCommand* exact =
      IsSent(event) ? CommandOfRequest(WithoutEnd(bytes)) : CommandOfReply(bytes);
  if (exact) command = exact;
  return command && command->is_poll;
}

bool HoldsText(std::string_view in, std::string_view text) {
  const auto same = [](char a, char b) {
    return std::toupper(static_cast<unsigned char>(a)) ==
           std::toupper(static_cast<unsigned char>(b));
  };
  return std::search(in.begin(), in.end(), text.begin(), text.end(), same) != in.end();
}

/// "16:05:33.042".
std::string TimeText(std::uint32_t ms_of_day) {
  constexpr std::uint32_t kMinute = 60'000, kHour = 60 * kMinute;
  return DecPad(ms_of_day / kHour, 2) + ":" + DecPad(ms_of_day % kHour / kMinute, 2) + ":" +
         DecPad(ms_of_day % kMinute / 1000, 2) + "." + DecPad(ms_of_day % 1000, 3);
}

std::string DirectionText(FrameEvent event) {
  if (event == FrameEvent::TimedOut || event == FrameEvent::PortFailed) return "-";
  return IsSent(event) ? Text(kSent) : Text(kReceived);
}

std::string FrameWords(const FrameRing& ring, std::uint64_t number) {
  const std::string bytes = ring.BytesOf(number);
  switch (ring.EventOf(number)) {
    case FrameEvent::Sent:
      return RequestWords(bytes);
    case FrameEvent::SentAgain:
      return WithWords(kAgain, RequestWords(bytes));
    case FrameEvent::Received:
      return ReplyWords(bytes);
    case FrameEvent::BadPrefix:
      return WithWords(kBadPrefix, ReplyWords(bytes));
    case FrameEvent::BadLength:
      return WithWords(kBadLength, ReplyWords(bytes));
    case FrameEvent::TimedOut:
      return Text(kTimedOut);
    case FrameEvent::PortFailed:
      return WithWords(kPortFailed, OneLine(bytes));
  }
  return {};
}

}  // namespace

bool IsSent(FrameEvent event) {
  return event == FrameEvent::Sent || event == FrameEvent::SentAgain;
}

bool IsFault(const FrameRing& ring, std::uint64_t number) {
  const FrameEvent event = ring.EventOf(number);
  if (event == FrameEvent::Sent) return false;
  return event != FrameEvent::Received || IsErrorReply(ring.BytesOf(number));
}

std::string RowCell(const FrameRing& ring, std::uint64_t number, WireColumn column) {
  const FrameEvent event = ring.EventOf(number);
  const bool words_alone = event == FrameEvent::PortFailed;
  switch (column) {
    case kNumber:
      return std::to_string(number);
    case kTime:
      return TimeText(ring.MsOfDay(number));
    case kDirection:
      return DirectionText(event);
    case kBytes:
      return words_alone ? "" : std::to_string(ring.LengthOf(number));
    case kFrame:
      return words_alone ? "" : VisibleBytes(ring.BytesOf(number));
    case kWords:
      return FrameWords(ring, number);
  }
  return {};
}

std::string RowText(const FrameRing& ring, std::uint64_t number) {
  std::string text;
  for (int col = 0; col < kWireColumns; ++col) {
    text += col == 0 ? "" : "\t";
    if (col == kWords && IsFault(ring, number)) text += "! ";
    text += RowCell(ring, number, static_cast<WireColumn>(col));
  }
  return text;
}

bool RowHolds(const FrameRing& ring, std::uint64_t number, const std::string& text) {
  return HoldsText(VisibleBytes(ring.BytesOf(number)), text) ||
         HoldsText(FrameWords(ring, number), text);
}

bool WireFilter::Passes(const FrameRing& ring, std::uint64_t number) const {
  const FrameEvent event = ring.EventOf(number);
  if (way != Way::Both && IsSent(event) != (way == Way::Sent)) return false;
  if (hide_polls && !IsFault(ring, number) && IsPoll(event, ring.BytesOf(number))) return false;
  return text.empty() || RowHolds(ring, number, text);
}

int WireRowsRecord::Follow() {
  const FrameRing& ring = Source();
  const auto kept = std::lower_bound(Shown.begin(), Shown.end(), ring.First());
  const auto gone = static_cast<int>(kept - Shown.begin());
  Shown.erase(Shown.begin(), kept);
  for (Next = std::max(Next, ring.First()); Next < ring.End(); ++Next) {
    if (Filter.Passes(ring, Next)) Shown.push_back(Next);
  }
  return gone;
}

void WireRowsRecord::Rebuild() {
  Shown.clear();
  Next = 0;
  Follow();
}

std::optional<std::size_t> WireRowsRecord::Find(const std::string& text, std::size_t from,
                                                bool backwards) const {
  const std::size_t rows = Shown.size();
  for (std::size_t step = 0; step < rows; ++step) {
    const std::size_t row = (from + (backwards ? rows - step : step)) % rows;
    if (RowHolds(Source(), Shown[row], text)) return row;
  }
  return std::nullopt;
}

}  // namespace tr7
