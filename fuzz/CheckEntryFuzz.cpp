// The bytes as an entry: the first byte picks the method and the count of kept pairs, the rest
// is the text, judged as the Write window judges it on Enter.

#include "FuzzInput.h"
#include "engine/EntryParser.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace veyrant;
    if (size == 0) {
        return 0;
    }
    constexpr std::array<WriteMethod, 4> Methods = {WriteMethod::Converse, WriteMethod::Suppose,
                                                    WriteMethod::Comment, WriteMethod::None};
    const WriteMethod method = Methods[data[0] % Methods.size()];
    const auto pairCount = static_cast<std::int16_t>(data[0] / Methods.size() * 2);
    const std::string entry(fuzz::AsText(data + 1, size - 1));
    EntryVerdict status = EntryVerdict::Unpunctuated;
    SentenceType type = SentenceType::None;
    CheckEntry(entry, method, pairCount, status, type);
    std::string prepared = entry;
    ClassifyEntry(prepared, type);
    return 0;
}
