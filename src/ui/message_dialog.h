#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "platform/form_host.h"

namespace tr7 {

/// Serves events until the dialogue has been answered or the process ends.
using WaitFor = std::function<void(const std::function<bool()>& answered)>;

/// A message box before everything else, with buttons in the user's language.
MsgAnswer AskMessage(const MessageBoxCall& call, QWidget* parent, const WaitFor& wait);

/// The file dialogue in the user's language; asks before it gives back an existing file to save
/// to. Starts in the folder that was used last.
std::optional<std::string> AskFile(const FileDialogCall& call, QWidget* parent,
                                   const WaitFor& wait);

}  // namespace tr7
