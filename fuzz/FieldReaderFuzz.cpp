// Any bytes read as fields of every kind in turn, until the text ends or a field fails.

#include "FuzzInput.h"
#include "core/FieldReader.h"
#include "core/ProgramError.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    FieldReader reader(fuzz::AsText(data, size));
    try {
        for (int field = 0; !reader.AtEnd(); ++field) {
            switch (field % 3) {
            case 0:
                reader.ReadInt16();
                break;
            case 1:
                reader.ReadString();
                break;
            default:
                reader.ReadInt32();
                break;
            }
        }
    } catch (const ProgramError&) {
    }
    reader.Line();
    return 0;
}
