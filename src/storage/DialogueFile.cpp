#include "storage/DialogueFile.h"

#include "core/ProgramError.h"
#include "core/Text.h"

#include <array>
#include <utility>

namespace veyrant {

namespace {

struct BufferFile {
    const char* Name;
    TextLimit Limit;
};

constexpr TextLimit PartLimit{MostRunBytes, MostRunBytes};

// In the order of WorkBuffer.
constexpr std::array<BufferFile, 4> BufferFiles = {{
    {"savei.tmp", PartLimit},
    {"savem.tmp", {MostRuns * MostRunBytes, MostRunBytes}},
    {"saves.tmp", PartLimit},
    {"savep.tmp", {64, 64}},
}};

bool LinesFit(std::string_view text, std::size_t lineBytes) {
    std::size_t start = 0;
    for (;;) {
        const auto end = text.find('\n', start);
        if ((end == std::string_view::npos ? text.size() : end) - start > lineBytes) {
            return false;
        }
        if (end == std::string_view::npos) {
            return true;
        }
        start = end + 1;
    }
}

} // namespace

std::string WithoutLead(std::string_view dialogueText) {
    return Mid(dialogueText, static_cast<long>(RunLead.size()) + 1);
}

DialogueFile::DialogueFile(std::filesystem::path file, TextLimit limit)
    : file_(std::move(file)), limit_(limit) {}

DialogueFile DialogueFile::SavedInspiration(const AppFolder& folder, const std::string& fileName) {
    return DialogueFile(folder.Isp() / fileName);
}

DialogueFile DialogueFile::SavedDialogue(const AppFolder& folder, const std::string& fileName) {
    return DialogueFile(folder.Dlg() / fileName);
}

DialogueFile DialogueFile::Buffer(const AppFolder& folder, WorkBuffer buffer) {
    const auto& file = BufferFiles[static_cast<std::size_t>(buffer)];
    return DialogueFile(folder.Exe() / file.Name, file.Limit);
}

std::string DialogueFile::Read() const {
    std::string text = ReadWholeFile(file_, limit_.Bytes);
    if (!LinesFit(text, limit_.LineBytes)) {
        throw ProgramError(ErrorNumber::OutOfMemory);
    }
    return text;
}

void DialogueFile::Stage(FileTransaction& change, std::string_view text) const {
    change.Write(file_, text);
}

} // namespace veyrant
