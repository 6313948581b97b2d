// The dialogue cycle: starting a method, starting an entry, judging and answering it, comments,
// and Keep and Remove on the result.

#include "core/Clock.h"
#include "core/DateFormat.h"
#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"
#include "storage/DialogueFile.h"

namespace veyrant {

namespace {

const std::string EntryPrefix{Tab, OpenQuote};

MirrorControl MethodButton(WriteMethod method) {
    switch (method) {
    case WriteMethod::Suppose:
        return MirrorControl::cmdSuppose;
    case WriteMethod::Comment:
        return MirrorControl::cmdNotate;
    default:
        return MirrorControl::cmdConverse;
    }
}

} // namespace

void Mirror::ClickMethod(WriteMethod method) {
    if (C(MirrorControl::cmdNew).Text == "New") {
        Message(std::string(MirrorText::HelpTitle),
                "To reset and append the finished Dialogue, click 'Continue'.\r\n\r\nClick 'New' "
                "to erase the finished Dialogue and begin another. If you close the program "
                "without clicking 'New', the finished Dialogue will be saved, then displayed "
                "when you next open the program.");
        return;
    }
    hover_.Unmark();
    StartMethod(method);
    PressMethodButton(MethodButton(method));
}

void Mirror::PressMethodButton(MirrorControl pressed) {
    for (auto button :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate}) {
        C(button).PressedIn = button == pressed;
    }
}

void Mirror::StartMethod(WriteMethod method) {
    state_.SupposeStage = SupposeStep::Off;
    state_.AwaitingEnter = true;
    state_.IdeaIndex = 0;
    state_.EntryType = SentenceType::None;
    state_.EntryFailed = false;
    state_.IdeaLimit = 98;

    C(MirrorControl::cmdSave).Enabled = false;
    C(MirrorControl::cmdClear).Enabled = false;
    C(MirrorControl::cmdRemove).Text = "Edit";
    C(MirrorControl::cmdRemove).Enabled = false;
    C(MirrorControl::cmdNew).Enabled = true;

    state_.DisplayFull = false;
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::txtAnalyze).Enabled = false;
    C(MirrorControl::txtAnalyze).Visible = false;
    C(MirrorControl::txtMirror).Text.clear();
    C(MirrorControl::txtMirror).Caret = 0;
    C(MirrorControl::txtMirror).Enabled = true;
    controls_.Focus = MirrorControl::txtMirror;

    for (auto button :
         {MirrorControl::cmdClear, MirrorControl::cmdRemove, MirrorControl::cmdDisplay,
          MirrorControl::cmdNew, MirrorControl::cmdPrint, MirrorControl::cmdSave}) {
        C(button).Visible = true;
    }
    C(MirrorControl::cmdDisplay).Text = "Display";
    C(MirrorControl::lblRem).Visible = false;
    C(MirrorControl::lblRemS).Visible = false;
    ArrangeEntry();

    switch (method) {
    case WriteMethod::Converse:
        state_.ActiveMethod = WriteMethod::Converse;
        state_.TitleMethod = "Conversation";
        UpdateTitle();
        StartEntry(WriteMethod::Converse);
        state_.InstructionText = "Type your question or statement. Click 'Rewrite' to erase the "
                                 "text. Press 'Enter' for the Sagrel response.";
        C(MirrorControl::cmdNotate).Enabled = true;
        C(MirrorControl::cmdNew).Text = state_.DialogueText.empty() ? "Cancel" : "Finish";
        break;
    case WriteMethod::Suppose:
        state_.ActiveMethod = WriteMethod::Suppose;
        state_.TitleMethod = "Supposition";
        UpdateTitle();
        StartEntry(WriteMethod::Suppose);
        state_.InstructionText =
            "Type your question. Click 'Rewrite' to erase the text. Press 'Enter' to continue.";
        C(MirrorControl::cmdNew).Text = "Cancel";
        break;
    default:
        state_.ActiveMethod = WriteMethod::Comment;
        state_.TitleMethod = "Notation";
        UpdateTitle();
        StartEntry(WriteMethod::Comment);
        state_.InstructionText = CommentInstruction();
        C(MirrorControl::cmdNew).Text = "Cancel";
        break;
    }
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
}

