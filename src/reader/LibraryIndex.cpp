#include "core/Text.h"
#include "reader/FixedLibrary.h"

#include <string_view>

namespace veyrant {

namespace {

bool IsSectionTitle(const std::string& title) {
    return title.find(Tab) == std::string::npos;
}

} // namespace

void BuildLibraryIndex(FixedLibrary& library) {
    const int rows = library.LastRow + 1;
    library.RowKind.assign(static_cast<std::size_t>(rows), RowKinds::Topic);
    library.SectionTitle.clear();
    library.SectionRow.clear();
    for (int row = 0; row < rows; ++row) {
        const std::string& title = library.Titles[static_cast<std::size_t>(row)];
        if (IsSectionTitle(title)) {
            library.RowKind[static_cast<std::size_t>(row)] = RowKinds::Section;
            library.SectionTitle.push_back(title);
            library.SectionRow.push_back(static_cast<std::int16_t>(row));
        }
    }
    library.LastSection = static_cast<std::int16_t>(library.SectionRow.size()) - 1;
    // Rows ahead of the first Section keep 0; the authored content always opens with one.
    library.SectionEnd.assign(static_cast<std::size_t>(rows), 0);
    for (std::size_t k = 0; k < library.SectionRow.size(); ++k) {
        const int first = library.SectionRow[k];
        const int last =
            k + 1 < library.SectionRow.size() ? library.SectionRow[k + 1] - 1 : library.LastRow;
        for (int row = first; row <= last; ++row) {
            library.SectionEnd[static_cast<std::size_t>(row)] = static_cast<std::int16_t>(last);
        }
    }
}

std::string CleanTitle(const std::string& title) {
    std::string clean = Trim(title);
    for (auto tab = clean.find(Tab); tab != std::string::npos; tab = clean.find(Tab)) {
        clean.erase(0, tab + 1);
    }
    return clean;
}

namespace {

// A record longer than its width is cut, as a fixed-width record would cut it; trailing blanks go.
std::string_view RecordView(const FixedLibrary& library, int row) {
    std::string_view record = library.Texts[static_cast<std::size_t>(row)];
    record = record.substr(0, static_cast<std::size_t>(library.RecordWidth));
    const auto last = record.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : record.substr(0, last + 1);
}

} // namespace

std::string TrimmedRecord(const FixedLibrary& library, int row) {
    return std::string(RecordView(library, row));
}

std::string ComposeRowText(const FixedLibrary& library, int row) {
    std::string text;
    ComposeRowText(library, row, text);
    return text;
}

void ComposeRowText(const FixedLibrary& library, int row, std::string& text) {
    // The title as CleanTitle gives it, without a copy: trimmed, and what follows its last tab.
    std::string_view title = library.Titles[static_cast<std::size_t>(row)];
    const auto first = title.find_first_not_of(' ');
    title = first == std::string_view::npos
                ? std::string_view()
                : title.substr(first, title.find_last_not_of(' ') - first + 1);
    const auto tab = title.rfind(Tab);
    if (tab != std::string_view::npos) {
        title.remove_prefix(tab + 1);
    }
    // assign, not =, so that the caller's storage is kept.
    text.assign(title);
    text += CrLf;
    text += CrLf;
    text += RecordView(library, row);
}

} // namespace veyrant
