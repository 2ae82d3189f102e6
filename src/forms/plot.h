#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace tr7 {

/// A value at its time, on the pump's clock.
struct PlotSample {
  std::int64_t AtMs = 0;
  std::optional<double> Value;  ///< none: it was not known
};

/// What one signal or value did, oldest first.
struct PlotTrace {
  std::string Name;
  bool Digital = false;  ///< 0 or 1
  std::deque<PlotSample> Samples;

  /// What held at that time: the sample before it; none where nothing was known.
  std::optional<double> At(std::int64_t at_ms) const;
};

/// A strip chart: digital traces as lanes, the others as lines, from `FromMs` to `ToMs`. The
/// traces belong to whoever records them, and stay while they stand in `Shown`.
struct Plot : Control {
  Plot(View& owner, const std::string& name) : Control(owner, "Plot", name) {}

  std::vector<const PlotTrace*> Shown;
  std::int64_t FromMs = 0, ToMs = 1;
  std::int64_t ZeroMs = 0;  ///< the time that counts as 0 s
  std::optional<std::int64_t> CursorA, CursorB;
  std::string Hint;            ///< in place of an empty plot
  std::uint64_t Revision = 0;  ///< rises with every change that a drawing must show

  /// A click on the plot at that time; `second` with the Shift key.
  Handler<void(std::int64_t at_ms, bool second)> Pick;
  /// The wheel over it: above 0 closer.
  Handler<void(int steps)> Zoom;
  /// The picture as it stands, in PNG; set by who draws it. Empty: nobody does.
  std::function<std::string()> Picture;
};

}  // namespace tr7
