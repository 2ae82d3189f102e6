#pragma once

namespace tr7 {

// The buttons of the macro view. Each tells the user how it ended where its procedure says so.

void ReadMacros();
void WriteMacros();
void VerifyMacrosToCt();
void VerifyMacrosToFile();
void OpenMacroFile();
void SaveMacroFile();

}  // namespace tr7
