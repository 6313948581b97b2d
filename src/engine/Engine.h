#pragma once

// The front of the message engine, as the Write window uses it: the engine tables and stocks
// loaded at start-up, the random series fed by the clock and the keystrokes, and the requests
// that compose a reply, a verdict, an Inspiration or an interjection.

#include "core/Clock.h"
#include "core/Random.h"
#include "core/WindowLayer.h"
#include "engine/Composer.h"
#include "engine/EngineTables.h"
#include "engine/EntryCodes.h"
#include "engine/KeptPlans.h"
#include "engine/PhraseStocks.h"
#include "shell/AppFolder.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace veyrant {

class Engine {
public:
    Engine(Random& random, Clock& clock, WindowLayer& windows);

    // Reads exe/qdr41.sys and fills the stocks. On failure shows the program's box and returns
    // false: the engine has no partial mode and the caller ends the program.
    bool LoadSystem(const AppFolder& folder);

    // Once at start-up: SeriesBase and SeriesScale from the clock.
    void SeedSeries();
    // Before each reply, once the caller has put the clock into SeriesSeed.
    void StretchSeeds();
    // AnswerFlag a remark in percent of 100 draws, else an answer.
    void RollAnswer(std::int16_t percent);

    // Each leaves the composed text, led by a tab and the first row's blank, as described by
    // its result; a type with no message composes nothing new and repeats the last.
    void RequestAnswer(SentenceType type);
    void RequestRemark(SentenceType type);
    void RequestIdeaVerdict(ReplyKind flag);
    void RequestInspiration();
    void RequestInterjection();
    void PickGuidance();

    // The random series; the keystroke record shifts SeriesBase and SeriesScale.
    float SeriesSeed = 0;
    std::array<float, 16> SeriesBase{};
    std::array<std::int16_t, 16> SeriesScale{};
    std::vector<float> SeedPool; // 1-based, entry 0 idle

    ReplyKind AnswerFlag = ReplyKind::Remark;
    std::string ReplyText;
    std::string IdeaVerdict;
    std::string InspirationText;
    std::string SuggestionText;
    std::int16_t SystemError = 0;

    const EngineTables& Tables() const { return tables_; }
    const PhraseStocks& Stocks() const { return stocks_; }
    Composer& MessageComposer() { return composer_; }

    // Composes one message with the plans kept in memory; a failure shows its box and leaves
    // a composition that assembles to a tab alone.
    void Compose(MessageNumber message);

private:
    bool KeepPlans();
    void Assemble();
    void ShowComposeError(int number, std::int16_t message);

    Random& random_;
    Clock& clock_;
    WindowLayer& windows_;
    EngineTables tables_;
    PhraseStocks stocks_;
    Composer composer_;
    std::filesystem::path planFile_;
    std::unique_ptr<KeptPlans> plans_;
};

} // namespace veyrant
