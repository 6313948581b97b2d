#pragma once

// The Library as Markdown files for the user to keep and read anywhere: one file per Dialogue,
// named by its date, and an index of them all. The files are UTF-8 with this system's line ends;
// the Dialogue's own text goes in as plain text, never as markup.

#include "core/DateTime.h"

#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

// The file names for Dialogues of these dates, oldest first: "2026-11-24 21.05.md", and from the
// second Dialogue of one minute on " (2)", " (3)" before the ".md".
std::vector<std::string> MarkdownFileNames(const std::vector<DateTime>& dates);

// The date line, the Inspiration and every entry and response in order: an entry, a comment or a
// Suppose question as a quotation, a response as a paragraph after it. The texts are as saved, in
// Windows-1252, the dialogue with its leading blank line.
std::string DialogueMarkdown(const DateTime& date, std::string_view inspiration,
                             std::string_view dialogue);

struct IndexEntry {
    DateTime Date;
    std::string FileName;
    std::string Inspiration; // as saved
};

// Every Dialogue, latest first, by its date, linked to its file, with the first line of its
// Inspiration. The entries come oldest first.
std::string IndexMarkdown(const std::vector<IndexEntry>& entries);

inline constexpr std::string_view IndexFileName = "index.md";

} // namespace veyrant
