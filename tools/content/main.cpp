// content-compiler DATA_DIR OUT_DIR: checks every source under data/ and writes qdr41.sys,
// qdr41.mtx, the generated units of the engine and those of the three fixed libraries. A fault
// is reported as file:line and the build stops.

#include "ContentSources.h"
#include "EngineData.h"
#include "LibrarySource.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace fs = std::filesystem;
using namespace veyrant::content;

namespace {

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

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: content-compiler DATA_DIR OUT_DIR\n";
        return 2;
    }
    try {
        const fs::path out = argv[2];
        fs::create_directories(out);
        const EngineData data = CompileEngine(ReadContentFolder(argv[1]));
        WriteIfChanged(out / "qdr41.sys", data.SystemFile);
        WriteIfChanged(out / "qdr41.mtx", data.PlanFile);
        for (int b = 1; b <= StockCount; ++b) {
            WriteIfChanged(out / ("Stock" + StockNumberText(b) + ".cpp"),
                           StockUnit(b, data.StockRows[static_cast<std::size_t>(b)]));
        }
        WriteIfChanged(out / "EngineFiles.cpp", EngineFilesUnit(data.SystemFile, data.PlanFile));
        WriteIfChanged(out / "Suggestions.cpp", SuggestionsUnit(data.Suggestions));
        for (const LibrarySource& library : ReadLibraryFolder(argv[1])) {
            WriteIfChanged(out / (LibraryUnitName(library.Folder) + ".cpp"), LibraryUnit(library));
        }
    } catch (const std::exception& error) {
        std::cerr << "content-compiler: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
