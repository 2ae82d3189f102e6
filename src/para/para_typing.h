#pragma once

namespace tr7 {

/// The rules of every field of the parameter view that is typed into: which keys it takes, what
/// happens when the focus leaves it, and where Enter goes.
void InstallParaTyping();

}  // namespace tr7
