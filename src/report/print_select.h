#pragma once

#include <optional>
#include <string>

#include "posi/posi_range.h"

namespace tr7 {

/// What the user wants printed. A kind with a path is printed from that file, another as it is
/// shown.
struct PrintChoice {
  bool Posi = false, Para = false;
  PosiRange Range;  ///< of shown positions
  std::string PosiFile, ParaFile;
};

/// `frmPrintSelect`; nothing on Cancel.
[[nodiscard]] std::optional<PrintChoice> AskPrintChoice();

}  // namespace tr7
