#pragma once

#include <functional>
#include <string>

#include "prog/prog_store.h"

namespace tr7 {

/// `cmdProgPrint`, set by who prints.
extern std::function<void(ProgView& view)> PrintProgram;

/// A new program view with one empty step, wired and not shown yet.
ProgView& NewProgView();

/// The frame's commands: an empty program for a number, a file and a program of the controller,
/// each in a view of its own.
void NewProgram();
void OpenProgram();
void ReadProgramData();

/// A program file in a view of its own, unasked; null after the user has been told.
ProgView* ShowProgFile(const std::string& path);
/// The open view of this file's program, where nothing of it is unsaved; null: there is none.
ProgView* UnchangedViewOf(const std::string& path);

/// `SelChange` of the listing: what the cell takes and what its command does in the status panel,
/// and which line commands there are.
void ProgSelectionMoved(ProgView& view);

/// A name that the view offers and nothing asks for: there is nothing to seek, whatever it is
/// given.
inline std::string SeekProgCmd(const std::string& /*command*/) { return {}; }

/// Wires the frame's program commands and the views that there is one of.
void InstallProgViews();

}  // namespace tr7
