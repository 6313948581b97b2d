#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

using MirrorHelp = MirrorTest;

const std::string CancelHelp = "Cancel your interaction and return to New Dialogue.";

// Help shows after a tick and ends by itself after seven; the response box toggles by a click.
TEST_F(MirrorHelp, HelpShowsAfterATickAndEndsByItselfAfterSeven) {
    StartConverse();
    const std::string instruction = Text(txtNote);
    mirror->MouseMove(cmdClear); // a disabled button has no help
    EXPECT_EQ(Layer.Timers.count(TimerId::MirrorHover), 0u);
    mirror->MouseMove(cmdNew);
    EXPECT_EQ(Layer.Timers.at(TimerId::MirrorHover), 1250);
    EXPECT_EQ(Box(cmdNew).Ink, Colour::HoverInk);
    EXPECT_TRUE(Box(cmdNew).Underlined);
    EXPECT_EQ(Text(txtNote), instruction);
    for (int tick = 1; tick <= 7; ++tick) {
        mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_EQ(Text(txtNote), CancelHelp);
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
    EXPECT_EQ(Text(txtNote), "Type your entry again. Then press 'Enter' to continue.");
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
}

TEST_F(MirrorHelp, ButtonHelpFollowsTheState) {
    mirror->StartWindow();
    EXPECT_EQ(Help(cmdNotate), "Open your Dialogue with a comment. Write a short paragraph "
                               "without creating an Sagrel response.");
    EXPECT_EQ(Help(cmdRetrieve), "Open the Dialogue Library. You have no saved Dialogues. "
                                 "Right-click for Library Options.");
    Click(cmdConverse);
    EXPECT_EQ(Help(cmdConverse), "Click 'Cancel' to exit Converse and reset to New Dialogue.");
    EXPECT_EQ(Help(cmdNotate), "Add a comment into your Dialogue. Write a short paragraph "
                               "without creating an Sagrel response.");
    Converse("Where did the joy of drawing go?");
    EXPECT_EQ(Help(cmdConverse),
              "Click 'Finish' to close your Dialogue for saving, printing, or filing. You may "
              "reopen it by clicking 'Continue'.");
    EXPECT_EQ(Help(cmdRemove), "Remove the current entry-response pair from the Dialogue.");
    Click(cmdRemove);
    EXPECT_EQ(Help(cmdRemove), "Keep the current entry-response pair in the Dialogue.");
    Click(cmdRemove);
    Click(cmdNew); // Finish
    EXPECT_EQ(Help(cmdNew), "Erase the Dialogue to begin another. To save it first, click "
                            "'Save', or close the program without clicking 'New'.");
    EXPECT_EQ(Help(cmdDisplay),
              "Save the displayed Dialogue as a text file in the program's text editor.");
}

// The help shows 1.25 seconds after the mouse arrives, however it moves on the control.
TEST(MirrorHelpTable, TheCountStartsWhenTheMouseArrives) {
    const std::pair<MirrorControl, std::string> cases[] = {
        {txtResponse,
         "Click the text to toggle between the Direction, Inspiration, and Suggestion."},
        {txtNote, "F1=Help F2=Know F3=Retrieve F4=Aknow F5=Converse F6=Suppose F7=Comment "
                  "F9=Rewrite F10=Edit F11=Display"},
        {cmdNew, CancelHelp}};
    for (const auto& [control, help] : cases) {
        MirrorDriver driver;
        driver.StartConverse();
        auto& starts = driver.Layer.TimerStarts[TimerId::MirrorHover];
        const int before = starts;
        for (int move = 0; move < 3; ++move) {
            driver.mirror->MouseMove(control);
        }
        EXPECT_EQ(starts - before, 1);
        if (control == txtNote) { // the instruction box names the function keys
            EXPECT_EQ(driver.Text(txtNote), "Function key alternates for mouse clicks . . .");
        }
        driver.mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_EQ(driver.Text(txtNote), help);
        // Leaving and coming back is another arrival.
        driver.mirror->MouseMove(txtMirror);
        driver.mirror->MouseMove(control);
        EXPECT_EQ(starts - before, 2);
    }
}

TEST(MirrorHelpTable, TheLibraryButtonCountsTheSavedDialogues) {
    for (const int saved : {1, 3}) {
        MirrorDriver driver;
        for (int dialogue = 0; dialogue < saved; ++dialogue) {
            driver.Clock.Date.Minute = dialogue; // one file name per minute
            ASSERT_TRUE(driver.Library.AddToLibrary("\tInspiration.", "\r\n\r\n\tA comment."));
        }
        driver.mirror->StartWindow();
        EXPECT_EQ(driver.Help(cmdRetrieve),
                  "Open the Dialogue Library to access your " + std::to_string(saved) +
                      (saved == 1 ? " saved Dialogue." : " saved Dialogues.") +
                      " Right-click for Library Options.");
    }
}

} // namespace
} // namespace veyrant::testing
