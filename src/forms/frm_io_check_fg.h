#pragma once

#include <cstddef>
#include <cstdint>

#include "forms/grid.h"
#include "forms/option_group.h"
#include "forms/plot.h"
#include "forms/timer.h"

namespace tr7 {

inline constexpr int kInputRows = 25;
inline constexpr int kOutputRows = 19;
inline constexpr int kMostWatched = 20;  ///< rows of a watch list

/// Columns of the points' tables.
enum PointColumn : int { kPointName, kPointState, kPointOwnName, kPointForced };

/// The names of a watch list's controls, and its texts.
struct WatchPaneNames {
  const char *pane, *grid, *add, *remove, *base;
  MsgId title, number;
};

/// One watch list with its fields and buttons.
struct WatchPane {
  WatchPane(View& owner, const WatchPaneNames& names, const char* program_field,
            const char* number_field);

  Frame Pane;
  CheckBox chkRead;  ///< the monitor reads this list
  Grid List;         ///< a heading row; program, item, value
  Label lblProgram;
  TextBox txtProgram;
  UpDown updProgram;
  Label lblNumber;
  TextBox txtNumber;
  UpDown updNumber;
  CommandButton cmdAdd;
  CommandButton cmdChange;
  CommandButton cmdDelete;
  CommandButton cmdUp;
  CommandButton cmdDown;
};

/// Inputs, outputs and positions.
struct IoPage {
  explicit IoPage(View& owner);

  ControlSpan controls;  ///< all below
  Frame framInput;
  Grid flgdInput;  ///< a row a point, by `PointColumn`
  Frame framOutput;
  Grid flgdOutput;
  Frame framPosition;
  PerAxis<Label> lblAxis;
  PerAxis<Label> lblCurrentPos;
  CommandButton cmdNamesLoad;
  CommandButton cmdNamesSave;
};

/// The watch lists.
struct WatchPage {
  explicit WatchPage(View& owner);

  ControlSpan controls;  ///< all below
  CheckBox chkEditItem;
  OptionGroup<2> optFlag;  ///< global, local
  WatchPane Flags;
  OptionGroup<2> optHensu;
  WatchPane Variables;
  WatchPane PosVariables;
};

/// The plot of any of them.
struct PlotPage {
  explicit PlotPage(View& owner);

  ControlSpan controls;  ///< all below
  CheckBox chkPlotPause;
  CommandButton cmdPlotBack;
  CommandButton cmdPlotOn;
  CommandButton cmdPlotIn;
  CommandButton cmdPlotOut;
  CommandButton cmdPlotCsv;
  CommandButton cmdPlotPicture;
  Grid flgdPlot;  ///< what can be shown, and its values at the cursors
  Plot plotIo;
  Label lblPlotCursor;

  std::size_t Span = 2;       ///< how much time is on show, from the most down
  std::int64_t HeldToMs = 0;  ///< where a held plot ends
};

/// The monitor.
struct FrmIOCheckFG : View {
  FrmIOCheckFG();

  TabStrip tabIo{*this, "tabIo", {{7300}, {7301}, {7302}}};
  CommandButton cmdIoMonitor{*this, "cmdIoMonitor", 702};
  CheckBox chkIgnore{*this, "chkIgnore", 706};
  Label lblPace{*this, "lblPace"};  ///< how often the values come, or how old they are
  CommandButton cmdIoCopy{*this, "cmdIoCopy", 7325};
  CommandButton cmdIoWinClose{*this, "cmdIoWinClose", 703};
  IoPage Io{*this};
  WatchPage Watched{*this};
  PlotPage Chart{*this};

  Timer timerInputOutput1{2000};
  Timer TimerBtnOff{500};
  Timer TimerDispInit{10};
  Timer TimerAge{500};  ///< looks, while a poll waits long, whether what is on show has aged
};

inline Standing<FrmIOCheckFG> frmIOCheckFG;

}  // namespace tr7
