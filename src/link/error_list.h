#pragma once

#include <string>
#include <vector>

#include "base/bool16.h"

namespace tr7 {

inline constexpr int kErrListPairs = 41;  ///< at most, in each list

/// One row of an error list.
struct ErrListPair {
  std::string Code;  ///< its last character is what the controller sends
  std::string Name;
};

/// Texts of the controller's errors, and the error shown last.
struct ErrorListRecord {
  std::vector<ErrListPair> ErrListMain;  ///< the main board's, at most `kErrListPairs`
  std::vector<ErrListPair> ErrListAxis;  ///< every axis's
  Bool16 ErrListMissing = True;          ///< until a read has succeeded
  Bool16 MissingHintShown;               ///< the user knows that the list is missing
  Bool16 LastErrShown;                   ///< the list held a text
  std::string LastErrText;
  std::string LastErrCode;  ///< one character
};

extern ErrorListRecord ErrorList;

/// Reads the error list of the user's language from the program's folder. 0, or 1 when the file is
/// missing or damaged: then `ErrListMissing` is True and both lists are empty.
int ReadErrorList();

/// Decodes an error reply "0%%", unit, middle, code: sets `CtErrorNo`, `CtErrorName` and
/// `CtErrorKnown` of `AppState`, lights the alarm lamp and tells the error in the status bar.
/// A reply that is short or holds a code that cannot be printed counts as an unknown error. Without
/// an error list the number stands for the text, and the first time a box says where the list
/// belongs.
void DecodeCtError(const std::string& reply);

/// The words for an error reply alone: "AXIS2:Overcurrent". Nothing else changes.
std::string CtErrorWords(const std::string& reply);

/// Decodes `LastCtErrorText`.
void ErrorHyoji();

}  // namespace tr7
