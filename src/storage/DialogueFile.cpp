#include "storage/DialogueFile.h"

#include "core/ProgramError.h"
#include "core/Text.h"
#include "storage/Envelope.h"
#include "storage/LockedFileError.h"

#include <algorithm>
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

DialogueFile::DialogueFile(std::filesystem::path file, TextLimit limit,
                           std::shared_ptr<const SecretKey> key)
    : file_(std::move(file)), limit_(limit), key_(std::move(key)) {}

DialogueFile DialogueFile::SavedInspiration(const AppFolder& folder, const std::string& fileName) {
    return DialogueFile(folder.Isp() / fileName, {}, folder.Key);
}

DialogueFile DialogueFile::SavedDialogue(const AppFolder& folder, const std::string& fileName) {
    return DialogueFile(folder.Dlg() / fileName, {}, folder.Key);
}

DialogueFile DialogueFile::Buffer(const AppFolder& folder, WorkBuffer buffer) {
    const auto& file = BufferFiles[static_cast<std::size_t>(buffer)];
    return DialogueFile(folder.Exe() / file.Name, file.Limit, folder.Key);
}

std::string DialogueFile::Read() const {
    std::string text =
        ReadWholeFile(file_, std::min(limit_.Bytes + EnvelopeOverhead, WholeFileLimit));
    if (IsEnvelope(text) || key_) {
        auto opened = key_ ? Open(*key_, SealedName(), text) : std::nullopt;
        if (!opened) {
            throw LockedFileError(file_);
        }
        text = std::move(*opened);
    }
    if (text.size() > limit_.Bytes || !LinesFit(text, limit_.LineBytes)) {
        Wipe(text);
        throw ProgramError(ErrorNumber::OutOfMemory);
    }
    return text;
}

void DialogueFile::Stage(FileTransaction& change, std::string_view text) const {
    change.Write(file_, key_ ? Seal(*key_, SealedName(), text) : std::string(text));
}

std::string DialogueFile::SealedName() const {
    return (file_.parent_path().filename() / file_.filename()).generic_string();
}

} // namespace veyrant
