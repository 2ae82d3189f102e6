#pragma once

#include <QFileInfo>

#include "forms/frm_compare.h"
#include "forms/frm_grp.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_sq_mcr.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/text.h"
#include "state/views.h"
#include "tests/tour/in_tool.h"
#include "tests/tour/user.h"

namespace tr7::tour {

// The steps that scripts are made of. Each ends with the commands on again.

/// Waits for the choice box with this prompt and takes its first choice, or the second.
void Choose(User& user, MsgId prompt, const char* picture, bool second = false);
/// Waits for the first choice behind the splash, and answers it.
void PassSplash(User& user, bool online);
void SeeOnline(User& user, bool program_mode);
/// Both, for a script that begins online.
void StartOnline(User& user, bool program_mode = false);
/// Starts a read of lines 1 to 40 and confirms it; the pictures are of its questions.
void StartReading(User& user, bool pictures = false);
void ReadAll(User& user);
/// Opens the parameter view and fills it from the controller.
void ReadParameters(User& user);
/// By the unit tab of the options.
void SwitchToPulses(User& user);
void LeaveByMenu(User& user);

/// A cell of the table by position number and column.
struct Cell {
  int number;
  int col;
};
void SeeCell(User& user, const Cell& cell, const std::string& text);
/// Types over the cell and confirms.
void EditCell(User& user, const Cell& cell, const std::string& typed);
/// The same with a text that is no value of the cell: it keeps `kept`.
void BeRefused(User& user, const Cell& cell, const std::string& typed, const std::string& kept);
/// A cell that is left empty passes the edit and is found by the check; `text` makes it good.
void CheckTable(User& user, const Cell& cell, const std::string& text);

/// Saves under a name that is asked for.
void SaveNew(User& user, const QString& path);
/// The same by "Save as", with the range that it asks for.
void SaveAs(User& user, const QString& path);
void WriteAll(User& user);
void VerifyEqual(User& user);
/// One cell was changed since; the result view tells both sides of it.
void VerifyDifferent(User& user, const std::string& own, const std::string& other);
void VerifyFile(User& user, const QString& path, const std::string& own);
/// One cell differs from the file's, in a table of 40 lines.
void CompareFile(User& user, const QString& path, const std::string& own, const std::string& other);
/// Opens the file and drops what was changed: `cell` holds `saved` again.
void OpenAgain(User& user, const QString& path, const Cell& cell, const std::string& saved);

}  // namespace tr7::tour
