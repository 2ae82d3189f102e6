#pragma once

#include <string>

namespace tr7 {

/// The console's titles, and its shown rows from one to behind another (from 0), as lines of text.
std::string WireRowsAsText(std::size_t from, std::size_t to);

/// Asks for a file and saves what is shown, under a head that says what it is the record of.
void SaveWireRows();

}  // namespace tr7
