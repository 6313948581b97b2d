#pragma once

// Turns a message number into one string: a draw on the message plan gives its sections, a
// draw on each section plan its components, a draw per component its row; the rows are then
// joined with the case and spacing set by CaseKeepers and TightJoiners. Every draw re-seeds
// the generator with a seed of its own from the pool.

#include "core/Random.h"
#include "core/WindowLayer.h"
#include "engine/EngineTables.h"
#include "engine/PhraseStocks.h"
#include "engine/PlanSource.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veyrant {

class Composer {
public:
    Composer(const EngineTables& tables, const PhraseStocks& stocks, Random& random,
             WindowLayer& windows)
        : tables_(tables), stocks_(stocks), random_(random), windows_(windows) {}

    // Hands the seeds of the pool (1-based, entry 0 idle) to the message, sections and rows.
    void SplitSeeds(const std::vector<float>& seedPool);
    // Fills the composition; raises ProgramError when the data do not fit together.
    void BuildMessage(std::int16_t number, const std::vector<float>& seedPool, PlanSource& plans);
    // Joins the composition into ComposedText: a tab, then the rows.
    void AssembleMessage();
    void Rcmp(std::int16_t component, std::int16_t row);
    // Forgets the composition, as after a failure; the next assembly gives a tab alone.
    void ClearComposition();

    float MessageSeed = 0;
    std::vector<float> SectionSeeds;
    std::vector<float> RowSeeds;
    std::vector<std::int16_t> CompositionComponents; // 1-based, entry 0 idle
    std::vector<std::int16_t> CompositionRows;
    std::int16_t CompositionLength = 0;
    std::string PhraseOut;
    std::string ComposedText;

    // Called once the tables are read: which components steer case and spacing.
    void MarkJoiners();

private:
    int Draw(float seed, std::int32_t scale);

    const EngineTables& tables_;
    const PhraseStocks& stocks_;
    Random& random_;
    WindowLayer& windows_;
    std::vector<std::int16_t> sequence_;
    std::vector<char> caseKeeper_;  // by component
    std::vector<char> tightJoiner_; // by component
};

} // namespace veyrant
