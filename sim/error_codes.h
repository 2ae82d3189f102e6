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
inline constexpr char kHomeSensor = '4';      ///< Unit: the axis, middle '3'. Homing failed.
}  // namespace error_code

}  // namespace qvr7sim
