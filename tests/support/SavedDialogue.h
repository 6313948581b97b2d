#pragma once

#include "core/WholeFile.h"
#include "shell/AppFolder.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"

#include <string>
#include <utility>

namespace veyrant::testing {

// Puts a Dialogue into the Library as a save at that date would, both files dated so on the
// clock when one is given; returns its file name.
inline std::string PutDialogue(const AppFolder& folder, const DateTime& when,
                               const std::string& inspiration, const std::string& dialogue,
                               FakeClock* clock = nullptr) {
    const std::string name = MakeFileName(when);
    for (const auto& [place, text] :
         {std::pair{folder.Isp(), inspiration}, std::pair{folder.Dlg(), dialogue}}) {
        std::filesystem::create_directories(place);
        WriteWholeFile(place / name, text);
        if (clock != nullptr) {
            clock->FileDates[place / name] = when;
        }
    }
    return name;
}

} // namespace veyrant::testing
