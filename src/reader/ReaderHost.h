#pragma once

// What the Reader asks of the program around it and cannot reach itself: Read.ini, which the
// settings files own, and the Write window, which it must never include.

namespace veyrant {

class ReaderHost {
public:
    virtual ~ReaderHost() = default;

    // Reads the four flags and marks; a flag the file holds as 0 keeps the request in memory.
    virtual void LoadReadSettings() = 0;
    virtual void SaveReadSettings() = 0;
    // No library is open any more: the Write window releases its library buttons and comes back.
    virtual void LibraryClosed() = 0;
    // The Reader closes itself, as the user's close of its window would.
    virtual void UnloadReader() = 0;
    // A Dialogue was deleted: the Write window's Library status follows.
    virtual void LibraryChanged() = 0;
};

} // namespace veyrant
