#pragma once

// How the Write window opens and closes the Reader without knowing it: the composition root
// wires this to the Read window's logic.

#include "shell/LibraryId.h"
#include "shell/ReaderOpenState.h"

namespace veyrant {

class LibraryDoor {
public:
    virtual ~LibraryDoor() = default;

    // The Reader is about to open: the Write window's minimising must not take the backdrop.
    virtual void BeginOpening() = 0;
    // Opens the Reader on a library. Returns the library that shows, which a mark waiting in
    // another library can change.
    virtual LibraryId OpenLibrary(LibraryId library) = 0;
    // Closes the Reader as closing its window would.
    virtual void CloseLibrary() = 0;
    // 0 closed, -1 opening, 1 open.
    virtual ReaderOpenState ReaderOpen() const = 0;
};

} // namespace veyrant
