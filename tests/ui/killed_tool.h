#pragma once

namespace tr7 {

/// A tool that holds a jog button on this line until it is killed: `arguments` are the device and
/// the settings file. Its exit code tells that it came to no jog.
int JogUntilKilled(char** arguments);

}  // namespace tr7
