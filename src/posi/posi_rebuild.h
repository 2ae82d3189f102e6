#pragma once

namespace tr7 {

/// Shows what the chosen tab of the mode's command strip holds.
void ShowPosiTab();

/// Rebuilds the view in the layout of `CtMode`: strip, columns, colours, titles, table.
void RebuildPosiView();

}  // namespace tr7
