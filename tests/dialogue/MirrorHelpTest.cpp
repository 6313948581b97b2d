#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

using MirrorHelp = MirrorTest;

// Help shows 1.25 seconds after the mouse arrives, however it moves on the control, ends by
// itself after seven ticks and follows the state; the response box toggles by a click.
TEST_F(MirrorHelp, HelpShowsAfterATickEndsByItselfAfterSevenAndFollowsTheState) {
    mirror->StartWindow();
    mirror->MouseMove(cmdClear); // a disabled button has no help
    EXPECT_EQ(Layer.Timers.count(TimerId::MirrorHover), 0u);
    EXPECT_TRUE(Help(cmdNotate).starts_with("Open your Dialogue with a comment."));
    EXPECT_TRUE(Help(cmdRetrieve).starts_with("Open the Dialogue Library. You have no saved"));
    for (const auto& [minute, saved] :
         {std::pair{0, "1 saved Dialogue."}, {1, "2 saved Dialogues."}}) {
        Clock.Date.Minute = minute; // one file name per minute
        ASSERT_TRUE(Library.AddToLibrary("\tInspiration.", "\r\n\r\n\tA comment."));
        mirror->MouseMove(txtMirror);
        EXPECT_NE(Help(cmdRetrieve).find(std::string("access your ") + saved), std::string::npos);
    }
    Click(cmdConverse);
    const std::string instruction = Text(txtNote);
    EXPECT_EQ(Help(cmdConverse), "Click 'Cancel' to exit Converse and reset to New Dialogue.");
    EXPECT_TRUE(Help(cmdNotate).starts_with("Add a comment into your Dialogue."));
    const int& starts = Layer.TimerStarts[TimerId::MirrorHover];
    for (const auto& [control, help] :
         {std::pair<MirrorControl, std::string>{txtResponse, "Click the text to toggle"},
          {txtNote, "F1=Help F2=Know"},
          {cmdNew, "Cancel your interaction"}}) {
        const int before = starts;
        for (int move = 0; move < 3; ++move) {
            mirror->MouseMove(control);
        }
        EXPECT_EQ(starts - before, 1);
        if (control == txtNote) { // the instruction box names the function keys
            EXPECT_EQ(Text(txtNote), "Function key alternates for mouse clicks . . .");
        }
        mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_TRUE(Text(txtNote).starts_with(help));
        // Leaving and coming back is another arrival.
        mirror->MouseMove(txtMirror);
        mirror->MouseMove(control);
        EXPECT_EQ(starts - before, 2);
        mirror->MouseMove(txtMirror);
    }
    mirror->MouseMove(cmdNew);
    EXPECT_EQ(Box(cmdNew).Ink, Colour::HoverInk);
    EXPECT_TRUE(Box(cmdNew).Underlined);
    EXPECT_EQ(Text(txtNote), instruction);
    for (int tick = 1; tick <= 7; ++tick) {
        mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_EQ(Text(txtNote), "Cancel your interaction and return to New Dialogue.");
        EXPECT_EQ(Box(txtNote).Ink, Colour::HelpInk);
    }
    mirror->TimerFired(TimerId::MirrorHover);
    EXPECT_EQ(Text(txtNote), instruction);
    EXPECT_EQ(Layer.Timers.count(TimerId::MirrorHover), 0u);
    // The button stays marked until the mouse goes elsewhere.
    EXPECT_EQ(Box(cmdNew).Ink, Colour::HoverInk);
    mirror->MouseMove(txtSaved);
    EXPECT_EQ(Box(cmdNew).Ink, Colour::Black);
    // Moving to the entry box brings the instruction back at once.
    Help(cmdNew);
    mirror->MouseMove(txtMirror);
    EXPECT_EQ(Text(txtNote), instruction);
    EXPECT_EQ(Box(cmdNew).Ink, Colour::Black);
    // A click ends the help, so its effect shows.
    Type("I want to understand my own anger better.");
    Help(cmdClear);
    Click(cmdClear);
    EXPECT_EQ(Text(txtNote).rfind("Type your entry again.", 0), 0u);
    EXPECT_TRUE(Box(cmdClear).Ink == Colour::Black &&
                Layer.Timers.count(TimerId::MirrorHover) == 0);
    // A click on the response box turns it over.
    Converse("Why do I wait for permission?");
    Enter();
    const std::string inspiration = State().InspirationView;
    EXPECT_EQ(Text(txtResponse), inspiration);
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), "Suggestion 1");
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse).substr(0, 26), "Direction for Conversation");
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), inspiration);
    // A result or a message on show stays where it is.
    Converse("Why do I wait for permission again?");
    const std::string result = Text(txtResponse);
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), result);
    // Each button's help follows the state.
    EXPECT_TRUE(Help(cmdConverse).starts_with("Click 'Finish' to close your Dialogue"));
    EXPECT_EQ(Help(cmdRemove), "Remove the current entry-response pair from the Dialogue.");
    Click(cmdRemove);
    EXPECT_EQ(Help(cmdRemove), "Keep the current entry-response pair in the Dialogue.");
    Click(cmdRemove);
    Click(cmdNew); // Finish
    EXPECT_TRUE(Help(cmdNew).starts_with("Erase the Dialogue to begin another."));
    EXPECT_TRUE(Help(cmdDisplay).starts_with("Save the displayed Dialogue as a text file"));
}

} // namespace
} // namespace veyrant::testing
