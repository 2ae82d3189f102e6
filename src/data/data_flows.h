#pragma once

#include <optional>
#include <string>

#include "base/msg_id.h"
#include "steps/file_steps.h"
#include "steps/outcome.h"

namespace tr7 {

/// A kind of data whose whole table travels at once, groups or macros: what its flows are made of,
/// and what they say. The flows themselves are the same for each.
struct DataKind {
  // The table on show, and the stage where data come in.
  void (*StoreShown)();     ///< what stands in the boxes into the table
  bool (*MayBeCompared)();  ///< the table is sound; false after the user has been told
  bool (*MayBeSent)();      ///< the same before a write
  void (*StageFromTable)();
  void (*TakeStage)();         ///< the stage becomes the table and is shown
  bool (*IsChanged)();         ///< neither a file nor the controller holds the table
  void (*MarkSaved)();         ///< one of them does
  std::string (*Differing)();  ///< numbers that differ between table and stage: "3,7,"
  std::string (*Details)();    ///< the same with what both hold, a line each

  // The other sides. `FileFault` is why a file could not be read or saved.
  Outcome (*ReadFromCt)();  ///< into the stage
  Outcome (*WriteToCt)();
  int (*ReadFile)(const std::string& path);  ///< into the stage; 0 or 1
  bool (*FileWasRefused)();  ///< the one read last was of another kind, which has been told
  int (*SaveFile)(const std::string& path);  ///< 0 or 1
  const std::string* FileFault;
  std::string* Path;  ///< of the file that the table was opened from or saved to; empty: of none
  bool FailureEndsSession;  ///< a failed read takes the session offline, whatever has failed

  // Texts. Above a list of differences stand two lines, below it the words that name it.
  MsgId AskRead, AskWrite;
  DataFile FileToOpen, File;
  MsgId OpenTitle, SaveTitle, VerifyTitle, PrintTitle;
  MsgId FileNotRead, FileNotSaved;
  MsgId Equal, DifferHead, DifferList, DifferName;
};

// The buttons of such a view. Each tells the user how it ended where its procedure says so.

void ReadData(const DataKind& kind);
void WriteData(const DataKind& kind);
void VerifyDataToCt(const DataKind& kind);
void VerifyDataToFile(const DataKind& kind);
void OpenDataFile(const DataKind& kind);
void SaveDataFile(const DataKind& kind);

// Their steps.

/// Reads the controller's table into the stage. What failed or was stopped has been told.
Outcome ReadDataToStage(const DataKind& kind);
/// Asks for a file and reads it; its path, or nothing after a Cancel or after the user has been
/// told. A file of another kind leaves the table in the stage, so that nothing foreign comes in.
[[nodiscard]] std::optional<std::string> AskAndReadDataFile(const DataKind& kind,
                                                            const DataFile& file, MsgId title_id);
/// Reads a file into the stage, where what it leaves out keeps what was read before. False after
/// the user has been told; a file of another kind may count as read.
[[nodiscard]] bool ReadDataFileToStage(const DataKind& kind, const std::string& path);

}  // namespace tr7
