#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "base/msg_id.h"

namespace tr7 {

/// What the characters of a field stand for. Numbers are hexadecimal on the line.
enum class FieldKind : std::uint8_t {
  Word,         ///< no characters: the label alone, with the name put in
  Number,       ///< shown decimal
  Digits,       ///< shown as they are
  Axis,         ///< no characters: the fields that follow are this axis's; the width is its number
  Axes,         ///< a mask in one digit; "F": all
  PerAxis,      ///< one character for each axis
  WayPosition,  ///< the way in the top 2 of 20 bits, pulses in the others
  Inputs,       ///< digits of terminals: the names of those that are on
  Outputs,
  Signed,       ///< 32 bits in two's complement
  Thousandths,  ///< the same with three decimals
  // What is left of the line.
  Positions,  ///< 5 digits for each axis of the mask in front
  Steps,      ///< of a program, 19 digits each
  Tasks,      ///< the program of each task, 2 digits
  Pairs,      ///< a command digit and a value digit each
  ParaBlock,  ///< of the block that the subject names
  TuningBlock,
};

struct WireField {
  FieldKind kind;
  std::uint8_t width = 0;  ///< characters; 0 for those without, and for what is left of the line
  const char* name = "";   ///< the machine's own name, or
  MsgId label = {};        ///< what it is called
};

/// Whether a frame may be sent by hand.
enum class HandRule : std::uint8_t {
  Free,
  Moves,   ///< moves an axis or may do so, or changes who may
  Writes,  ///< the axes must be held for it
};

/// A command of the controller: its frames, field by field, and what they are called.
struct WireCommand {
  std::string_view start;      ///< what its requests begin with
  std::size_t request_length;  ///< without CR LF; 0: varies
  std::size_t reply_length;    ///< with CR LF; 0: varies
  int timeout_ms;
  MsgId verb;  ///< takes the noun; none: the noun is all
  MsgId noun;  ///< takes the subject, where there is one
  std::span<const WireField> request, reply;
  std::uint8_t subject =
      0;  ///< characters behind the command's own three that name what it is about
  HandRule hand = HandRule::Free;
  bool is_poll = false;        ///< monitors and sequences send it again and again
  bool digit_subject = false;  ///< the subject is shown as it stands
};

std::span<const WireCommand> WireCommands();

/// The command of a request (without CR LF), or of a reply (with it), whose length fits; null:
/// none.
const WireCommand* CommandOfRequest(std::string_view frame);
const WireCommand* CommandOfReply(std::string_view line);
/// The first one with the same three characters, whatever the length; null: none.
const WireCommand* CommandOfPrefix(std::string_view bytes);

}  // namespace tr7
