#pragma once

namespace tr7 {

// Verification of the table on show: both sides' values stand in the result view.

/// Against a position file.
void PosiDataFileShogo2();
/// The same in its older form: all positions or a range, and a file of the oldest layout.
void PosiDataFileShogo();
/// Against the controller.
void PosiDataCtShogo();

}  // namespace tr7
