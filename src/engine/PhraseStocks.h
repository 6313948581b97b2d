#pragma once

// The fourteen phrase stocks: the rows of the language, filled from constants in the program's
// image. Row 0 of a stock is never filled; a group's label row is stored but never shown.

#include "engine/EngineTables.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace veyrant {

struct PhraseStocks {
    // Indexed by stock number 1 to MaxDataBlocks; entry 0 idle.
    std::array<std::vector<std::string_view>, MaxDataBlocks + 1> Rows;
    // The stock number of the filler that ran last.
    std::int16_t LastLoaded = 0;
};

// One filler per stock, generated from data/stocks by the content compiler.
void FillStock1(PhraseStocks& stocks);
void FillStock2(PhraseStocks& stocks);
void FillStock3(PhraseStocks& stocks);
void FillStock4(PhraseStocks& stocks);
void FillStock5(PhraseStocks& stocks);
void FillStock6(PhraseStocks& stocks);
void FillStock7(PhraseStocks& stocks);
void FillStock8(PhraseStocks& stocks);
void FillStock9(PhraseStocks& stocks);
void FillStock10(PhraseStocks& stocks);
void FillStock11(PhraseStocks& stocks);
void FillStock12(PhraseStocks& stocks);
void FillStock13(PhraseStocks& stocks);
void FillStock14(PhraseStocks& stocks);

} // namespace veyrant
