// Export Library from the command line and from its window: what is written, what the user is
// told, and that a damaged Dialogue, a full disk or a Cancel leave only whole files behind.

#include "app/AppFixture.h"
#include "app/ExportCommand.h"
#include "app/ExportLibrary.h"
#include "core/FileCalls.h"
#include "storage/LibraryLock.h"

#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <sodium.h>
#include <sstream>

namespace veyrant::testing {
namespace {

// Four Dialogues of 22 and 23 November 2026, one of them lacking its dlg/ file (nullptr); a
// Library is named by the digits of its pairs.
const std::tuple<const char*, const char*, const char*> Pairs[] = {
    {"76112309.150", "\tThe latest.", "\r\n\r\n\t\223Why now?\224\r\n\tBecause."},
    {"76112212.000", "\tThe first.", "\r\n\r\n\t\223What is it?\224\r\n\tA start."},
    {"76112301.150", "\tBroken.", nullptr},
    {"76112221.050", "\tThe evening.", "\r\n\r\n\t\223A comment.\224"},
};
const char* const FullLibrary = "0123";

// What each exported file shows on its first line.
const std::map<std::string, std::string> Headings = {
    {"2026-11-22 12.00.md", "# Sunday, 12:00 PM, November 22, 2026"},
    {"2026-11-22 21.05.md", "# Sunday, 9:05 PM, November 22, 2026"},
    {"2026-11-23 09.15.md", "# Monday, 9:15 AM, November 23, 2026"},
    {"index.md", "# Veyrant Sagrel Dialogue Library"},
    {"Library.pdf", "%PDF 3"},
};

class FakePdf final : public LibraryPdfMaker {
public:
    std::optional<std::string> LibraryPdf(const std::vector<PrintRequest>& dialogues,
                                          const std::function<bool(std::size_t)>&) override {
        return "%PDF " + std::to_string(dialogues.size());
    }
};

// The Library of the fixture, with the pairs named by their digits.
// A Library never written to has no folders yet.
void PutPairs(const AppFixture& fixture, const std::string& pairs) {
    if (pairs.empty()) {
        return;
    }
    std::filesystem::create_directories(fixture.Folder.Isp());
    std::filesystem::create_directories(fixture.Folder.Dlg());
    for (const char digit : pairs) {
        const auto& [name, inspiration, dialogue] = Pairs[digit - '0'];
        WriteWholeFile(fixture.Folder.Isp() / name, inspiration);
        if (dialogue != nullptr) {
            WriteWholeFile(fixture.Folder.Dlg() / name, dialogue);
        }
    }
}

// The export folder's files, each with its first line.
std::map<std::string, std::string> FilesIn(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    std::error_code missing;
    for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
        std::ifstream in(entry.path());
        std::getline(in, files[entry.path().filename().string()]);
    }
    return files;
}

// The text with each "@" standing for the folder.
std::string Expand(std::string text, const std::filesystem::path& folder) {
    for (auto at = text.find('@'); at != std::string::npos; at = text.find('@')) {
        text.replace(at, 1, folder.string());
    }
    return text;
}

// Every file written is listed in the output and shows its heading; nothing else is written. A
// file in the way, a Guest Mode and a lock are refused.
TEST(LibraryExport, CommandLineWritesReportsAndExits) {
    struct Case {
        const char* Name;
        const char* Library;
        const char* Option;
        int RenamesBeforeFullDisk; // 0: the disk never fills
        int ExitCode;
        // "@" stands for the export folder; a fixed text is named by its first words, and the
        // note that follows what is written by its own.
        std::string Output;
    };
    const Case cases[] = {
        {"a Library never written to", "", nullptr, 0, 1, "There are no Dialogues saved"},
        {"one Dialogue", "1", nullptr, 0, 0,
         "@/2026-11-22 12.00.md\n@/index.md\n1 Dialogue written to @.\n"},
        {"a full Library with a damaged Dialogue", FullLibrary, "--pdf", 0, 2,
         "@/2026-11-22 12.00.md\n@/2026-11-22 21.05.md\n@/2026-11-23 09.15.md\n@/index.md\n"
         "@/Library.pdf\n3 Dialogues written to @.\n\nNot written:\n"
         "76112301.150: Error 53, one of its two files is missing from the Library.\n"},
        {"a full disk half-way", FullLibrary, nullptr, 2, 2,
         "@/2026-11-22 12.00.md\n@/2026-11-22 21.05.md\n2 Dialogues written to @.\n\n"
         "Not written:\n76112301.150: Error 53, one of its two files is missing from the "
         "Library.\n2026-11-23 09.15.md: Error 61, the disk is full.\n"
         "index.md: not every Dialogue it lists could be written.\n"},
        {"arguments not understood", "1", "--pfd", 0, 2, "usage: veyrant-sagrel"},
        {"a file in the way", "1", "index.md", 0, 2,
         "Nothing written: these files already stand in @ and are not replaced:\nindex.md\n"},
        {"Guest Mode", "1", "guest", 0, 1, "The Library is in the Guest Mode."},
        {"locked", "1", "locked", 0, 2, "The Library is locked"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        AppFixture fixture;
        AppFolder& library = fixture.Folder;
        PutPairs(fixture, c.Library);
        const auto out = fixture.Temp / "export";
        std::vector<std::string> arguments{"--export-library", out.string()};
        // The files the export folder holds after, each with its first line.
        std::map<std::string, std::string> written;
        const std::string option = c.Option == nullptr ? "" : c.Option;
        if (option == "index.md") {
            std::filesystem::create_directories(out);
            WriteWholeFile(out / option, "mine");
            written = {{"index.md", "mine"}};
        } else if (option == "guest") {
            fixture.PutExeFile(
                "Tolmira.ini",
                " 0 \r\n 0 \r\n 0  0  0  0 \r\n 1  1 \r\n 0 \r\n 21  30 \r\n 1 \r\n");
        } else if (option == "locked") {
            TurnLockOn(library, "lantern",
                       {crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN});
            library.Key.reset(); // a new process: nobody has typed the passphrase
        } else if (!option.empty()) {
            arguments.push_back(option);
        }
        int renames = 0;
        SetFileFault([&](FileCall call, const std::filesystem::path&) {
            renames += call == FileCall::Rename ? 1 : 0;
            const bool full = c.RenamesBeforeFullDisk > 0 && renames >= c.RenamesBeforeFullDisk;
            return full && call == FileCall::Write ? ENOSPC : 0;
        });
        FakePdf pdf;
        std::ostringstream output;
        const int exitCode = ExportLibraryCommand(arguments, library, pdf, output);
        SetFileFault({});

        EXPECT_EQ(exitCode, c.ExitCode);
        const bool wrote = c.Output.find("@/") != std::string::npos;
        const std::string told = Expand(c.Output, out) + (wrote ? "\nThe exported files" : "");
        EXPECT_EQ(output.str().substr(0, told.size()), told);
        std::istringstream lines(c.Output);
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("@/")) {
                written[line.substr(2)] = Headings.at(line.substr(2));
            }
        }
        EXPECT_EQ(FilesIn(out), written);
        EXPECT_EQ(std::filesystem::exists(out), !written.empty());
    }
}

