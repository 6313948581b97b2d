// What a reader would stumble on in composed replies, where a rule can be checked by machine:
// a word said twice, the user's "I" put in the Sagrel's mouth, a claim about what the user
// feels, believes or has not realised, and replies that all begin alike. Each message is drawn at
// many moments of the day, as the Write window draws it.

#include "EngineFixture.h"
#include "MessageRequests.h"
#include "core/Cp1252.h"
#include "core/WholeFile.h"

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <map>
#include <set>
#include <sstream>
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

// Frames that tell the user what they feel, believe or have not realised, or shapes that read
// as machine-made, one a line in lower case; comments begin with '#'.
std::vector<std::string> FaultyFrames() {
    std::vector<std::string> frames;
    std::istringstream lines(
        ReadWholeFile(std::filesystem::path(VEYRANT_TEST_DATA) / "engine" / "faulty-frames.txt"));
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.front() != '#') {
            frames.push_back(line);
        }
    }
    return frames;
}

std::string FaultyFrame(const std::string& text) {
    static const std::vector<std::string> frames = FaultyFrames();
    const std::string lower = Lower(text);
    for (const std::string& frame : frames) {
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
