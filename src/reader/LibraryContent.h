#pragma once

// The fixed libraries as the content compiler wrote them from data/libraries/: constant rows in
// the program's image, Windows-1252, each title with its tabs and each text in record form
// (paragraphs led by a tab, ended by CR LF) without the padding.

#include <span>
#include <string_view>

namespace veyrant {

struct LibraryRowText {
    std::string_view Title;
    std::string_view Text;
};

struct LibraryContent {
    std::span<const LibraryRowText> Rows;
    int RecordWidth = 0;
};

LibraryContent InformationLibraryContent();
LibraryContent KnowledgeLibraryContent();
LibraryContent AdvancedLibraryContent();

} // namespace veyrant
