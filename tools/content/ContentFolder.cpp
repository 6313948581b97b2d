#include "ContentSources.h"
#include "LibrarySource.h"

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

std::vector<LibrarySource> ReadLibraryFolder(const std::string& dataFolder) {
    const fs::path libraries = fs::path(dataFolder) / "libraries";
    const fs::path widthsFile = libraries / "widths.txt";
    const auto widths = ReadLibraryWidths({widthsFile.string(), ReadSource(widthsFile)});
    std::vector<LibrarySource> found;
    for (const std::string_view name : LibraryFolders) {
        const std::string folder(name);
        const fs::path catalogue = libraries / "catalogue" / (folder + ".txt");
        std::vector<fs::path> files;
        if (fs::is_directory(libraries / folder)) {
            for (const auto& entry : fs::directory_iterator(libraries / folder)) {
                if (entry.path().extension() == ".txt") {
                    files.push_back(entry.path());
                }
            }
        }
        std::sort(files.begin(), files.end());
        std::vector<SourceFile> bodies;
        for (const fs::path& file : files) {
            bodies.push_back({file.string(), ReadSource(file)});
        }
        found.push_back(ReadLibrarySource(folder, {catalogue.string(), ReadSource(catalogue)},
                                          bodies, widths.at(folder)));
    }
    return found;
}

} // namespace veyrant::content
