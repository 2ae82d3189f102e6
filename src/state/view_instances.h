#pragma once

#include <memory>
#include <utility>

#include "forms/view.h"

namespace tr7 {

// Views that exist in numbers. Each is a record of its own, made when it is opened; its handlers
// take the view that they belong to. `ShowView` shows it, and once it has been unloaded it is gone:
// not at once, for its own handlers may have closed it, but as soon as none of them runs.

/// Takes a view that was made at run time into keeping.
void KeepView(std::unique_ptr<View> view);

/// Makes a view of this kind and keeps it.
template <typename Record, typename... Args>
Record& NewView(Args&&... args) {
  auto made = std::make_unique<Record>(std::forward<Args>(args)...);
  Record& view = *made;
  KeepView(std::move(made));
  return view;
}

/// The view was unloaded; one that is kept here is to go, any other stays.
void LetViewGo(const View& view);

/// True when a closed view can go now: no handler runs, and the screen is done with it.
bool ClosedViewsMayGo();
void DestroyClosedViews();

/// Destroys all of them, shown or not, when all state begins anew.
void DestroyViewInstances();

}  // namespace tr7
