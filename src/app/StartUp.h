#pragma once

// The frame of the program: the start behind the banner, the Write window's first timer, and the
// way out. Every other routine runs inside the window events that these start.

#include "app/Application.h"
#include "core/WindowLayer.h"

namespace veyrant {

// The entry of the process. Returns when the Write window is loaded, hidden, with its Timer1
// running; or when the program has ended (a box has told the user why).
void Main(Application& app);

// The Write window's Timer1: fires once, reveals the window and closes the banner.
void Timer1(Application& app);

// Closing the Write window.
void UnloadMirror(Application& app);

// The one way out of a running program: stores the settings and shows the banner, whose timer
// ends the process 700 milliseconds later.
void ExitProgram(Application& app);

// The banner's timer, which runs only on the way out.
void BannerTimer(Application& app);

// Milliseconds until the Write window opens after a load that ran from loadStart to loadEnd
// (seconds since midnight): the banner stands at least three seconds, and a slow load opens the
// window 100 milliseconds later. A load across midnight counts as two seconds.
int Timer1Interval(float loadStart, float loadEnd);

// Anything that no inner handler caught, in the start or in a window's handler: one box, and the
// process ends.
void ReportSystemError(Application& app, int number);

// The last-resort box for an error number nothing else caught.
MessageBoxRequest SystemErrorBox(int number);

inline constexpr int ClosingBannerMilliseconds = 700;

} // namespace veyrant
