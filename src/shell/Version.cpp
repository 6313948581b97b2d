#include "shell/Version.h"

#include "core/DateFormat.h"
#include "core/ProgramError.h"

namespace veyrant {

ProgramVersion VersionFromDate(const DateTime& fileDate) {
    return {FormatDate(fileDate, "yyyy"), "4.1." + FormatDate(fileDate, "yy") + "." +
                                              FormatDate(fileDate, "mm") + "." +
                                              FormatDate(fileDate, "dd")};
}

ProgramVersion ReadProgramVersion(const Clock& clock, const std::filesystem::path& programFile) {
    const auto fileDate = clock.FileDate(programFile);
    if (!fileDate) {
        throw ProgramError(ErrorNumber::FileNotFound);
    }
    return VersionFromDate(*fileDate);
}

} // namespace veyrant
