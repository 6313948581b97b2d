// sample-replies [--count N] [--message M] [--seed SECONDS] [--joins SAMPLES]
//
// Prints composed replies for every message number, or for one, as the program would show
// them, from a given clock reading. Content authors run it after each change to data/.
//
// With --joins it composes --count replies per message and lists instead every pair of phrase
// components that stood next to each other (marks between them aside), most frequent first,
// with how often they met and up to SAMPLES of their joins: a sentence reads badly where two
// rows meet, so that is where to read. It ends with the groups that no reply of the run met.

#include "common/ConsoleSeams.h"
#include "core/Clock.h"
#include "core/Cp1252.h"
#include "core/Random.h"
#include "core/Text.h"
#include "core/WindowLayer.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace veyrant;
using tools::ConsoleWindowLayer;
using tools::SettableClock;

const char* const MessageNames[] = {"",
                                    "answer to a yes-or-no question",
                                    "answer to a \"who\" question",
                                    "answer to a \"what\" question",
                                    "answer to a \"when\" question",
                                    "answer to a \"where\" question",
                                    "answer to a \"why\" question",
                                    "answer to a \"how\" question",
                                    "answer to a statement",
                                    "verdict on an idea, chosen",
                                    "verdict on an idea, declined",
                                    "remark on a yes-or-no question",
                                    "remark on a question",
                                    "remark on a statement",
                                    "remark in the Supposition method",
                                    "Inspiration",
                                    "interjection about the conversation"};

std::string Shown(const std::string& composed) {
    return Trim(Mid(composed, 3));
}

// Asks for the message through the request the Write window would use, and gives the text as
// the window shows it.
std::string Reply(Engine& engine, int number) {
    using enum SentenceType;
    static const SentenceType AnswerTypes[] = {None,         YesNoQuestion, WhoQuestion,
                                               WhatQuestion, WhenQuestion,  WhereQuestion,
                                               WhyQuestion,  HowQuestion,   Statement};
    static const SentenceType RemarkTypes[] = {YesNoQuestion, WhoQuestion, Statement,
                                               SupposeQuestion};
    const auto message = static_cast<MessageNumber>(number);
    if (message <= MessageNumber::StatementAnswer) {
        engine.RequestAnswer(AnswerTypes[number]);
        return Shown(engine.ReplyText);
    }
    if (message == MessageNumber::IdeaChosen) {
        engine.RequestIdeaVerdict(ReplyKind::Answer);
        return std::string("Your idea ") + OpenQuote + "Move closer to the sea." + CloseQuote +
               " " + engine.IdeaVerdict;
    }
    if (message == MessageNumber::IdeaDeclined) {
        engine.RequestIdeaVerdict(ReplyKind::Remark);
        return Shown(engine.IdeaVerdict);
    }
    if (message <= MessageNumber::SupposeRemark) {
        const auto firstRemark = static_cast<int>(MessageNumber::YesNoRemark);
        engine.RequestRemark(RemarkTypes[number - firstRemark]);
        return Shown(engine.ReplyText);
    }
    if (message == MessageNumber::Inspiration) {
        engine.RequestInspiration();
        return Mid(engine.InspirationText, 2);
    }
    engine.RequestInterjection();
    return Shown(engine.ReplyText);
}

// A component's label, its row 0, which the tables keep in the idle plane 0 of the map.
std::string Label(const Engine& engine, std::int16_t component) {
    const EngineTables& tables = engine.Tables();
    const auto block = static_cast<std::size_t>(tables.ComponentBlock.at(component));
    const auto row = static_cast<std::size_t>(tables.Map.At(0, component, 0));
    return Trim(engine.Stocks().Rows.at(block).at(row));
}

bool IsMark(const std::string& row) {
    return !row.empty() && row.front() != ' ';
}

struct Meetings {
    int Count = 0;
    std::vector<std::string> Samples;
};

