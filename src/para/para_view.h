#pragma once

namespace tr7 {

/// The parameter view: how it opens and closes, its buttons, and the rules of its fields.
void InstallParaView();

}  // namespace tr7
