#pragma once

#include <cstdint>
#include <string>

#include "base/axes.h"
#include "base/bool16.h"

namespace tr7 {

/// The single shared record of the system. Axis arrays: index 0 to 3 for AXIS1 to AXIS4.
struct AppStateRecord {
  // Language
  std::int16_t LangOffset = 0;  ///< 0 Japanese, 10000 English
  std::int16_t LanguageNo = 1;  ///< 1 Japanese, 2 English
  Bool16 LanguageChanged;       ///< the user picked the other language; applied at exit only

  // Session
  Bool16 Offline = True;  ///< True: no traffic may flow
  Bool16 OfflineTemporarilyLifted;
  Bool16 CtMode;      ///< False position mode, True program mode
  Bool16 CtModeOfCt;  ///< the mode that the controller reported last
  /// Control modes sent, by whoever it was: tells who set one that it may hold no more.
  std::int32_t ControlModesSent = 0;
  Bool16 AxesMayBeHeld;  ///< a write could not release its axes: the next connection does
  Bool16 ProgStepsRead;  ///< the step counts of the controller's programs are known
  Bool16 CtModePending;  ///< a mode was written that the controller takes at its next power cycle
  /// Axis not in use on the PC side; the same fact is called AxisAbsent where devices are meant.
  AxisArray<Bool16> AxisMuko;
  AxisArray<Bool16> AxisMukoOfCt;
  /// Axis without a device in the opened position file; also called FileAxisAbsent.
  AxisArray<Bool16> AxisMukoOfFile;
  std::int16_t AxisPattern = 0;  ///< bit i: axis i+1 is in use on the controller
  std::int16_t AxisPatternOfCt = 0;
  std::int16_t AxisCount = 0;  ///< axes of the controller, 1 to 4
  std::string CtVersionText;   ///< main board version, 3 characters
  std::string CtModelMarker;   ///< "R1M" to "R4M"
  std::int16_t CtAxisDigit = 0;
  AxisArray<std::string> AxisVersionText;
  Bool16 AllHomed;
  /// Homing has been done since power-on: forgotten at an alarm, a servo switched off and a new
  /// connection.
  Bool16 HomeDone;

  // Settings
  std::int16_t PortNo = 1;     ///< 1 to 9
  std::int16_t BaudIndex = 0;  ///< 0: 9600, 1: 19200, 2: 38400; always 0
  Bool16 PortOccupy;           ///< the port stays open between sequences
  Bool16 DispMmUnit;           ///< positions are shown in millimetres
  Bool16 MmRoundUp;            ///< a tie of the conversion goes up

  // What runs
  Bool16 TeachingNow;
  Bool16 ComBusy;                     ///< a long sequence runs; blocks exit
  std::int16_t CommandsOffDepth = 0;  ///< flows, one within the other, that hold the commands off
  Bool16 CancelRequested;             ///< the cancel button beside the progress bar was pressed
  Bool16 ProgressWriting;             ///< the running bulk sequence may be cancelled
  Bool16 SplashDone;
  Bool16 Closing;        ///< the tool closes: no request goes out any more
  Bool16 GroupMoveStop;  ///< the stop button of a group move was pressed
  std::int16_t NextProgViewNo = 1;

  // Link
  Bool16 TusinTimedOut;
  Bool16 TusinReplyReady;
  std::string TusinReplyText;  ///< last complete line, with CR LF
  std::string TusinRxBuffer;   ///< partial line so far
  std::string OpenPortName;    ///< the device that has been opened; empty: the port is shut
  std::string PortFaultText;   ///< the reason behind the last port failure, in the user's language

  // Alarm
  Bool16 AlarmOn;
  std::string LastCtErrorText;  ///< raw error reply
  std::string CtErrorNo;        ///< one character
  std::string CtErrorName;
  Bool16 CtErrorKnown;
  Bool16 AlarmNotResettable;  ///< never set; the branches that test it stay

  // Position range
  std::int16_t PosiFirstNo = 0;  ///< both 0: no table
  std::int16_t PosiLastNo = 0;
  std::int16_t PosiCount = 0;
  std::int16_t PosiFromNo = 0;  ///< range of the running operation
  std::int16_t PosiToNo = 0;
  std::int16_t FileFirstNo = 0;
  std::int16_t FileLastNo = 0;
  std::int16_t SyogoFromNo = 0;
  std::int16_t SyogoToNo = 0;
  Bool16 RangeCancelled;
  Bool16 RangeIsForNew;
  Bool16 FileIsPrgMode;
  Bool16 PosiFileNotOurs;

  // Limits
  AxisArray<std::int32_t> MaxPulse{};
  AxisArray<double> MaxMm{};  ///< whole multiples of 0.0001
  AxisArray<std::int16_t> MaxVel{};
  AxisArray<double> StrokePulse{};
  AxisArray<double> StrokeMm{};

  // Motion settings, one value each for its three fields
  std::int16_t VelOf100Pls = 20;
  std::int16_t AccOf100Pls = 3;
  std::int16_t AccOf100Pls2 = 3;
  std::int16_t AccOfJog = 3;
  std::int16_t AccOfJog2 = 2;

  // Paths
  std::string HelpFilePath;
};

extern AppStateRecord AppState;

}  // namespace tr7
