#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tr7 {

/// One C++ file of the tree.
struct SourceFile {
  std::string path;                    ///< from the tree's root, "src/core/text.h"
  std::vector<std::string> quoted;     ///< what stands in #include "..."
  std::vector<std::string> bracketed;  ///< what stands in #include <...>
};

/// Every .h and .cpp file below the given folders of the tree, sorted by path.
std::vector<SourceFile> ReadSources(const std::vector<std::string>& folders);

/// The tree's path that a quoted include of a file below `src`, `sim` or `tests` leads to; empty
/// when no such file stands in the tree (a generated one).
std::string IncludedPath(const std::vector<SourceFile>& files, const std::string& quoted);

/// Number of lines of a file of the tree that are not empty.
std::size_t TreeLines(const std::string& path);

}  // namespace tr7
