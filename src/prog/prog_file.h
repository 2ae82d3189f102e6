#pragma once

#include <string>

#include "prog/prog_store.h"

namespace tr7 {

/// Writes the listing as it stands. 0; 1 with `FileFault`, and the old file is whole.
int SaveFileProgAs2(const std::string& path, ProgView& view);

/// The text of a file of the listing.
std::string ProgFileText(const Grid& listing);
/// Reads a program file's text; as below, and `path` is what it is called.
int ReadProgText(const std::string& utf8, const std::string& path, ProgStore& store);

/// Reads a program file into `ProgFileDA`, which stays whole unless all is read. 0; 1 with
/// `FileFault`, or after a file of another kind has been told. Rows that the file's count announces
/// and that it lacks are empty; rows beyond the count refuse it.
int OpenProgFile(const std::string& path, ProgStore& store);

/// The view's caption after the file: "Program [name]".
void ShowProgFileName(const std::string& path, ProgView& view);

}  // namespace tr7
