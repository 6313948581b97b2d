#pragma once

// The version text comes from the file date of the program's own executable; nothing else
// carries a build number.

#include "core/Clock.h"
#include "core/DateTime.h"

#include <filesystem>
#include <string>

namespace veyrant {

struct ProgramVersion {
    std::string ProgramYear;   // "2026"
    std::string VersionString; // "4.1.26.11.22"
};

ProgramVersion VersionFromDate(const DateTime& fileDate);

// Raises ProgramError 53 when the executable is not there.
ProgramVersion ReadProgramVersion(const Clock& clock, const std::filesystem::path& programFile);

} // namespace veyrant
