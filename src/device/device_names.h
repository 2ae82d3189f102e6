#pragma once

namespace tr7 {

/// The device names of the opened position file (`FileDevice`) into `DevSettei`, for axes
/// that are in use both here and in the file. A name is "QV-28L-100E" or "QV- 28L-100E",
/// with "NB-" for another series; behind the stroke up to three option letters count: "V" vertical,
/// "E" with pulse generator. 0, or 1 after messages 4 and 5 at the first name that is not valid or
/// not in the catalogue; axes before it are taken over by then.
int ParseDeviceNames();

}  // namespace tr7
