#pragma once

#include <string>

#include "base/msg_id.h"

namespace tr7 {

/// How far the running write has come. The controller takes its records one by one, and stores them
/// at a frame of its own behind the last.
struct WriteTakenRecord {
  enum class Storing { NotAsked, Refused, NotKnown, Done };
  std::string First, Last;  ///< records taken, in the user's words; empty: none
  std::string Failed;       ///< the record whose frame failed; empty: none
  bool FailedIsRefused = false;
  Storing Stored = Storing::NotAsked;
  bool Repeated = false;  ///< a frame had to be sent again before its answer came
};

extern WriteTakenRecord WriteTaken;

/// That the record whose frame failed was refused, or may have been taken; empty: none failed.
std::string FailedRecordText();

/// What a write that failed has left in the controller: what it has taken and what not, and whether
/// it has stored it.
std::string WriteTakenText();

/// Tells that a write is done. Where a frame had to be sent again, the controller may have been off
/// and on between the two, and have lost what it had not stored: the user is told to verify.
void TellWriteDone(MsgId id);
/// That word alone, for a write whose end is told elsewhere; nothing where no frame was repeated.
void WarnOfRepeats();

}  // namespace tr7
