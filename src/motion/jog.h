#pragma once

namespace tr7 {

/// A jog button goes down: starts the jog, or one inching step. `index` 0 to 7.
void cmdJOG_MouseDown(int index);
/// It comes up: stops the jog. Exactly one follows every press.
void cmdJOG_MouseUp(int index);

// The jog buttons as the press and its release switch them.
void JogButtonsOff();
void JogButtonsOn();

void timerJogStop_Tick();
void TimerDelay_Tick();

/// No press is being served and none is remembered.
void ClearJog();

}  // namespace tr7
