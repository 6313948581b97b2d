#include "dialogue/MirrorDriver.h"
#include "dialogue/MirrorTexts.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// Rests the mouse on a control and lets the hover timer tick once.
std::string HelpAfterRest(MirrorDriver& driver, MirrorControl control) {
    driver.mirror->MouseMove(control);
    driver.mirror->TimerFired(TimerId::MirrorHover);
    return driver.Text(MirrorControl::txtNote);
}

TEST(MirrorHelp, HelpShowsAfterATickAndEndsByItselfAfterSeven) {
    MirrorDriver driver;
    driver.StartConverse();
    const std::string instruction = driver.Text(MirrorControl::txtNote);
    // A disabled button has no help.
    driver.mirror->MouseMove(MirrorControl::cmdClear);
    EXPECT_EQ(driver.Layer.Timers.count(TimerId::MirrorHover), 0u);
    driver.mirror->MouseMove(MirrorControl::cmdNew);
    EXPECT_EQ(driver.Layer.Timers.at(TimerId::MirrorHover), 1250);
    EXPECT_EQ(driver.Box(MirrorControl::cmdNew).Ink, Colour::HoverInk);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdNew).Underlined);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), instruction);
    for (int tick = 1; tick <= 7; ++tick) {
        driver.mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_EQ(driver.Text(MirrorControl::txtNote),
                  "Cancel your interaction and return to New Dialogue.");
        EXPECT_EQ(driver.Box(MirrorControl::txtNote).Ink, Colour::HelpInk);
    }
    driver.mirror->TimerFired(TimerId::MirrorHover);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), instruction);
    EXPECT_EQ(driver.Layer.Timers.count(TimerId::MirrorHover), 0u);
    // The button stays marked until the mouse goes elsewhere.
    EXPECT_EQ(driver.Box(MirrorControl::cmdNew).Ink, Colour::HoverInk);
    driver.mirror->MouseMove(MirrorControl::txtSaved);
    EXPECT_EQ(driver.Box(MirrorControl::cmdNew).Ink, Colour::Black);
    // Moving to the entry box brings the instruction back at once.
    HelpAfterRest(driver, MirrorControl::cmdNew);
    driver.mirror->MouseMove(MirrorControl::txtMirror);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), instruction);
    EXPECT_EQ(driver.Box(MirrorControl::cmdNew).Ink, Colour::Black);
}

TEST(MirrorHelp, ButtonHelpFollowsTheState) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdNotate),
              "Open your Dialogue with a comment. Write a short paragraph without creating an "
              "Sagrel response.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRetrieve),
              "Open the Dialogue Library. You have no saved Dialogues. Right-click for Library "
              "Options.");

    driver.mirror->Click(MirrorControl::cmdConverse);
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdConverse),
              "Click 'Cancel' to exit Converse and reset to New Dialogue.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdNew),
              "Cancel your interaction and return to New Dialogue.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdNotate),
              "Add a comment into your Dialogue. Write a short paragraph without creating an "
              "Sagrel response.");

    driver.Converse("Where did the joy of drawing go?");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdConverse),
              "Click 'Finish' to close your Dialogue for saving, printing, or filing. You may "
              "reopen it by clicking 'Continue'.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRemove),
              "Remove the current entry-response pair from the Dialogue.");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRemove),
              "Keep the current entry-response pair in the Dialogue.");

    driver.mirror->Click(MirrorControl::cmdRemove);
    driver.mirror->Click(MirrorControl::cmdNew); // Finish
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdNew),
              "Erase the Dialogue to begin another. To save it first, click 'Save', or close the "
              "program without clicking 'New'.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdDisplay),
              "Save the displayed Dialogue as a text file in the program's text editor.");
}

TEST(MirrorHelp, TheResponseBoxTogglesAndExplainsItself) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("Why do I wait for permission?");
    driver.Enter();
    const std::string inspiration = driver.State().InspirationView;
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), inspiration);
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::txtResponse),
              "Click the text to toggle between the Direction, Inspiration, and Suggestion.");

    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Suggestion 1");
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 26), "Direction for Conversation");
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), inspiration);

    // A result or a message on show stays where it is.
    driver.Converse("Why do I wait for permission again?");
    const std::string result = driver.Text(MirrorControl::txtResponse);
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), result);
}

TEST(MirrorHelp, TheInstructionBoxNamesTheFunctionKeys) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.mirror->MouseMove(MirrorControl::txtNote);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Function key alternates for mouse clicks . . .");
    driver.mirror->TimerFired(TimerId::MirrorHover);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "F1=Help F2=Know F3=Retrieve F4=Aknow F5=Converse F6=Suppose F7=Comment F9=Rewrite "
              "F10=Edit F11=Display");
}

// The help shows 1.25 seconds after the mouse arrives, however it moves on the control.
TEST(MirrorHelp, TheCountStartsWhenTheMouseArrives) {
    const std::pair<MirrorControl, std::string> cases[] = {
        {MirrorControl::txtResponse, std::string(MirrorText::TipDirection)},
        {MirrorControl::txtNote, std::string(MirrorText::TipKeys)},
        {MirrorControl::cmdNew, "Cancel your interaction and return to New Dialogue."}};
    for (const auto& [control, help] : cases) {
        MirrorDriver driver;
        driver.StartConverse();
        auto& starts = driver.Layer.TimerStarts[TimerId::MirrorHover];
        const int before = starts;
        for (int move = 0; move < 3; ++move) {
            driver.mirror->MouseMove(control);
        }
        EXPECT_EQ(starts - before, 1);
        driver.mirror->TimerFired(TimerId::MirrorHover);
        EXPECT_EQ(driver.Text(MirrorControl::txtNote), help);
        // Leaving and coming back is another arrival.
        driver.mirror->MouseMove(MirrorControl::txtMirror);
        driver.mirror->MouseMove(control);
        EXPECT_EQ(starts - before, 2);
    }
}

TEST(MirrorHelp, TheLibraryButtonCountsTheSavedDialogues) {
    for (const int saved : {1, 3}) {
        MirrorDriver driver;
        for (int dialogue = 0; dialogue < saved; ++dialogue) {
            driver.Clock.Date.Minute = dialogue; // one file name per minute
            ASSERT_TRUE(driver.Library.AddToLibrary("\tInspiration.", "\r\n\r\n\tA comment."));
        }
        driver.mirror->StartWindow();
        EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRetrieve),
                  "Open the Dialogue Library to access your " + std::to_string(saved) +
                      (saved == 1 ? " saved Dialogue." : " saved Dialogues.") +
                      " Right-click for Library Options.");
    }
}

// A comment on show has already handed the window to Converse, so the button speaks of pairs.
TEST(MirrorHelp, RemoveAndKeepOfACommentSpeakOfThePair) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdNotate);
    driver.Converse("Today I want to look at why I avoid my brother.");
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRemove),
              "Remove the current entry-response pair from the Dialogue.");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(HelpAfterRest(driver, MirrorControl::cmdRemove),
              "Keep the current entry-response pair in the Dialogue.");
}

TEST(MirrorHelp, AClickEndsTheHelpSoItsEffectShows) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Type("I want to understand my own anger better.");
    HelpAfterRest(driver, MirrorControl::cmdClear);
    driver.mirror->Click(MirrorControl::cmdClear);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your entry again. Then press 'Enter' to continue.");
    EXPECT_EQ(driver.Box(MirrorControl::cmdClear).Ink, Colour::Black);
    EXPECT_EQ(driver.Layer.Timers.count(TimerId::MirrorHover), 0u);
}

} // namespace
} // namespace veyrant::testing
