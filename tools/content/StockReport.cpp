#include "StockReport.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace veyrant::content {

namespace {

std::vector<std::string> Numbered(const std::string& stem, int first, int last) {
    std::vector<std::string> labels;
    for (int n = first; n <= last; ++n) {
        labels.push_back(stem + std::to_string(n));
    }
    return labels;
}

std::vector<std::string> Joined(std::vector<std::string> head,
                                const std::vector<std::string>& tail) {
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

} // namespace

const std::vector<StockTarget>& StockTargets() {
    static const std::vector<StockTarget> Targets = {
        {},
        {1602,
         {"Yes", "No", "Maybe", "Expect-yes", "Expect-no", "Consider-no", "Will-you",
          "Imagine-best-answer", "Cond-lead", "Cond-lag", "It-is-what", "Is-it-what", "You-believe",
          "Your-belief", "If-you-associate"}},
        {1221,
         {"To-a-degree-y", "To-a-degree-n", "Your-beliefs", "Are-conflicted", "But-however",
          "P-to-change-know", "N-to-change-know", "The-question"}},
        {1227,
         {"Direction-s", "Direction-q", "But-given", "Suggesting-meaning", "Change-focus-of",
          "Lead-touch"}},
        {2098,
         {"The-idea-of", "You-can", "Can-you", "To-spc", "Think-ask", "Know-what", "Know-who",
          "Know-when", "Know-where", "Know-why", "Know-how", "D-that-can", "An-p-healthy"}},
        {1796,
         {"Focus-concept", "I-am", "D-can", "An-n-healthy", "An-relationship-with", "Ask-you-can",
          "You-can-w", "Can-you-w", "The-point", "Method-y", "Symbol-y", "Do-know-what-is",
          "Your-belief-a", "In-statement-y", "P-feel-quality", "N-feel-quality"}},
        {1954,
         {"The-meaning-of", "P-continue-m", "P-change-m", "Your-statement", "Do-you-need-to",
          "An-n-situation", "Focus-m", "The-fact-that", "Will-you-m", "Your-idea",
          "Answer-which-implies", "Answer-makes-you", "Which-answer-implies", "P-quality",
          "N-quality", "Which-makes-you"}},
        {1273,
         {"Not-experience",  "Is-selected-a", "Is-selected-b",   "Is-valid",      "Your-list",
          "Your-belief-sup", "Suggest-dir",   "The-answer",      "But-yet-it",    "Direction-sup",
          "Is-invalid",      "Is-not-best",   "You-do-not-know", "Focus-req-val", "Focus-req-spc",
          "Focus-req-mot",   "Focus-req-sup", "Focus-rsp-val",   "Focus-rsp-spc", "Focus-rsp-mot"}},
        {1169,
         {"No-request-q", "No-request-s", "No-request-p", "The-request-val", "The-request-spc",
          "The-request-mot", "The-response-val", "The-response-spc", "The-response-mot"}},
        {881,
         {"The-request-sup", "No-conversation", "No-response-q", "No-response-s", "Consider-yes",
          "Can-change"}},
        {2044, {"Fulfill-yourself", "Be-yourself",      "So-that-you",      "Only-touches",
                "Symbol-what-s",    "Symbol-who-s",     "Symbol-when-s",    "Symbol-where-s",
                "Symbol-why-s",     "Symbol-how-s",     "Symbol-what-q",    "Symbol-who-q",
                "Symbol-when-q",    "Symbol-where-q",   "Symbol-why-q",     "Symbol-how-q",
                "Focus-symbol",     "Focus-allegory",   "P-choosing-pn",    "An-conceptually",
                "An-conceptual",    "An-p-qualified-i", "An-n-qualified-i", "An-p-qualified-e",
                "An-n-qualified-e"}},
        {1354,
         Joined(
             {"Masculine-seeming",     "Feminine-seeming", "Seemingly-new",   "Seemingly-old",
              "Seemingly-risky",       "Seemingly-safe",   "N-communicative", "Relationship-with",
              "P-communicative",       "An-p-intention",   "An-n-intention",  "Being-i",
              "Health-responsibility", "Health-intention", "Health-activity", "Health-behavior",
              "Health-choice",         "Health-priority",  "Health-decision", "Health-belief",
              "Health-expectation",    "Health-desire",    "Being-e",         "N-activity-with"},
             Numbered("Inspiration", 1, 6))},
        {1768, Joined(Numbered("Inspiration", 7, 10),
                      {"P-modifier-i", "An-p-modifier-i", "N-modifier-i", "An-n-modifier-i",
                       "P-modifier-p", "An-p-modifier-p", "N-modifier-p", "An-n-modifier-p",
                       "N-choosing-pn", "An-person", "P-activity-with"})},
        {2110,
         {"Symbol-of", "N-communive", "P-communive", "N-creative", "P-creative", "Focus-person",
          "Focus-relation", "N-active-with", "P-creating", "N-creating", "Hbeing-i",
          "P-communing-with", "My-body", "N-communing-with", "My-mind", "P-communicating-with"}},
        {1728,
         {"My-spirit",
          "N-communicating-with",
          "P-belief-in",
          "N-belief-in",
          "P-believing-in",
          "N-believing-in",
          "The-power-of",
          "Inner-self",
          "Dreaming-self",
          "Spirit-self",
          "Source-self",
          "P-creativity-with",
          "N-creativity-with",
          "P-communion-with",
          "N-communion-with",
          "P-communication-with",
          "N-communication-with",
          "Hbeing-e",
          "P-alter",
          "N-alter",
          "P-active-with",
          "N-acceptance-of",
          "P-accepting-of",
          "P-accepting-pn",
          "N-accepting-pn",
          "N-accepting-of",
          "P-acceptance-of"}},
    };
    return Targets;
}

bool StockTally::SizeFits() const {
    return std::abs(Rows - TargetRows) * 10 <= TargetRows;
}

StockTally TallyStock(const StockSource& stock, const StockTarget& target) {
    StockTally tally;
    tally.TargetRows = target.Rows;
    tally.Groups = static_cast<int>(stock.Groups.size());
    std::set<std::string> texts;
    int phraseRows = 0;
    for (const PhraseGroup& group : stock.Groups) {
        phraseRows += static_cast<int>(group.Rows.size());
        texts.insert(group.Rows.begin(), group.Rows.end());
    }
    tally.Rows = tally.Groups + phraseRows;
    tally.DistinctRows = static_cast<int>(texts.size());
    tally.Repeats = phraseRows - tally.DistinctRows;

    // A table label must stand behind the one before it that was found.
    std::ptrdiff_t lastPlace = -1;
    for (const std::string& label : target.Labels) {
        const auto found = std::find_if(stock.Groups.begin(), stock.Groups.end(),
                                        [&](const PhraseGroup& g) { return g.Label == label; });
        if (found == stock.Groups.end()) {
            tally.MissingLabels.push_back(label);
            continue;
        }
        ++tally.LabelsFound;
        const std::ptrdiff_t place = found - stock.Groups.begin();
        if (place < lastPlace) {
            tally.LabelsOutOfOrder.push_back(label);
        } else {
            lastPlace = place;
        }
    }
    return tally;
}

} // namespace veyrant::content
