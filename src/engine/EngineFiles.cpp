#include "engine/EngineFiles.h"

#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <filesystem>

namespace veyrant {

namespace {

std::string StampOnDisk(const std::filesystem::path& stampFile) {
    try {
        return ReadWholeFile(stampFile);
    } catch (const ProgramError&) {
        return {};
    }
}

} // namespace

void InstallEngineFiles(const AppFolder& folder) {
    const auto exe = folder.Exe();
    const auto stampFile = exe / EngineStampFileName;
    if (StampOnDisk(stampFile) == ShippedEngineStamp()) {
        return;
    }
    MakeFolder(exe);
    WriteWholeFile(exe / SystemFileName, ShippedSystemFile());
    WriteWholeFile(exe / PlanFileName, ShippedPlanFile());
    // Last, so that an interrupted install is done again at the next start.
    WriteWholeFile(stampFile, ShippedEngineStamp());
}

} // namespace veyrant
