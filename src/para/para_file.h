#pragma once

#include <string>

namespace tr7 {

/// Reads a parameter file into `ParaTable`, which is emptied first; slot 0 of column 0 takes the
/// path. Rows that the file does not hold stay empty. 0; 1 with `ParaFileBad` (which a good read
/// does not clear): a file of another kind is told to the user here, of any other `FileFaultText`
/// says what is wrong and on which line, and the caller tells.
int ReadParaTable(const std::string& path);

/// The same of a file's text that is in memory already.
int ReadParaText(const std::string& utf8);
/// The text of a file of `ParamSet`.
std::string ParaFileText();

/// Saves `ParamSet`. 0; 1 with `ParaFileWriteFailed` and `FileFaultText`, the old file being whole.
/// The caller tells the user.
int WriteParaFile(const std::string& path);

}  // namespace tr7
