#include "wire/wire_table.h"

#include <algorithm>
#include <array>

namespace tr7 {
namespace {

using enum FieldKind;
using enum HandRule;

constexpr std::size_t kPrefix = 3;
constexpr bool kPoll = true, kAsItStands = true;
constexpr int kRead = 7735, kWrite = 7736, kStore = 7737, kStart = 7738, kStop = 7739;

// Fields.

constexpr WireField kAxesField{Axes, 1};
constexpr std::array kMask{kAxesField};
constexpr std::array kModes{WireField{Digits, 1}, WireField{PerAxis, 4}};
constexpr std::array kVersion{WireField{Digits, 3}, WireField{Digits, 3}};
constexpr std::array kMoveTo{WireField{Number, 3, "", 5282}, kAxesField};
constexpr std::array kMoveBare{WireField{Number, 3, "", 5282}, kAxesField,
                               WireField{Word, 0, "", 5262}};
constexpr std::array kJog{WireField{Digits, 1, "", 6256}, WireField{PerAxis, 4}};
constexpr std::array kPositions{kAxesField, WireField{Positions}};
constexpr std::array kRange{WireField{Number, 3, "", 6505}, WireField{Number, 3, "", 6506}};
constexpr std::array kParaData{WireField{ParaBlock}};
constexpr std::array kTuningData{WireField{TuningBlock}};
constexpr std::array kBlock0{WireField{Word, 0, "0", 6520}};
constexpr std::array kMacro{WireField{Pairs}};
constexpr std::array kProgram{WireField{Number, 2, "", 710}};
constexpr std::array kStepCount{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 712}};
constexpr std::array kSteps{WireField{Steps}};
constexpr std::array kCount{WireField{Number, 1}};
constexpr std::array kTasks{WireField{Tasks}};
constexpr std::array kTaskStep{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 725},
                               WireField{Steps}};
constexpr std::array kInputs{WireField{Inputs, 7}};
constexpr std::array kOutputs{WireField{Outputs, 5}};
constexpr std::array kFlagAsked{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 742}};
constexpr std::array kFlag{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 742},
                           WireField{Digits, 1, "", 743}};
constexpr std::array kValueAsked{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 752}};
constexpr std::array kValue{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 752},
                            WireField{Signed, 8, "", 753}};
constexpr std::array kPlaceAsked{WireField{Number, 2, "", 710}, WireField{Number, 2, "", 7328}};
constexpr std::array kPlace{WireField{Number, 2, "", 710}, WireField{Number, 1, "", 7328},
                            WireField{Thousandths, 8, "", 753}};

/// The fields of one axis for each of the four, then those of the whole line.
template <std::size_t kOfAxis, std::size_t kOfLine>
constexpr auto ForAllAxes(const std::array<WireField, kOfAxis>& of_axis,
                          const std::array<WireField, kOfLine>& of_line) {
  constexpr std::size_t kAxisCount = 4;
  std::array<WireField, kAxisCount*(kOfAxis + 1) + kOfLine> all{};
  std::size_t at = 0;
  for (std::size_t axis = 1; axis <= kAxisCount; ++axis) {
    all[at++] = {Axis, static_cast<std::uint8_t>(axis)};
    for (const WireField& field : of_axis) all[at++] = field;
  }
  for (const WireField& field : of_line) all[at++] = field;
  return all;
}

constexpr auto kRecord = ForAllAxes(
    std::array{WireField{Number, 3, "VEL"}, WireField{Number, 2, "ACC"}, WireField{WayPosition, 5},
               WireField{Number, 2, "PF"}, WireField{Number, 2, "PS"}},
    std::array{WireField{Number, 1, "ITPL"}, WireField{Number, 1, "OUT"},
               WireField{Number, 2, "SM"}});
constexpr auto kDirectMove =
    ForAllAxes(std::array{WireField{Number, 3, "VEL"}, WireField{Number, 2, "ACC"},
                          WireField{Digits, 1, "WAY"}, WireField{Number, 5, "POSI"}},
               std::array<WireField, 0>{});

// Commands. Of those that begin alike the one whose length fits is meant.

