#pragma once

// A window of the program is a frame to a screen reader. Qt gives a plain top-level widget the
// role of a client area, which AT-SPI reports as a filler, so a screen reader does not announce
// the window as one.

namespace veyrant {

// Once per process, after the application object exists.
void InstallWindowRoles();

} // namespace veyrant
