#pragma once

namespace qvr7sim {

/// Codes of error replies. Unit '0' unless a unit is named.
namespace error_code {
inline constexpr char kUnknownCommand = '1';  ///< No such command.
inline constexpr char kBadFrame = '2';        ///< Wrong length, or a character that is no digit.
inline constexpr char kBadNumber = '3';       ///< A number, block, axis or value out of range.
inline constexpr char kMoving = '4';          ///< Refused while an axis moves.
inline constexpr char kNotHomed = '5';        ///< Unit: the axis. A move needs its home position.
inline constexpr char kBeyondStroke = '6';    ///< Unit: the axis. The target lies outside.
inline constexpr char kProgramStep =
    '8';  ///< A running program has come to a step without a meaning.
inline constexpr char kMotorPowerOff = 'C';  ///< A move of an axis whose servo is off.
inline constexpr char kHomeSensor = '4';     ///< Unit: the axis, middle '3'. Homing failed.
inline constexpr char kDeviation = '3';  ///< Unit: the axis, middle '1'. Faster than it can run.
inline constexpr char kEncoder = '7';    ///< Unit: the axis, middle '1'. It has no pulse generator.
inline constexpr char kMotorLine = 'A';  ///< Unit: the axis, middle '2'. The servo was lost.
inline constexpr char kPlusLimit = 'D';  ///< Unit: the axis, middle '3'. Ran into its end.
inline constexpr char kMinusLimit = 'E';
}  // namespace error_code

}  // namespace qvr7sim