TEST(LibraryExport, WindowAsksWritesUnderProgressAndCancels) {
    struct Case {
        std::int16_t GuestMode;
        const char* Library;
        int CancelAtStep;    // 0: never
        const char* Answers; // Y or N: the PDF, then opening the folder
        std::size_t FilesWritten;
        std::string Told;
    };
    const Case cases[] = {
        {0, FullLibrary, 0, "YY", 5, "3 Dialogues written to @."},
        {0, FullLibrary, 2, "NN", 2,
         "2 Dialogues written to @. The export was cancelled before it was finished."},
        {0, "", 0, "", 0, "There are no Dialogues saved in the Library"},
        {1, FullLibrary, 0, "", 0, "The Library is in the Guest Mode."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Told);
        AppFixture fixture;
        PutPairs(fixture, c.Library);
        FakeWindowLayer& layer = fixture.Windows;
        layer.FolderAnswers = {fixture.Temp.Path()};
        for (const char* answer = c.Answers; *answer != 0; ++answer) {
            layer.Answers.push_back(*answer == 'Y' ? MessageAnswer::Yes : MessageAnswer::No);
        }
        fixture.App.UserSettings.GuestMode = c.GuestMode;
        FakePdf pdf;
        int exits = 0;
        ExportLibrary window(fixture.Folder, fixture.App.UserSettings, fixture.Clock, layer, pdf,
                             [&] { ++exits; });
        bool cancelled = false;
        window.Changed = [&] {
            if (!cancelled && c.CancelAtStep > 0 && window.Controls().prgExport == c.CancelAtStep) {
                cancelled = true;
                window.cmdCancel_Click();
            }
        };
        window.Form_Activate();

        const auto out = fixture.Temp / "Veyrant Sagrel Library 2026-11-22";
        EXPECT_EQ(FilesIn(out).size(), c.FilesWritten);
        const std::string told = Expand(c.Told, out);
        ASSERT_FALSE(layer.Boxes.empty());
        EXPECT_EQ(layer.Boxes.back().Text.substr(0, told.size()), told);
        EXPECT_EQ(layer.OpenedFolders.size(), c.Answers[0] == 'Y' ? 1u : 0u);
        EXPECT_EQ(exits, 1);
    }
}

} // namespace
} // namespace veyrant::testing
