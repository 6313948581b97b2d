#include "engine/Engine.h"
#include "engine/Suggestions.h"

#include <algorithm>
#include <cmath>

namespace veyrant {

void Engine::SeedSeries() {
    SeriesSeed = clock_.Timer();
    random_.Seed(SeriesSeed);
    for (std::size_t i = 0; i < SeriesBase.size(); ++i) {
        SeriesBase[i] = SeriesSeed * random_.Draw() + SeriesSeed / 10.0f;
        // Halves to even, as the program rounds.
        SeriesScale[i] = static_cast<std::int16_t>(std::nearbyint(100.0f * random_.Draw() + 1.0f));
    }
}

void Engine::StretchSeeds() {
    const int size = tables_.MaxSections + tables_.MaxComponents + 15;
    SeedPool.assign(static_cast<std::size_t>(std::max(size, 0)) + 1, 0.0f);
    random_.Seed(SeriesSeed);
    // Each run of fifteen seeds shares one multiplier; the last run is cut at the pool's end.
    for (int n = 0; n < size;) {
        const float multiplier = random_.Draw() * 0.5f + 0.4239f;
        for (std::size_t i = 1; i <= 15 && n < size; ++i) {
            ++n;
            SeedPool[static_cast<std::size_t>(n)] =
                static_cast<float>(SeriesScale[i]) * (SeriesBase[i] / 100.0f) * multiplier;
        }
    }
}

void Engine::RollAnswer(std::int16_t percent) {
    random_.Seed(clock_.Timer());
    AnswerFlag = random_.Scaled(100) <= percent ? ReplyKind::Remark : ReplyKind::Answer;
}

void Engine::PickGuidance() {
    const auto suggestions = SuggestionTexts();
    const auto last = static_cast<std::int32_t>(suggestions.size()) - 1;
    if (last < 1) {
        return;
    }
    random_.Seed(clock_.Timer());
    SuggestionText = std::string(suggestions[static_cast<std::size_t>(random_.Scaled(last))]);
}

} // namespace veyrant