// A comment that opens a Dialogue begins the Conversation; one in its course returns to it.
std::string Mirror::CommentInstruction() const {
    return state_.DialogueText.empty() ? "Type your comment. Click 'Rewrite' to erase the text. "
                                         "Press 'Enter' to begin the Conversation."
                                       : "Type your comment. Click 'Rewrite' to erase the text. "
                                         "Press 'Enter' to restore the Conversation.";
}

std::string Mirror::DirectionFor(WriteMethod method) const {
    switch (method) {
    case WriteMethod::Converse:
        return MirrorText::DirectionConversation();
    case WriteMethod::Suppose:
        return MirrorText::DirectionSupposition();
    default:
        return state_.DialogueText.empty() ? MirrorText::DirectionBeginningNotation()
                                           : MirrorText::DirectionNotation();
    }
}

void Mirror::StartEntry(WriteMethod method) {
    state_.PairState = PairShown::Nothing;
    state_.EntryFailed = false;
    state_.AwaitingEnter = false;
    state_.EntryStartTime = world_.Clock.Timer();

    auto& mirror = C(MirrorControl::txtMirror);
    mirror.Background = Colour::EntryYellow;
    mirror.Text = EntryPrefix;
    mirror.Caret = 2;
    mirror.SelectionLength = 0;

    state_.DirectionText = DirectionFor(method);
    if (method == WriteMethod::Converse) {
        ArrangeEntry();
        SetResponse(state_.DialogueText.empty() ? state_.DirectionText : state_.InspirationView,
                    Colour::ColourReady);
        SetEntryLimits(EntrySize::Entry);
    } else {
        SetResponse(state_.DirectionText, Colour::ColourReady);
        SetEntryLimits(method == WriteMethod::Suppose ? EntrySize::Entry : EntrySize::Comment);
    }

    UpdateTitle();
    ShowSmallView();
    C(MirrorControl::txtSaved).Background = Colour::DialogueGrey;

    state_.ResponseText.clear();
    state_.EntryBackup = EntryPrefix;

    C(MirrorControl::lblRemS).Visible = false;
    C(MirrorControl::lblRem).Visible = true;
    C(MirrorControl::lblRem).Text = "X";
    state_.EntryFit = EntryLength::TooShort;
    C(MirrorControl::cmdClear).Enabled = false;
    C(MirrorControl::cmdRemove).Enabled = false;
    C(MirrorControl::cmdRemove).Text = "Edit";
    C(MirrorControl::cmdRemove).Ink = Colour::Black;

    state_.NoticeNotDue = true;

    const bool question = method == WriteMethod::Converse || method == WriteMethod::Suppose;
    if (question && state_.CycleCount >= state_.CycleGoal) {
        state_.AnswerFlag = engine_.RollAnswer(20);
        if (state_.AnswerFlag == ReplyKind::Remark) {
            DeliverNotice();
        }
    }
}

// The message regarding the conversation arrives through the same road as an entry: a
// synthesised Enter on the entry box, with NoticeNotDue telling ProcessEntry what it carries.
void Mirror::DeliverNotice() {
    state_.NoticeNotDue = false;
    SetResponse(std::string(MirrorText::Processing), Colour::ColourReady);
    Yield();
    state_.ReplyText = engine_.RequestInterjection();
    MirrorKeyPress(KeyCode::Enter);
    C(MirrorControl::txtMirror).Caret = 0;
}

void Mirror::SetEntryLimits(EntrySize size) {
    switch (size) {
    case EntrySize::Comment:
        state_.EntryMin = 4;
        state_.EntryNear = 200;
        state_.EntryMax = 280;
        break;
    case EntrySize::Idea:
        state_.EntryMin = 3;
        state_.EntryNear = 90;
        state_.EntryMax = 140;
        break;
    case EntrySize::Entry:
        state_.EntryMin = 17;
        state_.EntryNear = 90;
        state_.EntryMax = 140;
        break;
    }
}

