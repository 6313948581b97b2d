#include "reader/ReaderTexts.h"

#include "core/Cp1252.h"
#include "reader/ReaderValues.h"

#include <string_view>
#include <vector>

namespace veyrant {

namespace {

// The texts are written here with their curly quotation marks, and held in Windows-1252 as every
// text of the program is.
std::string Cp(std::string_view utf8) {
    return Utf8ToCp1252(utf8).Text;
}

std::string Paragraphs(LibraryId library, const std::vector<std::string>& paragraphs) {
    std::string text = LibraryHeading(library);
    for (const auto& paragraph : paragraphs) {
        text += "\r\n\t" + paragraph;
    }
    return text;
}

const char* const FontParagraph = "To toggle the font between its three sizes, right-click "
                                  "inside the text box. The setting is saved when you close the "
                                  "program.";

std::vector<std::string> FixedParagraphs(LibraryId library) {
    const bool information = library == LibraryId::Information;
    std::vector<std::string> paragraphs;
    if (library == LibraryId::Knowledge) {
        paragraphs.push_back(
            Cp("This Library includes the first level of Knowledge. To open the Advanced "
               "Knowledge Library, first close this Read window, then right-click ‘Know’ in the "
               "Write window."));
    }
    paragraphs.push_back(
        Cp("Sections are listed in the main (collapsed) Index-1, and their Topics in the detailed "
           "(expanded) Index-2. You may toggle between these by clicking ‘Index’. Click a "
           "<Section> to display its contents and the detailed Index-2. When you select a "
           "<Section>, you may then click any Topic, or click ‘Merge’ to display all the Topics "
           "of that Section."));
    paragraphs.push_back(
        Cp("You may step through the Topics by clicking ‘Prior’ or ‘Next’, or by pressing the "
           "‘Up’ or ‘Down’ arrow or page keys. Or scroll and click a Topic on the list. When a "
           "Topic is displayed, click ‘Index’ to reset the ") +
        LibraryShortName(library) + " Index.");
    paragraphs.push_back(
        Cp("Click ‘Window’ or the text to expand the Topic text into the display, and again to "
           "split the text and list. The current expanded or split window mode is saved, "
           "although the Library and its Sections always open in split mode."));
    const std::string reopens =
        information ? "The the next time you open Information Library, that Topic is displayed."
                    : "The the next time you open the " + LibraryHeading(library) +
                          ", that Topic is displayed.";
    paragraphs.push_back(Cp("To close the Library and save your position in the Index, click "
                            "‘Mark Exit’. ") +
                         reopens +
                         " If you close the Library normally, it will not save the position.");
    paragraphs.push_back(Cp("Click ‘Search’ for fast access to specific ") +
                         (information ? "information." : "knowledge."));
    paragraphs.push_back(FontParagraph);
    return paragraphs;
}

std::vector<std::string> DialogueParagraphs() {
    return {
        Cp("Dialogues are listed latest-to-earliest, numbered as pages last-to-first. Select a "
           "Dialogue to open it, or click ‘Latest’."),
        Cp("When you open the Library or a Dialogue, click ‘Window’ to change the display to the "
           "split or expanded mode. The window mode is saved. In the Dialogue Library, the index "
           "can be displayed in either window mode."),
        Cp("You may step through your Dialogues by clicking ‘Prior’ or ‘Next’, or by pressing the "
           "‘Up’ or ‘Down’ arrow or page keys. Or scroll and click a Dialogue on the list. When a "
           "Dialogue is showing, click ‘Index’ to reset the Dialogue Index."),
        "The Dialogue Library cleans itself by automatically deleting old Dialogues. The Library "
        "will hold a preset maximum number of Dialogues, and also not hold those older than a "
        "preset number of days. These presets may be changed in the Library Options window.",
        Cp("To print, file, and/or delete a Dialogue, first select it, then click ‘Print’, "
           "‘File’, or ‘Delete’."),
        Cp("To find words or phrases within all the Dialogues latest-to-earliest, click ‘Search’ "
           "when only the Index and not a Dialogue is showing. To search inside one Dialogue "
           "only, first open it, then click ‘Search’."),
        FontParagraph,
    };
}

} // namespace

std::string LibraryShortName(LibraryId library) {
    static const PerLibrary<const char*> Names(
        {"Dialogue", "Information", "Knowledge", "Advanced Knowledge"});
    return Names[library];
}

std::string LibraryHeading(LibraryId library) {
    return LibraryShortName(library) + " Library";
}

std::string LibraryLongName(LibraryId library) {
    return "Veyrant " + LibraryHeading(library);
}

std::string ReadInstructions(LibraryId library) {
    return Paragraphs(library, library == LibraryId::Dialogue ? DialogueParagraphs()
                                                              : FixedParagraphs(library));
}

std::string EmptyLibraryInstructions() {
    return Paragraphs(LibraryId::Dialogue,
                      {"There are currently no Dialogues saved in the Library."});
}

} // namespace veyrant
