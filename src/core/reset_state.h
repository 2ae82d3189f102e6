#pragma once

namespace tr7 {

/// Puts every shared record back to its start value and wires all views anew. The program begins
/// with it, and so does every test.
void ResetState();

}  // namespace tr7
