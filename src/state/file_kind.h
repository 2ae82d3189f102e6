#pragma once

#include <string>

namespace tr7 {

/// The kinds of file that this system knows. The ending of a name proves nothing; the head does.
enum class FileKind {
  Unknown,
  Position,
  Parameter,
  Program,
  Group,
  Macro,
  StandardList,
  CommonList,
  DeviceList,
  CommandList,
};

/// What a file's first items say it is.
FileKind KindOfFile(const std::string& utf8);

/// "The file "job.qvd" is a parameter file."; empty for a file of no known kind.
std::string WhatFileIs(const std::string& path, const std::string& utf8);

/// Why a list file is refused: it is of another kind than `due`, or this line of it is damaged.
std::string ListFault(const std::string& name, const std::string& utf8, FileKind due, int line);

/// "Line 12: " and the words. Lines count from 1.
std::string AtLine(int line, const std::string& words);

}  // namespace tr7
