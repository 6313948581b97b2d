#pragma once

// The wiring between the Write window and the Reader, which never include each other: the
// Write window opens libraries through the door, the Reader reaches Read.ini and tells the
// Write window it has closed through the host.

#include "dialogue/LibraryDoor.h"
#include "reader/ReaderHost.h"

namespace veyrant {

struct Application;

class LibraryLink final : public LibraryDoor, public ReaderHost {
public:
    explicit LibraryLink(Application& app) : app_(app) {}

    void BeginOpening() override;
    LibraryId OpenLibrary(LibraryId library) override;
    void CloseLibrary() override;
    ReaderOpenState ReaderOpen() const override;

    void LoadReadSettings() override;
    void SaveReadSettings() override;
    void LibraryClosed() override;
    void UnloadReader() override;
    void LibraryChanged() override;

private:
    Application& app_;
};

} // namespace veyrant
