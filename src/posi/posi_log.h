#pragma once

namespace tr7 {

/// Writes `TR7V162Log.txt` into the program's folder in place of an old one: the mode, and for
/// every position from slot 0 to the last one the VEL of the four axes, nothing for an axis not in
/// use. For whoever looks into the tool; nothing calls it. 0; 1 when it could not be saved.
int WriteLogToFile();

}  // namespace tr7
