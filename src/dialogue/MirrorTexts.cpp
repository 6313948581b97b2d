#include "dialogue/MirrorTexts.h"

#include "core/Text.h"

namespace veyrant::MirrorText {

namespace {

std::string Direction(std::string_view heading, std::string_view body) {
    std::string text(heading);
    text += CrLf;
    text += Tab;
    text += body;
    return text;
}

// Where Suppose words a refusal its own way, the second text is the one for Converse.
std::string ByMethod(WriteMethod activeMethod, std::string_view suppose,
                     std::string_view converse) {
    return std::string(activeMethod == WriteMethod::Suppose ? suppose : converse);
}

} // namespace

std::string DirectionConversation() {
    return Direction("Direction for Conversation",
                     "Ask any question or make any statement for an Sagrel response. Click this "
                     "text to review the Inspiration or Suggestion. After you have typed your "
                     "entry, press 'Enter'. You may click 'Suppose' or 'Comment' anytime.");
}

std::string DirectionSupposition() {
    return Direction("Direction for Supposition",
                     "Enter the question you will answer yourself. If your question is valid, you "
                     "will enter your list of possible, supposed answers. After you enter at "
                     "least two suppositions, click 'Select' to complete the Supposition.");
}

std::string DirectionBeginningNotation() {
    return Direction("Direction for Beginning Notation",
                     "Compose an opening comment that reveals what you intend to explore in your "
                     "Dialogue. It can be a short paragraph with statements and/or rhetorical "
                     "questions. Then press 'Enter'. You will begin in the Converse method.");
}

std::string DirectionNotation() {
    return Direction("Direction for Notation",
                     "Compose a comment that reveals your thoughts and feelings from the "
                     "conversation in this moment. You may use statements and/or rhetorical "
                     "questions. Then press 'Enter'. You will return to the Converse method.");
}

std::string RejectionMessage(EntryVerdict entryStatus, WriteMethod activeMethod) {
    switch (entryStatus) {
    case EntryVerdict::EndsWithQuote:
        if (activeMethod == WriteMethod::Comment) {
            return ">> Do not add a quotation mark at your sentence end. That is done for you "
                   "automatically. Backspace out the quote, then press 'Enter' to continue.";
        }
        return ">> Do not add a quotation mark at the end of your entry. That is done for you "
               "automatically. Backspace out the quote, then press 'Enter' to continue.";
    case EntryVerdict::Unpunctuated:
        return ">> Your entry is not punctuated. Add your period or question mark, then press "
               "'Enter'.";
    case EntryVerdict::TooFewWords:
        return ">> Insufficient number of words. Add more content to your entry. Press 'Enter' "
               "to start again.";
    case EntryVerdict::TooFewMeaningfulWords:
        return ">> Insufficient number of meaningful words. Add complexity to your entry. Press "
               "'Enter' to start again.";
    case EntryVerdict::SyntaxUnclear:
        return ByMethod(activeMethod,
                        ">> The syntax of your entry is not clear. Use simple, properly-spelled "
                        "language that asks a Supposition-type question. Press 'Enter' to start "
                        "again.",
                        ">> The syntax of your entry is not clear. Use simple, properly-spelled "
                        "language that asks a question or makes a statement. Press 'Enter' to "
                        "start again.");
    case EntryVerdict::SubjectUnclear:
        return ">> The subject of your entry is not clear. Keep it simple. Avoid unnecessary "
               "language. Break up complex sentences with a comma. Press 'Enter' to start again.";
    case EntryVerdict::PointUnclear:
        return ByMethod(activeMethod,
                        ">> The point of your entry is not clear. Ask a direct Supposition-type "
                        "question. Use commas to separate phrases. Press 'Enter' to start again.",
                        ">> The point of your entry is not clear. Ask a direct question or make a "
                        "simple statement. Use commas to separate phrases. Press 'Enter' to start "
                        "again.");
    case EntryVerdict::MeaningUnclear:
        return ByMethod(activeMethod,
                        ">> The meaning of your entry is not clear. Ask a direct Supposition-type "
                        "question. Break up complex sentences with a comma. Press 'Enter' to "
                        "start again.",
                        ">> The meaning of your entry is not clear. Ask a direct question or make "
                        "a simple statement. Break up complex sentences with a comma. Press "
                        "'Enter' to start again.");
    case EntryVerdict::Indecipherable:
        return ByMethod(activeMethod,
                        ">> The meaning of your entry cannot be deciphered. Ask a direct "
                        "Supposition-type question. Break up complex sentences with a comma. "
                        "Press 'Enter' to start again.",
                        ">> The meaning of your entry cannot be deciphered. Ask a direct question "
                        "or make a simple statement. Break up complex sentences with a comma. "
                        "Press 'Enter' to start again.");
    case EntryVerdict::DialogueFull:
        return ">> ! Your Dialogue has reached the system limit, and no more text can be added. "
               "Click 'Finish' to end the Dialogue. Then you may print it if you prefer.";
    case EntryVerdict::SupposeYesNoQuestion:
        return ">> Questions asking for a yes-no-type answer are not valid for Supposition. Press "
               "'Enter' to start again.";
    case EntryVerdict::SupposeStatement:
        return ">> Statements are not valid for Supposition. Press 'Enter' to start again.";
    case EntryVerdict::Accepted:
    case EntryVerdict::NotAQuestion:
        return {};
    }
    return {};
}

} // namespace veyrant::MirrorText
