#pragma once

#include <string>

#include "base/msg_id.h"
#include "steps/file_steps.h"

namespace tr7 {

/// Parameter files in the file dialogues.
inline constexpr DataFile kParaDataFile{FileKind::Parameter, 1827, "pmt", 12};

// Parameter files as the user saves and opens them. The view's commands are off while one runs.

/// `cmdSaveParaFile`: checks the view, asks for a name and saves. 0 saved; 1 not: an empty or a
/// wrong value, Cancel, or a failure, each told in a box except Cancel.
int SaveParaToFile();

/// `cmdReadParaFile`: asks for a file, takes it into `ParamSet` and shows it in the view.
void OpenParaFile();

/// Reads a file into `ParaTable`, in a form that `TakeParamTable` takes. False after the user has
/// been told.
[[nodiscard]] bool ParaFileIsRead(const std::string& path);

/// The same for a file to verify, which it asks for. False on Cancel too.
[[nodiscard]] bool ReadParaFileToVerify();

/// Offers by this message to save what has been changed in the view. True when nothing stands in
/// the way of losing it.
[[nodiscard]] bool MayDropParaChanges(MsgId question_id);

/// Asks for a parameter file from which devices are taken, and reads it into `ParamSet`; up to four
/// attempts, 100 ms apart. 0 done; 1 cancelled, or failed after message 681. The view is not
/// redrawn.
int OpenParaForDevice();

}  // namespace tr7
