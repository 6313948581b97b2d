#include "ContentSources.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace veyrant::content {

std::string StockNumberText(int stock) {
    return (stock < 10 ? "0" : "") + std::to_string(stock);
}

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

} // namespace

ContentSources ReadContentFolder(const std::string& dataFolder) {
    const fs::path data = dataFolder;
    ContentSources sources;
    const fs::path order = data / "stocks" / "order.txt";
    ReadGroupOrder(order.string(), ReadSource(order), sources);
    for (int b = 1; b <= StockCount; ++b) {
        const fs::path file = data / "stocks" / (StockNumberText(b) + ".txt");
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

} // namespace veyrant::content
