#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

using MirrorKeys = MirrorTest;
using MirrorLayout = MirrorTest;

const std::string Prefix{Tab, OpenQuote};
const std::string Entry = "What would rest look like this week?";

// The count lags one key behind the text: it is taken before the key lands.
TEST(MirrorKeysCount, MarkAndInstructionFollowTheLaggingCount) {
    const struct {
        MirrorControl Method;
        int Typed;
        const char* Mark; // lblRem, nullptr when hidden
        Colour Ink;
        EntryLength EntryFit;
        std::string Note = {}; // words of the instruction, when the row checks it
    } cases[] = {
        {cmdConverse, 18, "X", Colour::InkWarn, EntryLength::TooShort, "Type to reach the minimum"},
        {cmdConverse, 19, nullptr, Colour::Black, EntryLength::Fits, "Ready to enter"},
        {cmdConverse, 91, nullptr, Colour::Black, EntryLength::Fits},
        {cmdConverse, 92, "8", Colour::InkNear, EntryLength::Fits, "space for about 8 more words"},
        {cmdConverse, 142, "X", Colour::InkOver, EntryLength::TooLong, "Over the maximum"},
        {cmdNotate, 5, "X", Colour::InkWarn, EntryLength::TooShort},
        {cmdNotate, 6, nullptr, Colour::Black, EntryLength::Fits},
        {cmdNotate, 201, nullptr, Colour::Black, EntryLength::Fits},
        {cmdNotate, 202, "13", Colour::InkNear, EntryLength::Fits},
        {cmdNotate, 282, "X", Colour::InkOver, EntryLength::TooLong}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.Typed) + " typed");
        MirrorDriver driver;
        driver.mirror->StartWindow();
        driver.Click(c.Method);
        driver.Type(std::string(static_cast<std::size_t>(c.Typed), 'a'));
        EXPECT_EQ(driver.Shown("lblRem"), c.Mark ? "lblRem: \"" + std::string(c.Mark) + "\"" : "");
        EXPECT_TRUE(driver.Box(txtNote).Ink == c.Ink && driver.State().EntryFit == c.EntryFit);
        EXPECT_NE(driver.Text(txtNote).find(c.Note), std::string::npos);
    }
}

// The key record takes the time and code of every key but Enter and Backspace. Over the limit
// only Backspace works.
TEST_F(MirrorKeys, ProtectedHeadCaretKeyRecordFocusFontRewriteAndTheLimit) {
    StartConverse();
    Clock.Seconds = 100.5f;
    Type("abcdefghij"); // caret at 12, length 12
    Press(KeyCode::Home);
    EXPECT_EQ(Box(txtMirror).Caret, 2);
    Backspace();
    Press(KeyCode::Left);
    EXPECT_EQ(Text(txtMirror), Prefix + "abcdefghij");
    EXPECT_EQ(Box(txtMirror).Caret, 2);
    for (const auto& [key, caret] : {std::pair{KeyCode::Down, 7L},
                                     {KeyCode::Down, 9L},
                                     {KeyCode::Up, 5L},
                                     {KeyCode::End, 12L}}) {
        Press(key);
        EXPECT_EQ(Box(txtMirror).Caret, caret);
    }
    Type("\t");
    EXPECT_EQ(Text(txtMirror), Prefix + "abcdefghij");
    Press(KeyCode::Control);
    Backspace();
    Clock.Seconds = 101.25f;
    Converse("\xe9");
    EXPECT_EQ(Engine.KeyCodes,
              (std::vector<int>{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 0xe9}));
    EXPECT_TRUE(Engine.KeyTimes.front() == 100.5f && Engine.KeyTimes.back() == 101.25f);
    // Focus returns to the entry box, a mouse release leaves nothing selected, and a right press
    // toggles the Write font.
    Enter();
    mirror->FocusGained(txtSaved);
    EXPECT_EQ(mirror->Controls().Focus, txtMirror);
    mirror->FocusLost(txtMirror);
    EXPECT_EQ(mirror->Controls().Focus, txtMirror);
    Type("select me");
    mirror->CaretMoved(txtMirror, 4, 5);
    mirror->MouseUp(txtMirror, MouseButton::Left);
    EXPECT_EQ(Box(txtMirror).SelectionLength, 0);
    EXPECT_TRUE(Box(txtMirror).FontSize == 12 && Box(txtMirror).FontBold);
    mirror->MouseDown(txtMirror, MouseButton::Right);
    EXPECT_EQ(App.UserSettings.WriteFontStep, 2);
    EXPECT_TRUE(Box(txtSaved).FontSize == 13.5 && !Box(txtResponse).FontBold);
    // Rewrite and a click erase the entry until it is answered.
    Click(cmdClear);
    EXPECT_FALSE(Box(cmdClear).Enabled);
    Type("Something I meant");
    EXPECT_TRUE(Box(cmdClear).Enabled);
    Click(cmdClear);
    EXPECT_EQ(Text(txtMirror), Prefix);
    EXPECT_FALSE(Box(cmdClear).Enabled);
    EXPECT_TRUE(Text(txtNote).starts_with("Type your entry again."));
    Type("Another start");
    Click(txtMirror);
    EXPECT_EQ(Text(txtMirror), Prefix);
    // Once the entry is answered a key or a click only explains how to go on.
    Converse("What would change if I said no this time?");
    const std::string shown = Text(txtMirror);
    Type("x");
    Click(txtMirror);
    EXPECT_EQ(Text(txtMirror), shown);
    EXPECT_EQ(State().PairCount, 1);
    EXPECT_EQ(Titles(), "Invalid Key;Change Font Size;Veyrant Sagrel Help;Veyrant Sagrel Help;");
    EXPECT_EQ(Layer.Boxes[2].Text.substr(0, 29), "Press 'Enter' to continue. In");
    EXPECT_EQ(Layer.Boxes[3].Text.substr(0, 40), "In this part of the cycle, you must pres");
    EXPECT_EQ(Box(txtMirror).Caret, 0);
    Enter();
    EXPECT_EQ(Text(txtMirror), Prefix);
    // Over the limit only Backspace works, and typing takes a ">>" message away only once the
    // count is back within the limit.
    const std::string view = Text(txtResponse); // what the message covers
    Converse(std::string(142, 'a'));
    const std::string tooLong = Text(txtResponse);
    ASSERT_EQ(tooLong.substr(0, 26), ">> Your entry is too long.");
    Type(std::string(18, 'a'));
    // 141 typed: the 142nd press counts 140 and is the first one dropped.
    EXPECT_EQ(Text(txtMirror).size(), 2u + 141u);
    EXPECT_EQ(Text(txtResponse), tooLong);
    Backspace();
    Backspace();
    EXPECT_EQ(Text(txtMirror).size(), 2u + 139u);
    // The count of a Backspace is one less than the next typed key will take.
    EXPECT_TRUE(State().EntryFit == EntryLength::Fits && State().EntryCount == 137);
    EXPECT_EQ(Text(txtResponse), view);
    EXPECT_EQ(Box(txtResponse).Background, Colour::ColourReady);
    // The focus rule stands down while the program is ending.
    App.ClosingState = ClosingStates::Exiting;
    mirror->FocusGained(txtSaved);
    EXPECT_EQ(mirror->Controls().Focus, txtSaved);
}

