#pragma once

#include <array>
#include <cstdint>

#include "base/axes.h"
#include "base/bool16.h"
#include "forms/control.h"
#include "forms/hold_button.h"
#include "forms/timer.h"

namespace tr7 {

/// Where the axes stand, above the teaching and the move tab.
struct PosiReadout {
  explicit PosiReadout(View& owner);

  ControlSpan controls;  ///< all below

  PerAxis<Label> lblAxisName;
  PerAxis<Label> lblPosi;    ///< present position, in the display unit
  PerAxis<Label> lblStroke;  ///< the range that it lies in
  Label lblPosiUnit;
  Label lblHomeState;  ///< homed or not, in words
  Image imgHomeGreen;  ///< homed
  Image imgHomeWhite;  ///< not homed
  Label lblKanryoCaption;
  Label lblkanryoNo;   ///< the position reached last in a move; "H0" is home
  Label lblKanryoiti;  ///< the same as the last read of the positions found it

  Timer TimerAge{500};  ///< looks, while axes move, whether the positions have grown old
};

/// The teaching tab of the position view.
struct PosiTeaching {
  explicit PosiTeaching(View& owner);

  ControlSpan controls;  ///< all below

  CommandButton cmdJOGST;
  CommandButton cmdJOGend;

  Frame Frame1;
  PerAxis<Label> lblJogAxis;
  std::array<HoldButton, 8> cmdJOG;  ///< two an axis; even: towards home, odd: away from it
  OptionButton optJOG;
  OptionButton optInching1;
  OptionButton optInching10;
  OptionButton optInching100;
  Label lblJogVELCaption;
  Slider sldrJogVEL;  ///< percent, in tens
  Label lblJogVEL;
  Label lblPercent;
  CommandButton cmdJogSlower;
  CommandButton cmdJogFaster;

  Label lblSarvo;
  PerAxis<CheckBox> chkSarvoOn;
  CheckBox chkDirectTeach;

  Label lblPosiNoCaption;
  Label lblPosiNo;  ///< the position that a take fills
  CommandButton cmdJOGWrite;
  CommandButton cmdJOGWriteNext;
  Label lblTeachNote;

  Timer TimerDelay{300};  ///< a press counts again
  Timer timerJogStop{20};
  Timer timerTeaching{300};

  // One press, from the hand's down to the axis at rest.
  Bool16 JogArmed;            ///< a press may start a move
  Bool16 JogPressIgnored;     ///< the press was refused: its release does nothing
  Bool16 JogReleased;         ///< the release has been seen
  Bool16 JogPending;          ///< a press is being served and has not been stopped yet
  Bool16 JogIsContinuous;     ///< jog, not inching
  std::int32_t JogIndex = 0;  ///< the button of the press
  Bool16 JogRunning;          ///< the start has been acknowledged: the axis runs until a stop
  Bool16 StartInFlight;       ///< the start has been handed to the queue and is not answered yet
  Bool16 JogButtonsAreOn;     ///< no press holds them off
  std::int32_t JogStopTicks = 0;  ///< ticks of `timerJogStop` since the release

  // The session.
  AxisArray<Bool16> SarvoEnable{};  ///< the axis has a servo switch
  AxisArray<Bool16> ServoOn{};
  Bool16 DirectTeaching;
  Bool16 TickWaits;  ///< a tick of `timerTeaching` found the line in use, and the next one reads
  std::int16_t TeachLineNo = 0;  ///< 0: none
};

}  // namespace tr7
