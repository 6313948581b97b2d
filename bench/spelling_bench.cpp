// The spelling marks over the American English dictionary the package depends on.
//
// The longest entry the box allows is a comment: its count stops keys at 280, and the count runs
// three behind the text, so the box holds at most 283 characters after its head. The longest text
// the export editor is given is a Dialogue at the system limit: 121 kept items, each at most a
// 283-character comment or a 140-character entry with the longest reply the engine composes
// (about 340 characters), with their quotation marks and line ends: 121 x 500 bytes, about 60 KB.
// The bench uses 121 items of 283 + 340 characters, about 76 KB, above either.
//
// Targets: the check of the longest entry 1 ms or less, the whole export text re-marked in the
// editor 50 ms or less; both where no word was asked before (each word goes to Hunspell) and as
// typing goes on (the checker remembers its answers). The prose repeats its few sentences, so the
// editor's first marking meets each word once only; the first checks ask Hunspell about every word,
// as a text of nothing but different words would, and bound it from above.

#include "shell/DictionaryChoice.h"
#include "shell/SpellChecker.h"
#include "support/TempFolder.h"
#include "ui/HunspellDictionary.h"
#include "ui/SpellingHighlighter.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <benchmark/benchmark.h>
#include <memory>

namespace veyrant {
namespace {

// Ordinary prose with a misspelling in each sentence, cut to the length wanted.
std::string Prose(std::size_t length) {
    const std::string sentences =
        "Why do I keep the old letters in a box under the bed when I never read them? "
        "Perhaps I am afraid that without them I would forget who I was in those yeers. "
        "My sister says that the past is a country we visit too often and leave too late. "
        "I wonder whether the Sagrel would tell me to burn them or to read them agian. ";
    std::string text;
    while (text.size() < length) {
        text += sentences;
    }
    text.resize(length);
    return text;
}

constexpr std::size_t LongestEntry = 283;

std::string ExportText() {
    std::string text = "Veyrant Sagrel\r\n\r\n";
    for (int item = 0; item < 121; ++item) {
        text += "\r\n\t\x93" + Prose(LongestEntry) + "\x94\r\n\t" + Prose(340);
    }
    return text;
}

std::unique_ptr<Dictionary> AmericanEnglish() {
    return HunspellDictionary::Open(SystemDictionaryFolder / "en_US.aff",
                                    SystemDictionaryFolder / "en_US.dic");
}

// Every finished word straight to Hunspell, as when none was asked before.
void AskEveryWord(benchmark::State& state, const std::string& text) {
    const auto dictionary = AmericanEnglish();
    for (auto _ : state) {
        std::size_t unknown = 0;
        for (const WordSpan& word : CheckableWords(text)) {
            unknown +=
                dictionary->Knows(std::string_view(text).substr(word.Start, word.Length)) ? 0 : 1;
        }
        benchmark::DoNotOptimize(unknown);
    }
}

void EntryFirstCheck(benchmark::State& state) {
    AskEveryWord(state, Prose(LongestEntry));
}
BENCHMARK(EntryFirstCheck)->Unit(benchmark::kMicrosecond);

void EntryCheckWhileTyping(benchmark::State& state) {
    const testing::TempFolder folder;
    SpellChecker checker;
    checker.Open(AmericanEnglish(), folder / "Words.txt");
    const std::string entry = Prose(LongestEntry);
    for (auto _ : state) {
        benchmark::DoNotOptimize(checker.Misspelt(entry, entry.size()));
    }
}
BENCHMARK(EntryCheckWhileTyping)->Unit(benchmark::kMicrosecond);

void ExportTextFirstCheck(benchmark::State& state) {
    AskEveryWord(state, ExportText());
}
BENCHMARK(ExportTextFirstCheck)->Unit(benchmark::kMillisecond);

// The editor's whole document underlined again, as after "Add to Dictionary".
void ExportEditorRemarked(benchmark::State& state) {
    const testing::TempFolder folder;
    SpellChecker checker;
    checker.Open(AmericanEnglish(), folder / "Words.txt");
    QPlainTextEdit editor;
    editor.setPlainText(QString::fromStdString(ExportText()));
    SpellingHighlighter marks(editor, checker);
    for (auto _ : state) {
        marks.rehighlight();
    }
}
BENCHMARK(ExportEditorRemarked)->Unit(benchmark::kMillisecond);

// The same where the checker has asked about no word yet, as at the editor's opening.
void ExportEditorFirstMarked(benchmark::State& state) {
    const testing::TempFolder folder;
    SpellChecker checker;
    QPlainTextEdit editor;
    editor.setPlainText(QString::fromStdString(ExportText()));
    SpellingHighlighter marks(editor, checker);
    for (auto _ : state) {
        state.PauseTiming();
        checker.Open(AmericanEnglish(), folder / "Words.txt");
        state.ResumeTiming();
        marks.rehighlight();
    }
}
// Each round loads the dictionary afresh, outside the timing; a few rounds are enough.
BENCHMARK(ExportEditorFirstMarked)->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace
} // namespace veyrant

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
