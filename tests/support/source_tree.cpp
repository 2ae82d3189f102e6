#include "tests/support/source_tree.h"

#include <algorithm>
#include <cctype>
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
  file.code = WithoutCommentsAndTexts(text);
  return file;
}

/// Where the comment or quoted text that begins at `at` ends; `at` when none does.
std::size_t SkipFrom(std::string_view source, std::size_t at) {
  const auto behind = [&](std::string_view mark, std::size_t from) {
    const std::size_t found = source.find(mark, from);
    return found == std::string_view::npos ? source.size() : found + mark.size();
  };
  const std::string_view rest = source.substr(at);
  if (rest.starts_with("//")) return std::min(source.find('\n', at), source.size());
  if (rest.starts_with("/*")) return behind("*/", at + 2);
  if (rest.starts_with("R\"")) {
    const std::size_t open = source.find('(', at);
    const std::string close = ")" + std::string(source.substr(at + 2, open - at - 2)) + "\"";
    return behind(close, open);
  }
  // A quote between digits parts thousands.
  if (rest[0] == '\'' && at > 0 && std::isalnum(static_cast<unsigned char>(source[at - 1]))) {
    return at;
  }
  if (rest[0] != '"' && rest[0] != '\'') return at;
  std::size_t end = at + 1;
  while (end < source.size() && source[end] != rest[0]) end += source[end] == '\\' ? 2 : 1;
  return std::min(end + 1, source.size());
}

}  // namespace

std::string WithoutCommentsAndTexts(std::string_view source) {
  std::string code;
  for (std::size_t at = 0; at < source.size();) {
    const std::size_t end = SkipFrom(source, at);
    if (end == at) {
      code += source[at++];
      continue;
    }
    if (source[at] != '/') code += "\"\"";
    code.append(static_cast<std::size_t>(
                    std::count(source.begin() + static_cast<std::ptrdiff_t>(at),
                               source.begin() + static_cast<std::ptrdiff_t>(end), '\n')),
                '\n');
    at = end;
  }
  return code;
}

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
