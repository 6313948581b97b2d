// The Read window's search: one walk with no hit through each fixed library, and one through a
// Library of 99 Dialogues each at the system limit, driven through the Reader's own handlers
// (Search, type, Go). Against them, the same walks done literally: each row's composed text built
// afresh and a lower-cased copy of it made for the comparison.
//
// The longest Dialogue the program writes: the transcript stops at 121 kept items; the
// longest item is a pair of a 140-character entry and the longest reply the engine composes
// (334 characters in 3,000 samples of every message; 340 is used), so one Dialogue is
// 121 x 490 bytes, about 59 KB, and 99 of them about 5.8 MB.
//
// Targets: a fixed library walked in 0.5 ms or less, the 99 Dialogues in 10 ms or less, each at
// least five times faster than its literal walk. The same 99 Dialogues in a locked Library, each
// file opened from its envelope, in 20 ms or less; and opening the locked Library at start (the
// passphrase stretched) in about half a second, which is all a locked Library adds to the start.

#include "app/Application.h"
#include "core/DateFormat.h"
#include "core/Random.h"
#include "core/Text.h"
#include "reader/FixedLibrary.h"
#include "shell/DisplayScale.h"
#include "storage/DialogueFile.h"
#include "storage/FileTransaction.h"
#include "storage/LibraryFileName.h"
#include "storage/LibraryLock.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <memory>

namespace veyrant {
namespace {

using RC = ReaderControl;

// Ordinary words, so that the walk meets its letters as often as prose makes it; found nowhere.
const std::string NoHit = "sea otters";

constexpr int DialogueCount = 99;
constexpr int PairLimit = 121;
constexpr std::size_t EntryLength = 140;
constexpr std::size_t ReplyLength = 340;
constexpr std::size_t InspirationLength = 170;

// A whole program in a temporary folder with the real fixed libraries, as the tests build it.
struct ReadingProgram {
    testing::TempFolder Temp;
    AppFolder Folder{Temp / "veyrant-sagrel"};
    testing::FakeClock Clock;
    Random Series;
    testing::FakeWindowLayer Windows;
    Application App{Folder, Temp / "program", Clock, Series, Windows};

    ReadingProgram() {
        std::filesystem::create_directories(Folder.Exe());
        SetDisplayScale(1, App.Scale);
        LoadLibraries(App.Libraries);
        for (auto* library :
             {&App.Libraries[LibraryId::Information], &App.Libraries[LibraryId::Knowledge],
              &App.Libraries[LibraryId::Advanced]}) {
            BuildLibraryIndex(*library);
        }
        App.UserSettings.MaxLibraryFiles = DialogueCount;
        App.Write =
            std::make_unique<Mirror>(App.WriteWorld(), App.Replies, App.Buffers, App.Library);
        App.Write->ConnectLibraries(App.Links, App.Back);
    }

    void Open(int library) {
        App.Links.BeginOpening();
        App.Links.OpenLibrary(static_cast<LibraryId>(library));
    }
    Reader& Read() { return *App.Read; }

    // Prose from the Knowledge Library, lines joined, to cut entries and replies from.
    std::string Prose() const {
        std::string prose;
        const FixedLibrary& library = App.Libraries[LibraryId::Knowledge];
        for (int row = 0; row <= library.LastRow; ++row) {
            for (const char c : library.Texts[static_cast<std::size_t>(row)]) {
                prose += c == '\r' || c == '\n' || c == '\t' ? ' ' : c;
            }
        }
        return prose;
    }