// Walks the last composition and counts each meeting of two phrase rows, with the marks that
// stood between them in the sample.
void CountJoins(Engine& engine, std::size_t samples,
                std::map<std::pair<std::string, std::string>, Meetings>& joins,
                std::set<std::int16_t>& met) {
    Composer& composer = engine.MessageComposer();
    std::int16_t previous = 0;
    std::string previousRow;
    std::string marks;
    for (int i = 1; i <= composer.CompositionLength; ++i) {
        const auto at = static_cast<std::size_t>(i);
        composer.Rcmp(composer.CompositionComponents[at], composer.CompositionRows[at]);
        const std::string row = composer.PhraseOut;
        met.insert(composer.CompositionComponents[at]);
        if (IsMark(row)) {
            marks += row;
            continue;
        }
        if (previous != 0) {
            Meetings& met =
                joins[{Label(engine, previous), Label(engine, composer.CompositionComponents[at])}];
            ++met.Count;
            const std::string join = Trim(previousRow) + marks + row;
            if (met.Samples.size() < samples &&
                std::find(met.Samples.begin(), met.Samples.end(), join) == met.Samples.end()) {
                met.Samples.push_back(join);
            }
        }
        previous = composer.CompositionComponents[at];
        previousRow = row;
        marks.clear();
    }
}

void PrintJoins(const std::map<std::pair<std::string, std::string>, Meetings>& joins) {
    std::vector<std::pair<std::pair<std::string, std::string>, Meetings>> ranked(joins.begin(),
                                                                                 joins.end());
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.second.Count > b.second.Count; });
    for (const auto& [pair, met] : ranked) {
        std::cout << "    " << met.Count << "  " << pair.first << " + " << pair.second << "\n";
        for (const std::string& sample : met.Samples) {
            std::cout << "        " << Cp1252ToUtf8(sample) << "\n";
        }
    }
}

void PrintNeverMet(const Engine& engine, const std::set<std::int16_t>& met) {
    std::vector<std::string> never;
    const std::int16_t last = engine.Tables().ComponentCount;
    for (std::int16_t component = 0; component <= last; ++component) {
        if (met.count(component) == 0) {
            never.push_back(Label(engine, component));
        }
    }
    std::cout << "Groups never met: " << never.size() << " of " << last + 1 << "\n";
    for (const std::string& label : never) {
        std::cout << "    " << label << "\n";
    }
}

int Usage() {
    std::cerr << "usage: sample-replies [--count N] [--message 1-16] [--seed SECONDS] "
                 "[--joins SAMPLES]\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    int count = 5;
    int only = 0;
    float seed = 43200.25f;
    int joinSamples = -1;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--count") == 0) {
            count = std::atoi(argv[i + 1]);
        } else if (std::strcmp(argv[i], "--message") == 0) {
            only = std::atoi(argv[i + 1]);
        } else if (std::strcmp(argv[i], "--seed") == 0) {
            seed = std::strtof(argv[i + 1], nullptr);
        } else if (std::strcmp(argv[i], "--joins") == 0) {
            joinSamples = std::atoi(argv[i + 1]);
        } else {
            return Usage();
        }
    }
    if (argc % 2 == 0 || count < 1 || only < 0 || only > 16 || joinSamples < -1) {
        return Usage();
    }
    char folderName[] = "/tmp/sample-replies-XXXXXX";
    if (mkdtemp(folderName) == nullptr) {
        std::cerr << "sample-replies: cannot make a temporary folder\n";
        return 1;
    }
    const AppFolder folder{folderName};
    ConsoleWindowLayer windows;
    SettableClock clock;
    Random random;
    Engine engine(random, clock, windows);
    int status = 0;
    try {
        InstallEngineFiles(folder);
        clock.Seconds = seed;
        if (!engine.LoadSystem(folder)) {
            status = 1;
        }
    } catch (const std::exception& error) {
        std::cerr << "sample-replies: " << error.what() << "\n";
        status = 1;
    }
    if (status == 0) {
        engine.SeedSeries();
        std::set<std::int16_t> met;
        for (int message = only == 0 ? 1 : only; message <= (only == 0 ? 16 : only); ++message) {
            std::cout << "Message " << message << ": " << MessageNames[message] << "\n";
            std::map<std::pair<std::string, std::string>, Meetings> joins;
            for (int k = 0; k < count; ++k) {
                // Each reply as if the entry were accepted a little later in the day.
                clock.Seconds = seed + 7.31f * static_cast<float>(k + 1);
                engine.SeriesSeed = clock.Timer();
                engine.StretchSeeds();
                const std::string reply = Reply(engine, message);
                if (joinSamples < 0) {
                    std::cout << "    " << Cp1252ToUtf8(reply) << "\n";
                } else {
                    CountJoins(engine, static_cast<std::size_t>(joinSamples), joins, met);
                }
            }
            PrintJoins(joins);
        }
        if (joinSamples >= 0) {
            PrintNeverMet(engine, met);
        }
    }
    std::filesystem::remove_all(folderName);
    return status;
}
