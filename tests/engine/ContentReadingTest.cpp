// What a reader would stumble on in composed replies, where a rule can be checked by machine:
// a word said twice, the user's "I" put in the Sagrel's mouth, a claim about what the user
// feels, believes or has not realised, and replies that all begin alike. Each message is drawn at
// many moments of the day, as the Write window draws it.

#include "EngineFixture.h"
#include "MessageRequests.h"
#include "core/Cp1252.h"

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace veyrant {
namespace {

using testing::Compose;
using testing::MessageRequest;
using testing::Messages;

constexpr int DrawnReplies = 10'000;
// The most replies of one message that may share their first three words.
constexpr double MostSharedOpening = 0.10;
constexpr char EmDash = '\x97';

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool IsLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '\'';
}

// The words of a text split at blanks and dashes, each with whatever marks cling to it, so
// that "you, you" is two different words and "through through" the same one twice.
std::vector<std::string> BlankWords(const std::string& text) {
    std::vector<std::string> words;
    std::string word;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == EmDash) {
            if (!word.empty()) {
                words.push_back(Lower(word));
            }
            word.clear();
        } else {
            word += c;
        }
    }
    if (!word.empty()) {
        words.push_back(Lower(word));
    }
    return words;
}

std::string DoubledWord(const std::string& text) {
    const auto words = BlankWords(text);
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (words[i] == words[i - 1]) {
            return words[i];
        }
    }
    return {};
}

// The user's own voice may stand only as words offered to try, which the content frames
// behind a dash in the same sentence ("Try saying—I can rest now."). Gives the first word
// of the first person that stands outside such a frame.
std::string UnframedFirstPerson(const std::string& text) {
    bool framed = false;
    std::string word;
    auto check = [&]() {
        const std::string lower = Lower(word);
        const bool firstPerson = word == "I" || lower == "i'm" || lower == "i've" ||
                                 lower == "me" || lower == "my" || lower == "myself" ||
                                 lower == "mine";
        word.clear();
        return firstPerson && !framed ? lower : std::string();
    };
    for (const char c : text) {
        if (IsLetter(c)) {
            word += c;
            continue;
        }
        if (const std::string found = check(); !found.empty()) {
            return found;
        }
        if (c == EmDash) {
            framed = true;
        } else if (c == '.' || c == '?' || c == '!') {
            framed = false;
        }
    }
    return check();
}

// Frames that tell the user what they feel, believe or have not realised, about a matter the
// program knows nothing of. The Sagrel may ask about a belief, never state one.
const char* const FaultyFrames[] = {
    "perhaps you believe", "it may be that you", "it could be that you", "your feeling about",
    "your belief about", "your belief is", "your belief has", "your belief will", "your belief may",
    "your belief can", "than you think", "than you realize", "than you know", "than you let",
    "than you feel", "than you admit", "than you seem to", "than you might", "than you fear",
    "than you expect", "than you believe", "already suspect", "you already know", "already knows",
    // Shapes that read as machine-made: a tag glued to an answer, two images yoked in one
    // sentence, a probe put to an image, a condition or a lack imputed from nowhere.
    "you see that now?", "you say that aloud?", "you allow that?", "make peace with that?",
    "yet the reply may", "yet the answer may", "if you associate it", "than feared", "as feared",
    "what would it ask", "does it need from you", "feel as you look at it", "the thing itself",
    "its use ", "a memory of", "you have rested", "you feel rested", "choose nothing out",
    "being put off", "a tale that tells", "world that can be", ". or ",
    // Shapes that failed a blind reading: an answer of how often or a bare hedge to a yes or no,
    // an "it" with nothing before it, a saying or a habit pinned on people from nowhere, a gloss
    // on a story, a reason for the asking instead of the thing, a history of the conversation.
    "than you hope", "the way you hope", "on certain days", "in the right light",
    "no answer cannot", "is it what", "as they fear", "you ever end up", "may be asking about",
    "might be teaching you", "no wrong way to want", "you keep asking", "you search for a reason",
    "so that fear", "who you were told", "apologizing for", "role of that", "origin of that",
    "reveals a conviction", "carries a promise", "carries a commitment", "the word you repeated",
    "come a long way", "been hopeful so far", "been restless so far", "question into a statement",
    "braver question", "question change as you change", "instead of any answer",
    "answered before in", "from the wrong place", "promise your words make",
    "words that needs help", "the part in view", "the question leads", "change as you ask",
    "thing you ask about", "change more than it looks", "are you choosing", "habit you can unlearn",
    "and still a choice",
    // Shapes that failed the third blind reading: a motive pinned on a choice, a verdict taken
    // back, a calm or a doubt imputed in a lead, a change urged on a remark, an image frame that
    // cannot hold a person, a strain with someone stated as fact.
    "choosing in haste", "only as true as", "until experience says", "fair trial before",
    "given your wish", "mindful of your hopes", "despite your doubts", "responsible for more than",
    "you can slow down", "change your direction", "change course at any",
    "different choice next time", "is still true", "still fit the person", "show a friend",
    "would choose to try", "step on the stairs", "unsent letters", "other ideas on your list",
    "a kinder answer", "more honest answer", "no one stays", "hardly anyone stays", "a vision of",
    "a painting of", "a snapshot of", "the person in your question", "the one you ask about",
    "let your story begin", "slip into", "a reflection of the answer", "more afraid than unkind",
    "beliefs you chose", "would say aloud", "make you feel less alone", "closer than your list",
    "rigidity with", "playfulness with", "reveals the theme", "carries a care", "so this time",
    "what you believe is fair", "no past experience", "which of these is true"};

