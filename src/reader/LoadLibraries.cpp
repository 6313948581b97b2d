#include "core/ProgramError.h"
#include "engine/Suggestions.h"
#include "reader/FixedLibrary.h"
#include "reader/LibraryContent.h"

namespace veyrant {

namespace {

void Fill(FixedLibrary& library, const LibraryContent& content) {
    library.LastRow = static_cast<std::int16_t>(content.Rows.size()) - 1;
    library.Titles.clear();
    library.Texts.clear();
    library.Titles.reserve(content.Rows.size());
    library.Texts.reserve(content.Rows.size());
    for (const LibraryRowText& row : content.Rows) {
        library.Titles.emplace_back(row.Title);
        library.Texts.emplace_back(row.Text);
    }
    library.RecordWidth = content.RecordWidth;
}

bool LastTitleIsEmpty(const FixedLibrary& library) {
    return library.LastRow < 0 || library.Titles[static_cast<std::size_t>(library.LastRow)].empty();
}

} // namespace

void LoadLibraries(FixedLibraries& libraries) {
    static const PerFixedLibrary<LibraryContent (*)()> Contents(
        {InformationLibraryContent, KnowledgeLibraryContent, AdvancedLibraryContent});
    for (const LibraryId library : FixedLibraryIds) {
        Fill(libraries[library], Contents[library]());
    }
}

void CheckLibraryContent(const FixedLibraries& libraries) {
    // The Advanced Knowledge Library goes unchecked, as it always has.
    const auto suggestions = SuggestionTexts();
    if (LastTitleIsEmpty(libraries[LibraryId::Information]) ||
        LastTitleIsEmpty(libraries[LibraryId::Knowledge]) || suggestions.size() < 2 ||
        suggestions.back().empty()) {
        throw ProgramError(ErrorNumber::ProgramState);
    }
}

} // namespace veyrant
