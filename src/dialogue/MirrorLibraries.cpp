// The Write window's side of the Reader: the three library buttons open it while this window
// steps aside, and bringing this window back closes it. Also the backdrop's return by a press on
// this window's border.

#include "dialogue/LibraryDoor.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "shell/Backdrop.h"
#include "shell/DisplayScale.h"
#include "storage/LibraryStatus.h"

namespace veyrant {

void Mirror::ConnectLibraries(LibraryDoor& door, Backdrop& back) {
    door_ = &door;
    back_ = &back;
}

void Mirror::PressLibraryButton(MirrorControl pressed) {
    for (auto button :
         {MirrorControl::cmdHelp, MirrorControl::cmdKnow, MirrorControl::cmdRetrieve}) {
        C(button).PressedIn = button == pressed;
    }
}

void Mirror::OpenLibrary(LibraryId library) {
    if (door_ == nullptr || state_.ReadLibrary == library ||
        world_.ClosingState == ClosingStates::UtilitiesUp) {
        return;
    }
    world_.Windows.SetBusyPointer(true);
    door_->BeginOpening();
    world_.Windows.MinimiseWindow(WindowId::Mirror);
    state_.ReadLibrary = door_->OpenLibrary(library);
    world_.Windows.SetBusyPointer(false);
    EndHover();
}

void Mirror::ReaderClosed() {
    state_.ReadLibrary = LibraryId::None;
    for (auto button :
         {MirrorControl::cmdHelp, MirrorControl::cmdKnow, MirrorControl::cmdRetrieve}) {
        C(button).PressedIn = false;
    }
    if (world_.Windows.IsWindowMinimised(WindowId::Mirror)) {
        world_.Windows.RestoreWindow(WindowId::Mirror);
    }
}

void Mirror::LibraryChanged() {
    // The status stands under the Suggestion until a Dialogue takes its place; a Dialogue on
    // show is left alone.
    auto& saved = C(MirrorControl::txtSaved);
    const std::string statusStart =
        state_.SuggestionText + "\r\n\r\n" + std::string(LibraryStatusHeading);
    if (saved.Text.starts_with(statusStart)) {
        saved.Text = LibraryStatusText(state_.SuggestionText);
    }
}

void Mirror::WindowStateChanged(bool minimised) {
    if (door_ == nullptr || back_ == nullptr) {
        return;
    }
    if (minimised) {
        // Minimised by the user, not by the Reader's opening: the backdrop goes with it.
        if (door_->ReaderOpen() == ReaderOpenState::Closed) {
            world_.Windows.HideWindow(WindowId::Back);
        }
        return;
    }
    if (door_->ReaderOpen() == ReaderOpenState::Open) {
        door_->CloseLibrary();
    }
    // A backdrop hidden with this window comes back behind it.
    if (back_->BackVisible() && !world_.Windows.IsWindowVisible(WindowId::Back) &&
        world_.Windows.ScreenWidthTwips() >= SmallScreenTwips) {
        world_.Windows.ShowWindow(WindowId::Back);
        world_.Windows.ShowWindow(WindowId::Mirror);
    }
}

// Over the bare window the help tells how to bring a hidden backdrop back; with the backdrop up
// there is nothing to tell, and its own hint gives way too.
void Mirror::BackgroundMove() {
    hover_.Unmark();
    if (back_ == nullptr) {
        return;
    }
    if (!world_.Windows.IsWindowVisible(WindowId::Back)) {
        if (C(MirrorControl::txtNote).Text != MirrorText::TipRestoreBackground) {
            hover_.StartArea(MirrorControl::Window, std::string(MirrorText::TipRestoreBackground));
        }
        return;
    }
    EndHover();
    back_->HideHint();
}

void Mirror::BackgroundPress() {
    if (back_ != nullptr && back_->RestoreFromBorder()) {
        world_.Windows.ShowWindow(WindowId::Mirror);
    }
}

} // namespace veyrant