// Esc clicks Cancel or Finish, whichever the window offers, and nothing when nothing runs; the
// function keys act on their buttons unless guarded.
TEST_F(MirrorLayout, EscapeAndFunctionKeysActOnTheirButtonsUnlessGuarded) {
    // No key reaches the window before it starts.
    EXPECT_EQ(mirror->KeyDown(KeyCode::Function(5)) + mirror->KeyPress('a'), 0);
    EXPECT_EQ(State().ActiveMethod, WriteMethod::NotStarted);
    mirror->StartWindow();
    Press(KeyCode::Escape);
    EXPECT_TRUE(State().ActiveMethod == WriteMethod::None && Layer.Boxes.empty());
    Press(KeyCode::Function(7));
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Comment);
    Press(KeyCode::Function(5));
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Converse);
    const int inspirations = Engine.Inspirations;
    Press(KeyCode::Escape); // Cancel in an empty Converse
    EXPECT_EQ(State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(mirror->Controls().Title, "Veyrant Sagrel -- New Dialogue");
    EXPECT_EQ(Engine.Inspirations, inspirations + 1);
    Press(KeyCode::Function(5));
    const std::string converse = mirror->Dump();
    EXPECT_NE(converse.find("txtMirror: \"\\t\xe2\x80\x9c\" back=Yellow focus\n"),
              std::string::npos);
    // Pressed in already, "Edit" disabled, nothing to Rewrite, no job: nothing happens.
    for (const int key : {5, 10, 9, 8}) {
        Press(KeyCode::Function(key));
    }
    EXPECT_EQ(mirror->Dump(), converse);
    Converse("Why does the morning feel so crowded?");
    Press(KeyCode::Function(10));
    EXPECT_EQ(Text(cmdRemove), "Keep");
    Press(KeyCode::Function(11));
    EXPECT_FALSE(State().DisplayFull); // nothing kept, Display disabled
    Press(KeyCode::Function(10));
    Press(KeyCode::Function(11));
    EXPECT_TRUE(State().DisplayFull);
    // The full view's keys scroll the Dialogue.
    EXPECT_EQ(Box(txtSaved).Caret, 0);
    Press(KeyCode::PageDown);
    EXPECT_EQ(Box(txtSaved).Caret, static_cast<long>(Text(txtSaved).size()));
    Press(KeyCode::Home);
    EXPECT_EQ(Box(txtSaved).Caret, 0);
    Press(KeyCode::Function(11));
    EXPECT_FALSE(State().DisplayFull);
    Enter();
    Click(cmdNotate);
    Press(KeyCode::Escape); // Cancel back to Converse
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Converse);
    EXPECT_TRUE(Text(cmdNew) == "Finish" && Box(cmdConverse).PressedIn);
    Press(KeyCode::Escape); // Finish
    EXPECT_EQ(Text(cmdNew) + Text(cmdDisplay), "NewFile");
    Press(KeyCode::Function(11)); // "File" is not a view switch
    Press(KeyCode::Function(10)); // nor is "Continue" an edit
    EXPECT_EQ(State().ActiveMethod, WriteMethod::None);
    Press(KeyCode::Function(12));
    EXPECT_EQ(Layer.Boxes.back().Title, "Save Finished Dialogue");
}

} // namespace
} // namespace veyrant::testing
