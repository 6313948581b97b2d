#include "printing/PrintLayout.h"

#include "core/DateFormat.h"
#include "core/Text.h"
#include "printing/PageGeometry.h"
#include "printing/PrintTexts.h"
#include "printing/WrapText.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace veyrant {

namespace {

using namespace PageGeometry;

// Inspiration, the empty line after it, Dialogue and the empty lines around them.
constexpr int FirstPageHeadLines = 5;

class DialoguePages {
public:
    DialoguePages(PageDevice& device, const PrintRequest& request)
        : device_(device), request_(request) {}

    int Draw() {
        inspiration_ = WrapText(device_, request_.Inspiration);
        dialogue_ = WrapText(device_, request_.Dialogue);
        const int inspirationCount = static_cast<int>(inspiration_.size());
        const int pages = PrintPageCount(inspirationCount, static_cast<int>(dialogue_.size()));
        FirstPageHead();
        FirstPageBody(BodyLinesPerPage - inspirationCount - FirstPageHeadLines);
        for (int page = 2; page <= pages; ++page) {
            NextPageBody(page);
        }
        device_.EndDocument();
        return pages;
    }

private:
    void FirstPageHead() { Head(request_.Title, true); }

    void NextPageHead(int page) {
        device_.NewPage();
        Head("Page " + std::to_string(page), false);
    }

    void Head(const std::string& heading, bool bold) {
        device_.SetFont({RulePoints, false, false});
        EmptyLines(2);
        device_.SetFont({HeadingPoints, bold, false});
        Centred(heading);
        const double ruleEnd = Rule();
        device_.SetFont({RulePoints, false, true});
        device_.SetCurrentX(0);
        device_.Print(std::string(IndentBlanks, ' ') +
                      FormatDate(request_.ShownDate, "dddd, h:nn AM/PM"));
        const std::string dateLine = FormatDate(request_.ShownDate, "mmmm d, yyyy");
        device_.SetCurrentX(ruleEnd - device_.TextWidth(dateLine));
        device_.Print(dateLine);
        device_.EndLine();
    }

    void FirstPageBody(int dialogueRoom) {
        device_.SetFont({BodyPoints, true, false});
        BodyLine("Inspiration");
        device_.SetFont({BodyPoints, false, false});
        EmptyLines(1);
        for (const auto& line : inspiration_) {
            BodyLine(line);
        }
        EmptyLines(1);
        device_.SetFont({BodyPoints, true, false});
        BodyLine("Dialogue");
        device_.SetFont({BodyPoints, false, false});
        EmptyLines(1);
        // An Inspiration too long for the first page leaves it no Dialogue, not a negative room.
        const int room = std::max(dialogueRoom, 0);
        EmptyLines(room - NextLines(room));
        FirstPageFoot();
    }

    void FirstPageFoot() {
        Rule();
        device_.SetFont({FootPoints, false, false});
        Centred(std::string(PrintTexts::TitleLine));
        device_.SetFont({FootPoints, false, true});
        Centred(OpenQuote + std::string(PrintTexts::PrintedMotto) + CloseQuote);
        device_.SetFont({FootPoints, false, false});
        Centred(std::string(PrintTexts::MakerLine));
    }

    void NextPageBody(int page) {
        NextPageHead(page);
        device_.SetFont({BodyPoints, false, false});
        EmptyLines(1);
        EmptyLines(BodyLinesPerPage - NextLines(BodyLinesPerPage));
        EmptyLines(2);
        Rule();
    }

    // Prints up to count of the Dialogue's lines not yet printed; returns how many it printed.
    int NextLines(int count) {
        const auto left = dialogue_.size() - printed_;
        const auto take = std::min(left, static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < take; ++i) {
            BodyLine(dialogue_[printed_ + i]);
        }
        printed_ += take;
        return static_cast<int>(take);
    }

    void BodyLine(const std::string& text) {
        device_.SetCurrentX(LeftMargin);
        device_.Print(text);
        device_.EndLine();
    }

    void Centred(const std::string& text) {
        device_.SetCurrentX((PageWidth - device_.TextWidth(text)) / 2);
        device_.Print(text);
        device_.EndLine();
    }

    void EmptyLines(int count) {
        for (int i = 0; i < count; ++i) {
            device_.EndLine();
        }
    }

    // A line of underscores as wide as the page less an indent on each side, after an indent of
    // blanks; returns where it ends.
    double Rule() {
        device_.SetFont({RulePoints, false, false});
        const double indent = device_.TextWidth(std::string(IndentBlanks, ' '));
        const double underscore = device_.TextWidth("_");
        const auto count =
            static_cast<std::size_t>(std::floor((PageWidth - 2 * indent) / underscore));
        device_.SetCurrentX(0);
        device_.Print(std::string(IndentBlanks, ' ') + std::string(count, '_'));
        device_.EndLine();
        return indent + static_cast<double>(count) * underscore;
    }

    PageDevice& device_;
    const PrintRequest& request_;
    std::vector<std::string> inspiration_;
    std::vector<std::string> dialogue_;
    std::size_t printed_ = 0;
};

} // namespace

int PrintPageCount(int inspirationLines, int dialogueLines) {
    const int total = inspirationLines + dialogueLines + FirstPageHeadLines;
    return (total + BodyLinesPerPage - 1) / BodyLinesPerPage;
}

int LayOutDialogue(PageDevice& device, const PrintRequest& request) {
    return DialoguePages(device, request).Draw();
}

} // namespace veyrant