void Mirror::UpdateTitle() {
    controls_.Title = std::string(MirrorText::TitleLead) + state_.TitleMethod + " -- " +
                      FormatDate(world_.Clock.Now(), MirrorText::TitleDateFormat);
}

void Mirror::ShowInstruction() {
    C(MirrorControl::txtNote).Text = state_.InstructionText;
    C(MirrorControl::txtNote).Ink = state_.InstructionColour;
}

void Mirror::SetFinishOrCancel() {
    if (state_.PairCount < 1) {
        C(MirrorControl::cmdNew).Text = "Cancel";
        C(MirrorControl::cmdDisplay).Enabled = false;
    } else {
        C(MirrorControl::cmdNew).Text = "Finish";
        C(MirrorControl::cmdDisplay).Enabled = true;
    }
}

// Enter while the result of the last Enter is on show: the cycle moves on.
void Mirror::AdvanceCycle() {
    switch (state_.ActiveMethod) {
    case WriteMethod::Converse:
        state_.InstructionText =
            "Type your question or statement. Then press 'Enter' for the Sagrel response.";
        StartEntry(WriteMethod::Converse);
        break;
    case WriteMethod::Suppose:
        if (state_.SupposeStage == SupposeStep::TypingIdea) {
            Click(MirrorControl::cmdConverse);
        } else {
            state_.InstructionText = "Type your question. Click 'Rewrite' to erase the text. "
                                     "Press 'Enter' to continue.";
            StartEntry(WriteMethod::Suppose);
        }
        break;
    case WriteMethod::Comment:
        if (state_.EntryFailed) {
            StartEntry(WriteMethod::Comment);
            state_.InstructionText = CommentInstruction();
        } else {
            Click(MirrorControl::cmdConverse);
        }
        break;
    default:
        break;
    }
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
}

void Mirror::EnterInEntryBox() {
    if (state_.AwaitingEnter) {
        AdvanceCycle();
    } else if (state_.ActiveMethod == WriteMethod::Comment) {
        ProcessComment();
    } else if (state_.ActiveMethod == WriteMethod::Converse ||
               state_.ActiveMethod == WriteMethod::Suppose) {
        ProcessEntry();
    }
}

void Mirror::ProcessEntry() {
    SetResponse(std::string(MirrorText::Processing), Colour::ColourReady);
    Yield();
    if (!state_.NoticeNotDue) {
        state_.AwaitingEnter = true;
        state_.ReplyText = Trim(Mid(state_.ReplyText, 3));
        SetResponse(">> Regarding the conversation. To continue, press 'Enter'.\r\n\t" +
                        state_.ReplyText,
                    Colour::ColourNotice);
        state_.InstructionText = "Review the message regarding the conversation. Press 'Enter', "
                                 "then continue typing. Or click 'Finish'.";
        state_.InstructionColour = Colour::Black;
        state_.NoticeNotDue = true;
        return;
    }

    auto& mirror = C(MirrorControl::txtMirror);
    TakeEntry();
    if (state_.EntryFit != EntryLength::Fits) {
        state_.AwaitingEnter = false;
        RejectLength(MirrorControl::lblRem);
        state_.EntryFailed = true;
        return;
    }

    JudgeEntry();
    if (state_.ActiveMethod == WriteMethod::Suppose) {
        if (state_.EntryStatus == EntryVerdict::NotAQuestion) {
            state_.EntryStatus = EntryVerdict::SupposeStatement;
        }
        if (state_.EntryType == SentenceType::YesNoQuestion) {
            state_.EntryStatus = EntryVerdict::SupposeYesNoQuestion;
        }
    }
    if (!IsAccepted(state_.EntryStatus)) {
        state_.EntryText = state_.EntryBackup;
        RejectEntry(false);
        return;
    }

    state_.EntryFailed = false;
    ++state_.CycleCount;
    mirror.Text += CloseQuote;
    Yield();
    state_.SeriesSeed = world_.Clock.Timer();
    engine_.StretchSeeds(state_.SeriesSeed);
    state_.AnswerFlag = engine_.RollAnswer(25);

    if (state_.ActiveMethod == WriteMethod::Suppose) {
        state_.EntryType = SentenceType::SupposeQuestion;
        if (state_.AnswerFlag == ReplyKind::Answer) {
            OpenIdeaList();
            return;
        }
        ConcludeSupposition(ReplyKind::Remark);
    }

    if (state_.AnswerFlag == ReplyKind::Answer) {
        state_.ReplyText = engine_.RequestAnswer(state_.EntryType);
    } else {
        state_.ReplyText = engine_.RequestRemark(state_.EntryType);
        state_.EntryType = SentenceType::None;
    }
    state_.ReplyText = Trim(Mid(state_.ReplyText, 3));

    state_.EntryText = mirror.Text;
    state_.EntryBackup = state_.EntryText;
    state_.ResponseText = std::string(1, Tab) + state_.ReplyText;
    UpperAt(state_.EntryText, 3);
    state_.DialogueBackup = state_.DialogueText;
    BuildPairText();
    ArrangeResult();
    ShowResult();

    if (state_.PairState == PairShown::Kept) {
        state_.DialogueText += state_.PairText;
        ++state_.PairCount;
    }
    C(MirrorControl::cmdRemove).Enabled = true;
    SetFinishOrCancel();
    mirror.Text = state_.EntryText;
    mirror.Caret = static_cast<long>(mirror.Text.size());
    SetResponse(state_.ResponseText, C(MirrorControl::txtResponse).Background);
    C(MirrorControl::cmdNotate).Enabled = true;
    UpdateTitle();
    ShowSmallView();
    ShowInstruction();
}

