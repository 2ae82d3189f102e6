#pragma once

#include <string>

namespace tr7 {

inline constexpr int kPosiReplyLength = 68;  ///< with CR LF

/// True when a reply line is of `number` and all its fields are hexadecimal numbers.
bool IsPosiRecord(const std::string& reply, int number);

/// Takes a reply line ("0RP", number, fields, CR LF) into `PosiStage` at that number, columns 1 to
/// 27. False, and the stage untouched, when it is no record of that number.
bool DecodePosiRecord(const std::string& reply, int number);

/// The write command of a position number from `PosiRec`: "0WP", number, 60 digits.
std::string EncodePosiRecord(int number);

}  // namespace tr7
