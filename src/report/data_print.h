#pragma once

namespace tr7 {

// The print buttons of groups and of sequence macros: the table on show, and one out of a file.

void PrintShownGroups();
void PrintGroupFile();
void PrintShownMacros();
void PrintMacroFile();

}  // namespace tr7