// Whether the result on show is in the Dialogue, and the button that offers the other choice.
void Mirror::ShowResult() {
    auto& response = C(MirrorControl::txtResponse);
    if (state_.EntryType != SentenceType::None) {
        C(MirrorControl::cmdRemove).Text = "Remove";
        state_.PairState = PairShown::Kept;
        response.Background = Colour::ColourAdded;
        state_.InstructionText = MirrorText::Added;
        state_.InstructionColour = Colour::Black;
    } else {
        C(MirrorControl::cmdRemove).Text = "Keep";
        state_.PairState = PairShown::LeftOut;
        response.Background = Colour::ColourOut;
        state_.InstructionText = MirrorText::NotAdded;
        state_.InstructionColour = Colour::InkWarn;
    }
}

void Mirror::TakeEntry() {
    state_.EntryText = C(MirrorControl::txtMirror).Text;
    state_.EntryCount = static_cast<int>(state_.EntryText.size()) - 2;
    state_.AwaitingEnter = true;
}

// The parser's judgement first, then the limit on kept items, which no other refusal outranks.
// A refusal that comes before the sentence is read keeps the type of the entry before, so in
// Suppose a yes-or-no question refused once is refused the same way until a question replaces it.
void Mirror::JudgeEntry() {
    const auto judgement = engine_.CheckEntry(state_.EntryText, state_.ActiveMethod,
                                              state_.PairCount, state_.EntryType);
    state_.EntryStatus = judgement.Status;
    state_.EntryType = judgement.Type;
    CheckDialogueLimit();
}

// Length is judged from the status the last key left, before the parser sees the entry or the
// list takes the idea; the mark is the one beside the box in use.
void Mirror::RejectLength(MirrorControl mark) {
    const bool tooShort = state_.EntryFit == EntryLength::TooShort;
    SetResponse(std::string(tooShort ? MirrorText::TooShort : MirrorText::TooLong),
                Colour::ColourError);
    state_.InstructionText =
        tooShort ? MirrorText::TooShortInstruction : MirrorText::TooLongInstruction;
    state_.InstructionColour = Colour::Black;
    C(mark).Visible = true;
    C(MirrorControl::cmdClear).Enabled = true;
}