std::string FaultyFrame(const std::string& text) {
    const std::string lower = Lower(text);
    for (const char* frame : FaultyFrames) {
        if (lower.find(frame) != std::string::npos) {
            return frame;
        }
    }
    return {};
}

std::string Opening(const std::string& text) {
    auto words = BlankWords(text);
    words.resize(std::min<std::size_t>(words.size(), 3));
    std::string opening;
    for (const auto& word : words) {
        opening += word + " ";
    }
    return opening;
}

// The verdicts on an idea, the remarks and the interjection open with the set verdicts their
// groups are made of ("That question ..."), so only the answers and the Inspiration must vary
// their openings.
bool MustVaryOpening(std::int16_t message) {
    return message <= 8 || message == 15;
}

// The first person is the user's own only in the answers and in the remark on a question;
// elsewhere the Sagrel may say what it does and does not answer.
bool KeepsFirstPersonFramed(std::int16_t message) {
    return message <= 8 || message == 12;
}

class ContentReading : public testing::EngineFixture,
                       public ::testing::WithParamInterface<MessageRequest> {};

TEST_P(ContentReading, NoDoubledWordNoUnframedFirstPersonNoBeliefClaimAndVariedOpenings) {
    const MessageRequest& request = GetParam();
    TheEngine.SeedSeries();
    std::map<std::string, int> openings;
    std::set<std::string> doubled;
    std::set<std::string> unframed;
    std::set<std::string> beliefClaims;
    for (int k = 0; k < DrawnReplies; ++k) {
        TheClock.Seconds = 300.0f + 8.25f * static_cast<float>(k);
        TheEngine.SeriesSeed = TheClock.Timer();
        TheEngine.StretchSeeds();
        const std::string text = Compose(TheEngine, request);
        if (!DoubledWord(text).empty()) {
            doubled.insert(Cp1252ToUtf8(text));
        }
        if (KeepsFirstPersonFramed(request.Message) && !UnframedFirstPerson(text).empty()) {
            unframed.insert(Cp1252ToUtf8(text));
        }
        if (!FaultyFrame(text).empty()) {
            beliefClaims.insert(Cp1252ToUtf8(text));
        }
        ++openings[Opening(text)];
    }
    EXPECT_THAT(doubled, ::testing::IsEmpty());
    EXPECT_THAT(unframed, ::testing::IsEmpty());
    EXPECT_THAT(beliefClaims, ::testing::IsEmpty());
    if (MustVaryOpening(request.Message)) {
        const auto most =
            std::max_element(openings.begin(), openings.end(),
                             [](const auto& a, const auto& b) { return a.second < b.second; });
        EXPECT_LE(most->second, MostSharedOpening * DrawnReplies)
            << "\"" << Cp1252ToUtf8(most->first) << "...\" opens " << most->second << " of "
            << DrawnReplies;
    }
}

INSTANTIATE_TEST_SUITE_P(Messages, ContentReading, ::testing::ValuesIn(Messages),
                         [](const auto& info) { return std::string(info.param.Name); });

} // namespace
} // namespace veyrant
