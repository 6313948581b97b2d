#pragma once

// The fixed libraries as authored under data/libraries/: the catalogue of titles in row order,
// the bodies written Section by Section, and each library's record width. Read here into rows
// as the program holds them, Windows-1252, every title checked against the catalogue.

#include "ContentSources.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant::content {

// The three libraries by their folder names, in the order the program loads them.
inline constexpr std::array<std::string_view, 3> LibraryFolders = {"information", "knowledge",
                                                                   "advanced"};

struct SourceFile {
    std::string Name;
    std::string Utf8;
};

struct LibraryRowSource {
    std::string Title; // with its leading tabs: none for a Section, one or two for a Topic
    std::string Text;  // its paragraphs, each led by a tab (two for an item) and ended by CR LF
    SourcePlace Place; // of the title line among the bodies
};

struct LibrarySource {
    std::string Folder;
    std::vector<LibraryRowSource> Rows;
    int RecordWidth = 0;
};

// Each raises ContentError.
// "information 870": the characters of one record, for each library.
std::map<std::string, int> ReadLibraryWidths(const SourceFile& widths);
// The bodies are read in the order given; together they must give every row of the catalogue.
LibrarySource ReadLibrarySource(const std::string& folder, const SourceFile& catalogue,
                                const std::vector<SourceFile>& bodies, int recordWidth);
// The three libraries under a data folder: libraries/widths.txt, libraries/catalogue/, and the
// .txt files of each library's folder in name order.
std::vector<LibrarySource> ReadLibraryFolder(const std::string& dataFolder);

// "InformationLibrary": the generated unit's name, and with "Content" its function's.
std::string LibraryUnitName(const std::string& folder);
// The generated C++ unit of one library.
std::string LibraryUnit(const LibrarySource& library);

} // namespace veyrant::content
