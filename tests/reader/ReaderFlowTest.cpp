#include "ReaderFixture.h"

namespace veyrant::testing {
namespace {

using MC = MirrorControl;

class ReaderFlow : public ReaderFixture {
protected:
    void Press(MC button, MouseButton mouse = MouseButton::Left) {
        App.Write->MouseDown(button, mouse);
        App.Write->Click(button);
    }
    bool Pressed(MC button) { return App.Write->Controls()[button].PressedIn; }
};

// Each library button opens its library with the Write window minimised behind the Reader, and
// bringing the Write window back closes the Reader and releases the button.
TEST_F(ReaderFlow, LibraryButtonsOpenTheReaderAndRestoringClosesIt) {
    const struct {
        MC Button;
        MouseButton Mouse;
        const char* Title;
        LibraryId ReadLibrary;
    } cases[] = {
        {MC::cmdHelp, MouseButton::Left, "Veyrant Information Library", LibraryId::Information},
        {MC::cmdKnow, MouseButton::Left, "Veyrant Knowledge Library", LibraryId::Knowledge},
        {MC::cmdKnow, MouseButton::Right, "Veyrant Advanced Knowledge Library",
         LibraryId::Advanced},
        {MC::cmdRetrieve, MouseButton::Left, "Veyrant Dialogue Library -- No Dialogues Saved",
         LibraryId::Dialogue},
    };
    for (const auto& c : cases) {
        Press(c.Button, c.Mouse);
        EXPECT_EQ(Title(), c.Title);
        EXPECT_EQ(App.Write->State().ReadLibrary, c.ReadLibrary);
        EXPECT_EQ(App.Reading.ReaderOpen, ReaderOpenState::Open);
        EXPECT_TRUE(Windows.IsWindowMinimised(WindowId::Mirror));
        EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Read));
        EXPECT_TRUE(Pressed(c.Button));
        EXPECT_FALSE(Windows.Busy);

        // The same library is not opened twice.
        const auto events = Windows.WindowEvents.size();
        Press(c.Button, c.Mouse);
        EXPECT_EQ(Windows.WindowEvents.size(), events);

        // The user brings the Write window back.
        Windows.RestoreWindow(WindowId::Mirror);
        App.Write->WindowStateChanged(false);
        EXPECT_EQ(App.Reading.ReaderOpen, ReaderOpenState::Closed);
        EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Read));
        EXPECT_EQ(App.Write->State().ReadLibrary, LibraryId::None);
        EXPECT_FALSE(Pressed(c.Button));
    }
    EXPECT_TRUE(std::filesystem::exists(Folder.Exe() / "Read.ini"));

    // Closing the Reader's own window brings the Write window back from minimised.
    Press(MC::cmdKnow);
    App.Links.CloseLibrary();
    EXPECT_FALSE(Windows.IsWindowMinimised(WindowId::Mirror));
    EXPECT_FALSE(Pressed(MC::cmdKnow));
    EXPECT_EQ(App.Write->State().ReadLibrary, LibraryId::None);
}

// The backdrop goes when the user minimises the Write window, not when the Reader's opening
// does, and comes back with the Write window.
TEST_F(ReaderFlow, BackdropFollowsTheWriteWindow) {
    Windows.ShowWindow(WindowId::Back);
    App.Back.Load();
    Press(MC::cmdHelp);
    App.Write->WindowStateChanged(true);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    Windows.RestoreWindow(WindowId::Mirror);
    App.Write->WindowStateChanged(false);

    App.Write->WindowStateChanged(true);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
    App.Write->WindowStateChanged(false);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    EXPECT_EQ(Windows.WindowEvents.back(), "show Mirror");
}

} // namespace
} // namespace veyrant::testing
