// The bytes as the name of a file in the Dialogue Library: its fields, its date and its place
// in the Library's order.

#include "FuzzInput.h"
#include "core/ProgramError.h"
#include "storage/LibraryFileName.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    const auto name = fuzz::AsText(data, size);
    const ParsedFileName parsed = ParseFileName(name);
    try {
        FileDateValue(parsed.FileDateText);
    } catch (const ProgramError&) {
    }
    SortKey(name);
    return 0;
}
