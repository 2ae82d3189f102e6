#pragma once

namespace tr7 {

/// A tool that holds a jog button on this line until it is killed: `arguments` are the device and
/// the settings file. Its exit code tells that it came to no jog.
int JogUntilKilled(char** arguments);

/// A tool that edits a table of positions until it is killed: `argument` is the settings file. The
/// first comment holds the time of the last edit.
int EditUntilKilled(const char* argument);

}  // namespace tr7
