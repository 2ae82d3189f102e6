#pragma once

#include <QString>
#include <string>

namespace tr7 {

/// The text of a tool tip in lines that the eye takes in: Qt breaks no plain text by itself.
QString TipText(const std::string& text);

}  // namespace tr7
