#include "tests/support/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace tr7 {
namespace {

namespace fs = std::filesystem;

std::string FileText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void TakeIncludes(const std::string& text, SourceFile& file) {
  static const std::regex kInclude(R"(#include\s+(["<])([^">]+)[">])");
  for (std::sregex_iterator it(text.begin(), text.end(), kInclude), end; it != end; ++it) {
    ((*it)[1] == "\"" ? file.quoted : file.bracketed).push_back((*it)[2]);
  }
}

SourceFile ReadSource(const fs::path& path) {
  SourceFile file;
  file.path = fs::relative(path, TR7_SOURCE_DIR).generic_string();
  const std::string text = FileText(path);
  TakeIncludes(text, file);
  return file;
}

}  // namespace

std::vector<SourceFile> ReadSources(const std::vector<std::string>& folders) {
  std::vector<SourceFile> files;
  for (const std::string& folder : folders) {
    const fs::path root = fs::path(TR7_SOURCE_DIR) / folder;
    if (!fs::exists(root)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
      const std::string kind = entry.path().extension().string();
      if (kind == ".h" || kind == ".cpp") files.push_back(ReadSource(entry.path()));
    }
  }
  std::sort(files.begin(), files.end(),
            [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
  return files;
}

std::size_t TreeLines(const std::string& path) {
  std::ifstream file(fs::path(TR7_SOURCE_DIR) / path);
  std::size_t lines = 0;
  for (std::string line; std::getline(file, line);) lines += line.empty() ? 0 : 1;
  return lines;
}

std::string IncludedPath(const std::vector<SourceFile>& files, const std::string& quoted) {
  for (const std::string& candidate : {"src/" + quoted, quoted}) {
    const auto found = std::lower_bound(
        files.begin(), files.end(), candidate,
        [](const SourceFile& file, const std::string& path) { return file.path < path; });
    if (found != files.end() && found->path == candidate) return candidate;
  }
  return {};
}

}  // namespace tr7