constexpr WireCommand kCommands[] = {
    {"0CM", 8, 10, 2000, {}, 7742, kModes, kModes, 0, Moves},
    {"0CM1", 4, 6, 1000, {}, 7740, {}, {}, 0, Free, kPoll},
    {"0CM0", 4, 0, 100, {}, 7741, {}, {}, 0, Free, kPoll},
    {"0RA", 3, 6, 2000, kRead, 7743, {}, kMask, 0, Free, kPoll},
    {"0RH", 3, 6, 1000, kRead, 7744, {}, kMask},
    // Behind an alarm an input may start a movement.
    {"0AR", 3, 5, 3000, {}, 5110, {}, {}, 0, Moves},
    {"0RV", 3, 11, 5000, kRead, 426, {}, kVersion},
    {"0RV", 4, 12, 1000, kRead, 7038, {}, kVersion, 1},
    {"0RC", 4, 0, 1000, kRead, 5278, kMask, kPositions, 0, Free, kPoll},

    {"0MP", 7, 5, 1000, {}, 5409, kMoveTo, {}, 0, Moves},
    {"0MS", 7, 5, 1000, {}, 5409, kMoveBare, {}, 0, Moves},
    {"0MG", 5, 7, 0, kStart, 7041, {}, {}, 2, Moves},
    {"0SP", 3, 5, 1000, {}, 5410, {}, {}},
    {"0JR", 8, 5, 1000, {}, 5407, kJog, {}, 0, Moves},
    {"0MV", 0, 5, 1000, {}, 5222, kDirectMove, {}, 0, Moves},

    {"0RP", 6, 68, 5000, kRead, 6523, {}, kRecord, 3},
    {"0WP", 66, 8, 5000, kWrite, 6523, kRecord, {}, 3, Writes},
    {"0WA", 9, 11, 10000, kStore, 202, kRange, kRange, 0, Writes},

    {"0RD", 4, 38, 5000, kRead, 6520, {}, kParaData, 1, Free, !kPoll, kAsItStands},
    {"0WD", 36, 6, 5000, kWrite, 6520, kParaData, {}, 1, Writes, !kPoll, kAsItStands},
    {"0WE", 3, 5, 2000, kStore, 6000, kBlock0, kBlock0, 0, Writes},
    {"0WE1", 4, 6, 5000, kStore, 33, {}, {}, 0, Writes},
    {"0WE2", 4, 6, 5000, kStore, 6000, {}, {}, 0, Writes},
    {"0WE3", 4, 6, 5000, kStore, 34, {}, {}, 0, Writes},

    {"0RG", 5, 13, 5000, kRead, 6518, {}, kRange, 2},
    {"0WG", 11, 7, 5000, kWrite, 6518, kRange, {}, 2, Writes},
    {"0RS", 5, 39, 1000, kRead, 6519, {}, kMacro, 2},
    {"0WS", 37, 7, 5000, kWrite, 6519, kMacro, {}, 2, Writes},
    {"0RK", 4, 38, 3000, kRead, 6522, {}, kTuningData, 1},
    {"0WK", 36, 6, 5000, kWrite, 6522, kTuningData, {}, 1, Writes},
    {"0WF", 3, 5, 5000, kStore, 6530, {}, {}, 0, Writes},

    {"0RR", 5, 9, 3000, kRead, 712, kProgram, kStepCount},
    {"0RM", 5, 0, 5000, kRead, 7041, {}, kSteps, 2},
    {"0WM", 0, 7, 5000, kWrite, 7041, kSteps, {}, 2, Writes},
    {"0MW", 5, 7, 5000, kStore, 7041, {}, {}, 2, Writes},
    {"0DM", 5, 5, 5000, kStart, 7041, {}, {}, 2, Moves},
    {"0PM", 5, 5, 5000, kStop, 7041, {}, {}, 2},
    {"0PN", 3, 5, 5000, {}, 723, {}, {}},
    {"0TN", 3, 6, 2000, kRead, 7745, {}, kCount, 0, Free, kPoll},
    {"0TS", 3, 25, 2000, kRead, 7101, {}, kTasks, 0, Free, kPoll},
    {"0PT", 5, 28, 2000, kRead, 7204, kProgram, kTaskStep, 0, Free, kPoll},

    {"0RI", 3, 12, 5000, kRead, 7303, {}, kInputs, 0, Free, kPoll},
    {"0RO", 3, 10, 5000, kRead, 7304, {}, kOutputs, 0, Free, kPoll},
    {"0WO", 8, 5, 5000, kWrite, 7304, kOutputs, {}},
    {"0FR", 7, 10, 2000, kRead, 740, kFlagAsked, kFlag, 0, Free, kPoll},
    {"0HR", 7, 17, 2000, kRead, 750, kValueAsked, kValue, 0, Free, kPoll},
    {"0HP", 7, 16, 2000, kRead, 760, kPlaceAsked, kPlace, 0, Free, kPoll},
};

template <typename Fits>
const WireCommand* Find(Fits fits) {
  const auto* found = std::find_if(std::begin(kCommands), std::end(kCommands), fits);
  return found == std::end(kCommands) ? nullptr : found;
}

}  // namespace

std::span<const WireCommand> WireCommands() { return kCommands; }

const WireCommand* CommandOfRequest(std::string_view frame) {
  return Find([frame](const WireCommand& row) {
    return frame.starts_with(row.start) &&
           (row.request_length == 0 || row.request_length == frame.size());
  });
}

const WireCommand* CommandOfReply(std::string_view line) {
  return Find([line](const WireCommand& row) {
    return line.starts_with(row.start) &&
           (row.reply_length == 0 || row.reply_length == line.size());
  });
}

const WireCommand* CommandOfPrefix(std::string_view bytes) {
  return Find(
      [bytes](const WireCommand& row) { return bytes.starts_with(row.start.substr(0, kPrefix)); });
}

}  // namespace tr7
