#pragma once

#include <string>

#include "steps/outcome.h"

namespace tr7 {

/// `cmdParaPrint` and `cmdParaFilePrint`.
void PrintParaOnScreen();
void PrintParaOfFile();

// The same without their questions, for who has asked already.
Outcome PrintShownPara();
Outcome PrintParaFile(const std::string& path);

}  // namespace tr7
