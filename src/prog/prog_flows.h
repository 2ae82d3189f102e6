#pragma once

#include <optional>
#include <string>
#include <vector>

#include "prog/prog_store.h"
#include "steps/file_steps.h"

namespace tr7 {

// The flows of a program view. Each tells the user how it ended.

/// `cmdProgWrite`.
void ProgDataWrite2Ct(ProgView& view);
/// `cmdProgVerifyCt`. A failed read closes the view, which asks for what is not saved.
void cmdProgVerifyCt_Click(ProgView& view);
/// Save As, of a program with errors too where the user says so.
void ProgDataSaveAs(ProgView& view);

/// Asks for a program of the controller and reads it; false where there is none to show.
[[nodiscard]] bool ProgDataGetfromCt(int& program, std::vector<ProgStep>& steps);
/// Asks for a file and reads it into a view that is made once it is there; null where nothing has
/// come.
[[nodiscard]] ProgView* ProgDataFileOpen(ProgView& (*make_view)());

/// Reads a file that is known into a view that is made once it is there; null after the user has
/// been told.
[[nodiscard]] ProgView* ReadProgFile(const std::string& path, ProgView& (*make_view)());

inline constexpr DataFile kProgDataFile{FileKind::Program, 131, "prg", 438};  ///< to be opened

/// Reads a program file into the store; false after the user has been told.
[[nodiscard]] bool ProgFileIsRead(const std::string& path, ProgStore& store);

/// The line, the step counts and the user's choice of a program of the controller; none where one
/// of them fails.
[[nodiscard]] std::optional<int> AskProgNoOfCt();

/// The 100 step counts, unless they are known.
[[nodiscard]] bool KnowProgStepCounts();

}  // namespace tr7
