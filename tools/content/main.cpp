// content-compiler DATA_DIR OUT_DIR: checks every source under data/ and writes qdr41.sys,
// qdr41.mtx and the generated units of the engine. A fault is reported as file:line and the
// build stops.

#include "ContentSources.h"
#include "EngineData.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;
using namespace veyrant::content;

namespace {

std::string ReadSource(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw ContentError({path.string(), 0}, "cannot be read");
    }
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// Leaves a file alone when its text has not changed, so the build recompiles only what moved.
void WriteIfChanged(const fs::path& path, const std::string& text) {
    if (fs::exists(path)) {
        std::ifstream old(path, std::ios::binary);
        std::ostringstream current;
        current << old.rdbuf();
        if (current.str() == text) {
            return;
        }
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    if (!file) {
        throw ContentError({path.string(), 0}, "cannot be written");
    }
}

std::string TwoDigits(int n) {
    return (n < 10 ? "0" : "") + std::to_string(n);
}

ContentSources ReadSources(const fs::path& data) {
    ContentSources sources;
    const fs::path order = data / "stocks" / "order.txt";
    ReadGroupOrder(order.string(), ReadSource(order), sources);
    for (int b = 1; b <= StockCount; ++b) {
        const fs::path file = data / "stocks" / (TwoDigits(b) + ".txt");
        sources.Stocks[static_cast<std::size_t>(b)] =
            ReadStockSource(file.string(), ReadSource(file));
    }
    std::vector<fs::path> planFiles;
    for (const auto& entry : fs::directory_iterator(data / "plans")) {
        if (entry.path().extension() == ".txt") {
            planFiles.push_back(entry.path());
        }
    }
    std::sort(planFiles.begin(), planFiles.end());
    for (const fs::path& file : planFiles) {
        ReadPlanSource(file.string(), ReadSource(file), sources);
    }
    const fs::path suggestions = data / "suggestions.txt";
    sources.Suggestions = ReadSuggestionSource(suggestions.string(), ReadSource(suggestions));
    return sources;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: content-compiler DATA_DIR OUT_DIR\n";
        return 2;
    }
    try {
        const fs::path out = argv[2];
        fs::create_directories(out);
        const EngineData data = CompileEngine(ReadSources(argv[1]));
        WriteIfChanged(out / "qdr41.sys", data.SystemFile);
        WriteIfChanged(out / "qdr41.mtx", data.PlanFile);
        for (int b = 1; b <= StockCount; ++b) {
            WriteIfChanged(out / ("Stock" + TwoDigits(b) + ".cpp"),
                           StockUnit(b, data.StockRows[static_cast<std::size_t>(b)]));
        }
        WriteIfChanged(out / "EngineFiles.cpp", EngineFilesUnit(data.SystemFile, data.PlanFile));
        WriteIfChanged(out / "Suggestions.cpp", SuggestionsUnit(data.Suggestions));
    } catch (const std::exception& error) {
        std::cerr << "content-compiler: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