    // 99 Dialogues an hour apart, each of 121 pairs of the longest entry and reply.
    void SaveLongestDialogues() {
        std::filesystem::create_directories(Folder.Isp());
        std::filesystem::create_directories(Folder.Dlg());
        const std::string prose = Prose();
        std::size_t at = 0;
        const auto cut = [&](std::size_t length) {
            if (at + length > prose.size()) {
                at = 0;
            }
            const std::string piece = prose.substr(at, length);
            at += length * 7 / 5;
            return piece;
        };
        for (int k = 0; k < DialogueCount; ++k) {
            const DateTime when = FromDayNumber(DayNumber(Clock.Date) - (k + 1) / 24.0);
            const std::string name = MakeFileName(when);
            std::string dialogue;
            for (int pair = 0; pair < PairLimit; ++pair) {
                dialogue += "\r\n\r\n\t\x93" + cut(EntryLength) + "\x94\r\n\t" + cut(ReplyLength);
            }
            FileTransaction change(Folder.Root);
            DialogueFile::SavedInspiration(Folder, name)
                .Stage(change, "\t" + cut(InspirationLength));
            DialogueFile::SavedDialogue(Folder, name).Stage(change, dialogue);
            change.Commit();
            Clock.FileDates[Folder.Isp() / name] = when;
            Clock.FileDates[Folder.Dlg() / name] = when;
        }
    }

