#pragma once

#include <string>
#include <vector>

#include "forms/view.h"

namespace tr7 {

/// Views that are on the screen, oldest first; the frame is the first.
const std::vector<View*>& OpenViews();
/// The view inside the frame that the user works in, or null.
View* ActiveView();
/// The dialogue that stands before all other views, or null.
View* ModalView();
/// The host tells which view the user has made the active one.
void SetActiveView(View* view);

/// Called for every view before its `Load`, and before its `Unload` where it is closed; set by who
/// remembers what the user made of its window.
extern void (*ViewComes)(View& view);
extern void (*ViewGoes)(View& view);

/// Fills every caption of the view that has a message id.
void ApplyViewCaptions(View& view);

/// Loads the view when it is not loaded (captions, then its `Load`) and shows it.
void ShowView(View& view);
/// The same, before all others; returns when the view has been closed.
void ShowViewModal(View& view);
/// Shows a view of the frame, or brings it to the front where it is open.
void ShowOrBringToFront(View& view);
/// Closes without asking: takes the view off the screen, then runs its `Unload`.
void UnloadView(View& view);
/// The user or a command asks to close: `QueryUnload` may refuse. True when the view is closed.
bool CloseView(View& view, CloseReason reason);

/// Forgets all views (tests and the start).
void ResetViews();

/// Commands of every open view off and on; every long sequence stands between the two.
void AllViewsCmdMuko();
void AllViewsCmdYuko();
/// Every control of the view that a user acts on goes off or on; a button without a command stays
/// off. Nothing is typed into what a transfer is about.
void SwitchControls(View& view, bool on);
/// Tells every open view that the line went online or offline, or that mode, axes or devices are
/// others now.
void AllViewsOnlineChanged();
void AllViewsLayoutChanged();

}  // namespace tr7
