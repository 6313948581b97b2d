#pragma once

// The last nets of the program catch every exception, not only the program's own: a failure of
// the system or of the standard library ends in the program's error box too, never in a silent
// exit.

namespace veyrant {

// The error number of the exception being handled; call it only inside a catch block. The
// program's own errors keep their number, a system error takes the number of its cause, and
// anything else is a state the program cannot go on from.
int CaughtErrorNumber();

} // namespace veyrant