    // One walk with no hit as the user makes it: Search, the text typed, then Go, which alone is
    // timed. Cancel then returns to the list for the next.
    double TimedWalk(benchmark::State& state, const char* notFound) {
        Read().Click(RC::cmdSearch);
        Read().SearchTextChanged(NoHit);
        const auto start = std::chrono::steady_clock::now();
        Read().Click(RC::cmdSearch);
        const auto end = std::chrono::steady_clock::now();
        if (Read().Controls()[RC::txtSearch].Text != notFound) {
            state.SkipWithError("the walk did not end without a hit");
        }
        Read().Click(RC::cmdSelect);
        return std::chrono::duration<double>(end - start).count();
    }
};

// ComposeRowText as first written: the record cut, trimmed and joined, each a new string.
std::string LiteralRowText(const FixedLibrary& library, int row) {
    const auto index = static_cast<std::size_t>(row);
    const std::string record =
        library.Texts[index].substr(0, static_cast<std::size_t>(library.RecordWidth));
    return CleanTitle(library.Titles[index]) + std::string(CrLf) + std::string(CrLf) +
           RTrim(record);
}

long LiteralFind(const std::string& text, const std::string& needle) {
    return Find(Lower(text), Lower(needle), 1);
}

const FixedLibrary& LibraryFor(const ReadingProgram& program, int library) {
    return program.App.Libraries[static_cast<LibraryId>(library)];
}

void BM_FixedLibraryWalk(benchmark::State& state) {
    const int library = static_cast<int>(state.range(0));
    ReadingProgram program;
    program.Open(library);
    for (auto _ : state) {
        state.SetIterationTime(program.TimedWalk(state, "No text found"));
    }
}

void BM_FixedLibraryWalkLiteral(benchmark::State& state) {
    const int library = static_cast<int>(state.range(0));
    const ReadingProgram program;
    const FixedLibrary& rows = LibraryFor(program, library);
    for (auto _ : state) {
        for (int row = 0; row <= rows.LastRow; ++row) {
            if (LiteralFind(LiteralRowText(rows, row), NoHit) != 0) {
                state.SkipWithError("the literal walk found the text");
            }
        }
    }
}

// Information, Knowledge, Advanced Knowledge.
BENCHMARK(BM_FixedLibraryWalk)
    ->Arg(2)
    ->Arg(3)
    ->Arg(4)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_FixedLibraryWalkLiteral)->Arg(2)->Arg(3)->Arg(4)->Unit(benchmark::kMicrosecond);

// Argument 1: the Library locked with a passphrase.
void BM_AllDialoguesWalk(benchmark::State& state) {
    ReadingProgram program;
    program.SaveLongestDialogues();
    if (state.range(0) == 1) {
        TurnLockOn(program.App.Folder, "sea otters at dawn");
    }
    program.Open(LibraryNumber(LibraryId::Dialogue));
    if (program.App.Library.Listing().LibraryCount != DialogueCount) {
        state.SkipWithError("the Library does not hold 99 Dialogues");
        return;
    }
    for (auto _ : state) {
        state.SetIterationTime(program.TimedWalk(state, "No Text found"));
    }
    state.SetBytesProcessed(
        state.iterations() *
        static_cast<std::int64_t>(DialogueCount * PairLimit * (EntryLength + ReplyLength + 10)));
}

// Latest to earliest, each Dialogue read whole as LoadDialogue reads it, its shown text built
// afresh and lower-cased for the comparison.
void BM_AllDialoguesWalkLiteral(benchmark::State& state) {
    ReadingProgram program;
    program.SaveLongestDialogues();
    program.App.Library.ScanLibrary();
    const auto& listing = program.App.Library.Listing();
    if (listing.LibraryCount != DialogueCount) {
        state.SkipWithError("the Library does not hold 99 Dialogues");
        return;
    }
    for (auto _ : state) {
        for (int index = listing.LibraryCount; index >= 1; --index) {
            const std::string& name = listing.LibraryFiles[static_cast<std::size_t>(index)];
            const std::string inspiration =
                DialogueFile::SavedInspiration(program.Folder, name).Read();
            const std::string body = DialogueFile::SavedDialogue(program.Folder, name).Read();
            const DateTime date = FileDateValue(ParseFileName(name).FileDateText);
            const std::string shown = FormatDate(date, "dddd, h:nn am/pm, mmmm d, yyyy") +
                                      "\r\n\r\nInspiration\r\n\r\n" + inspiration +
                                      "\r\n\r\nDialogue" + body;
            if (LiteralFind(shown, NoHit) != 0) {
                state.SkipWithError("the literal walk found the text");
            }
        }
    }
    state.SetBytesProcessed(
        state.iterations() *
        static_cast<std::int64_t>(DialogueCount * PairLimit * (EntryLength + ReplyLength + 10)));
}

// The start of a locked Library: the key file read and its key unwrapped.
void BM_OpenLockedLibrary(benchmark::State& state) {
    ReadingProgram program;
    TurnLockOn(program.App.Folder, "sea otters at dawn");
    for (auto _ : state) {
        AppFolder opening{program.Folder.Root};
        if (!OpenLibrary(opening, "sea otters at dawn")) {
            state.SkipWithError("the passphrase did not open the Library");
        }
    }
}

// What a start does with the Library before the Write window stands: for a locked one the key
// unwrapped from the passphrase, then the Library's names listed and the running Dialogue (the
// longest the buffers hold) read back. Arg 1 is the locked Library.
void BM_StartWithTheLibrary(benchmark::State& state) {
    ReadingProgram program;
    program.SaveLongestDialogues();
    const std::string pair = "\r\n\r\n\t\x93" + std::string(EntryLength, 'e') + "\x94\r\n\t" +
                             std::string(ReplyLength, 'r');
    std::string running;
    for (int k = 0; k < PairLimit; ++k) {
        running += pair;
    }
    if (!program.App.Buffers.WriteWorkBuffers({"\tA calm lake.", running, "", PairLimit})) {
        state.SkipWithError("the running Dialogue was not kept");
        return;
    }
    const bool locked = state.range(0) == 1;
    if (locked) {
        TurnLockOn(program.App.Folder, "sea otters at dawn");
    }
    for (auto _ : state) {
        if (locked) {
            program.App.Folder.Key.reset();
            if (!OpenLibrary(program.App.Folder, "sea otters at dawn")) {
                state.SkipWithError("the passphrase did not open the Library");
            }
        }
        program.App.Library.ScanLibrary();
        if (!program.App.Buffers.ReadWorkBuffers()) {
            state.SkipWithError("the running Dialogue did not read back");
        }
    }
}

BENCHMARK(BM_AllDialoguesWalk)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StartWithTheLibrary)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenLockedLibrary)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AllDialoguesWalkLiteral)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace veyrant
