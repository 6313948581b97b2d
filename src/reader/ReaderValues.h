#pragma once

// The Reader's values that outlive its window: which library shows, whether the Reader is open,
// and the row now shown in each fixed library. The open flags and marks are in ReadSettings, the
// window modes and the font step in Settings.

#include "shell/LibraryId.h"
#include "shell/ReaderOpenState.h"

#include <cstdint>
#include <string>

namespace veyrant {

struct ReaderValues {
    LibraryId ReadLibrary = LibraryId::None;
    ReaderOpenState ReaderOpen = ReaderOpenState::Closed;
    PerFixedLibrary<std::int16_t> CurRow = PerFixedLibrary<std::int16_t>::Filled(-1);
    std::string LibraryName;
};

} // namespace veyrant
