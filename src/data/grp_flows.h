#pragma once

namespace tr7 {

// The buttons of the group view. Each tells the user how it ended where its procedure says so.

void ReadGroups();
void WriteGroups();
void VerifyGroupsToCt();
void VerifyGroupsToFile();
void OpenGroupFile();
void SaveGroupFile();

}  // namespace tr7
