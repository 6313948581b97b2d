#pragma once

// The compiled engine: component numbers assigned, plans turned into numbered terms, the
// combinations counted, and the texts of qdr41.sys, qdr41.mtx and the generated units.

#include "ContentSources.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace veyrant::content {

struct EngineData {
    // Rows of each stock, from row 0 (empty) upward.
    std::array<std::vector<std::string>, StockCount + 1> StockRows;
    std::string SystemFile;
    std::string PlanFile;
    std::vector<std::string> Suggestions;
};

// Raises ContentError naming the file and line at fault.
EngineData CompileEngine(const ContentSources& sources);

// The generated C++ units.
std::string StockUnit(int stock, const std::vector<std::string>& rows);
std::string EngineFilesUnit(const std::string& systemFile, const std::string& planFile);
std::string SuggestionsUnit(const std::vector<std::string>& suggestions);

} // namespace veyrant::content