void Mirror::RejectEntry(bool comment) {
    const EntryVerdict status = state_.EntryStatus;
    SetResponse(MirrorText::RejectionMessage(status, state_.ActiveMethod), Colour::ColourError);
    if (status == EntryVerdict::EndsWithQuote) {
        state_.InstructionText = "Backspace out the quote, then press 'Enter' to continue.";
        state_.AwaitingEnter = false;
    } else if (status == EntryVerdict::Unpunctuated) {
        state_.InstructionText = "Enter your punctuation, then press 'Enter' to continue.";
        state_.AwaitingEnter = false;
    } else {
        state_.InstructionText = comment && status == EntryVerdict::DialogueFull
                                     ? "Press 'Enter' to begin this entry again."
                                     : "Press 'Enter' to start again.";
        state_.AwaitingEnter = true;
        C(MirrorControl::txtMirror).Caret = 0;
    }
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
    state_.EntryFailed = true;
}

void Mirror::ProcessComment() {
    auto& mirror = C(MirrorControl::txtMirror);
    TakeEntry();
    // A comment of the wrong length leaves EntryFailed as it was.
    if (state_.EntryFit != EntryLength::Fits) {
        state_.AwaitingEnter = false;
        RejectLength(MirrorControl::lblRem);
        return;
    }

    JudgeEntry();
    if (!IsAccepted(state_.EntryStatus)) {
        state_.EntryText = state_.EntryBackup;
        RejectEntry(true);
        return;
    }

    state_.EntryFailed = false;
    state_.EntryText = mirror.Text;
    state_.EntryBackup = state_.EntryText;
    UpperAt(state_.EntryText, 3);
    const std::string comment =
        std::string{Tab, OpenQuote} + Mid(state_.EntryText, 3) + std::string(1, CloseQuote);
    state_.DialogueBackup = state_.DialogueText;
    state_.PairText = std::string(RunLead) + comment;
    state_.DialogueText += state_.PairText;

    mirror.Text = comment;
    mirror.Caret = static_cast<long>(comment.size());
    SetResponse("Comment\r\n" + comment, Colour::ColourAdded);
    ArrangeResult();
    ShowSmallView();
    C(MirrorControl::cmdDisplay).Enabled = true;
    C(MirrorControl::cmdRemove).Enabled = true;
    C(MirrorControl::cmdRemove).Text = "Remove";
    ++state_.PairCount;
    state_.PairState = PairShown::Kept;
    state_.InstructionText = "Text was added into the Dialogue. Click 'Remove' to erase it. Press "
                             "'Enter' to continue. Or click 'Finish'.";
    state_.InstructionColour = Colour::Black;
    C(MirrorControl::cmdNew).Text = "Finish";
    state_.ActiveMethod = WriteMethod::Converse;
    state_.TitleMethod = "Conversation";
    UpdateTitle();
    C(MirrorControl::cmdNotate).Enabled = true;
    PressMethodButton(MirrorControl::cmdConverse);
}

void Mirror::ClickRemove() {
    const auto& caption = C(MirrorControl::cmdRemove).Text;
    if (caption == "Continue") {
        ContinueDialogue();
        return;
    }
    if (state_.PairState == PairShown::Kept) {
        state_.DialogueText = state_.DialogueBackup;
        --state_.PairCount;
        state_.PairState = PairShown::LeftOut;
        C(MirrorControl::cmdRemove).Text = "Keep";
        C(MirrorControl::txtResponse).Background = Colour::ColourOut;
        state_.InstructionText = "Text was removed from the Dialogue. Click 'Keep' to retain it, "
                                 "before continuing. Press 'Enter' to continue.";
        state_.InstructionColour = Colour::InkWarn;
    } else if (state_.PairState == PairShown::LeftOut) {
        state_.DialogueText += state_.PairText;
        ++state_.PairCount;
        state_.PairState = PairShown::Kept;
        C(MirrorControl::cmdRemove).Text = "Remove";
        C(MirrorControl::txtResponse).Background = Colour::ColourAdded;
        state_.InstructionText = "Text was kept in the Dialogue. Click 'Remove' to erase it, "
                                 "before continuing. Press 'Enter' to continue.";
        state_.InstructionColour = Colour::Black;
    } else {
        return;
    }
    SetFinishOrCancel();
    ShowSmallView();
    ShowInstruction();
}

} // namespace veyrant
