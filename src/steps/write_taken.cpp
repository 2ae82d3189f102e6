#include "steps/write_taken.h"

#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

WriteTakenRecord WriteTaken;

namespace {

constexpr int kMsgNotCompleted = 6485;
constexpr int kMsgTaken = 6510;
constexpr int kMsgFromTo = 6511;
constexpr int kMsgRefused = 6512, kMsgTakenOrNot = 6513;
constexpr int kMsgAsBefore = 6514, kMsgNotStored = 6515;
constexpr int kMsgRepeated = 6524;
constexpr int kMsgStoreRefused = 6516, kMsgStoredOrNot = 6517;

MsgId StoredId() {
  switch (WriteTaken.Stored) {
    case WriteTakenRecord::Storing::Refused:
      return kMsgStoreRefused;
    case WriteTakenRecord::Storing::NotAsked:
      return WriteTaken.First.empty() && (WriteTaken.Failed.empty() || WriteTaken.FailedIsRefused)
                 ? MsgId(kMsgAsBefore)
                 : MsgId(kMsgNotStored);
    default:
      return kMsgStoredOrNot;
  }
}

}  // namespace

std::string FailedRecordText() {
  if (WriteTaken.Failed.empty()) return {};
  return Text(WriteTaken.FailedIsRefused ? MsgId(kMsgRefused) : MsgId(kMsgTakenOrNot),
              WriteTaken.Failed);
}

std::string WriteTakenText() {
  const WriteTakenRecord& taken = WriteTaken;
  std::string text = Text(kMsgNotCompleted) + "\n";
  if (!taken.First.empty()) {
    text += Text(kMsgTaken, taken.First == taken.Last ? taken.First
                                                      : Text(kMsgFromTo, taken.First, taken.Last)) +
            "\n";
  }
  if (!taken.Failed.empty()) text += FailedRecordText() + "\n";
  return text + Text(StoredId());
}

void TellWriteDone(MsgId id) {
  if (!WriteTaken.Repeated) return TellDone(id);
  MsgBox(WithReason(Text(id), Text(kMsgRepeated)));
}

void WarnOfRepeats() {
  if (WriteTaken.Repeated) Tell(kMsgRepeated);
}

}  // namespace tr7
