#include "app/LibraryLink.h"

#include "app/Application.h"
#include "app/SettingsFiles.h"

namespace veyrant {

void LibraryLink::BeginOpening() {
    app_.Reading.ReaderOpen = ReaderOpenState::Opening;
}

LibraryId LibraryLink::OpenLibrary(LibraryId library) {
    // Each opening loads the window afresh, as closing unloaded it.
    if (!app_.Windows.IsWindowVisible(WindowId::Read)) {
        app_.Read = std::make_unique<Reader>(app_.ReadWorld());
        app_.Windows.LoadWindow(WindowId::Read);
    }
    app_.Read->RequestLibrary(library);
    app_.Read->SetReader();
    return app_.Reading.ReadLibrary;
}

void LibraryLink::CloseLibrary() {
    if (!app_.Read || app_.Reading.ReaderOpen == ReaderOpenState::Closed) {
        return;
    }
    app_.Read->CloseReader();
    app_.Windows.UnloadWindow(WindowId::Read);
}

ReaderOpenState LibraryLink::ReaderOpen() const {
    return app_.Reading.ReaderOpen;
}

void LibraryLink::LoadReadSettings() {
    veyrant::LoadReadSettings(app_);
}

void LibraryLink::SaveReadSettings() {
    veyrant::SaveReadSettings(app_);
}

void LibraryLink::LibraryClosed() {
    if (app_.Write) {
        app_.Write->ReaderClosed();
    }
}

void LibraryLink::UnloadReader() {
    CloseLibrary();
}

void LibraryLink::LibraryChanged() {
    if (app_.Write) {
        app_.Write->LibraryChanged();
    }
}

} // namespace veyrant
