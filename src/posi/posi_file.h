#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <vector>

#include "posi/posi_table.h"

namespace tr7 {

inline constexpr std::size_t kPosiFileLimit = 4u
                                              << 20;  ///< bytes; a full table takes about 250,000

/// Why a position file was not read or saved.
struct PosiFileTrouble {
  bool may_pass = false;  ///< a fault of the device, which another try may not meet
  std::string words;      ///< the reason in the user's language
};

/// Reads a file into `PosiStage`, `FileFirstNo` and `FileLastNo` (the first and the last number in
/// the file's order), `FileIsPrgMode`, `FileDevice` and the words of `DevSettei`. Numbers that the
/// file leaves out have the values of a new table. 0 done; 1 not, with `PosiFileNotOurs`, and the
/// stage holds what was read so far. A file of another kind is told to the user, with what it is
/// where its head says so, and the result is 0 with `PosiFileNotOurs`.
int ReadPosiFile(const std::string& path, PosiFileTrouble& trouble);

/// The same of a file's text that is in memory already.
int ReadPosiText(const std::string& utf8, PosiFileTrouble& trouble);

/// The same for the oldest layout: no mode, no words, 20 columns behind each number.
int ReadOldPosiFile(const std::string& path, PosiFileTrouble& trouble);

/// Those of the numbers from first to last as a text, such as "3-5, 9". A long list ends in dots.
std::string NumberRuns(const std::bitset<kPosiSlots>& numbers, int first, int last);
/// The same of the numbers that the file read last does not hold; empty: it holds them all.
std::string NumbersLeftOut(int first, int last);

/// Shows "(New)" or "(Old)" for each axis in use as the file read last says.
void ShowFileAges();

/// The text of a file of these positions, as the table holds them.
std::string PosiFileText(const std::vector<int>& numbers);

/// Saves positions `PosiFromNo` to `PosiToNo` but the bad lines, and on success names the table
/// after the file. 0 done; 1 not, with the old file whole. The caller tells the user.
int SaveFileAs2(const std::string& path, PosiFileTrouble& trouble);

}  // namespace tr7
