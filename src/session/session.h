#pragma once

namespace tr7 {

/// The connect sequence with a dialogue for each difference between PC and controller. 0: online;
/// 1: offline with the line shut. It ends in one of the two, never between.
int fChangeToOnline();

/// The same for a command that was started offline: menus and tabs follow. 0 or 1.
int ChangeToOnlineFromCommand();

/// `mnuSettingOnline` and `mnuSettingOffline`.
void ChangeToOnlineMenu();
void ChangeToOfflineMenu();

/// The first connection at the start: no dialogues, since the PC holds nothing yet. 0 or 1.
int FirstConnection();

/// `mnuSettingCtMode`: asks for the mode and writes it to the controller.
void ChangeCtModeMenu();

}  // namespace tr7
