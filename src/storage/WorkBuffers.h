#pragma once

// The work buffers: four files in exe/ that hold the one Dialogue not yet in the Library, so
// that it reopens as the Prior Dialogue of the next run. The date of savei.tmp is data too: it
// is when the buffers were last written, which gives the Prior Dialogue its age and names it in
// the Library. In Guest Mode the buffers are neither written, read nor deleted, so that a guest
// leaves no trace and the owner's Prior Dialogue waits untouched.

#include "core/Clock.h"
#include "core/WindowLayer.h"
#include "shell/AppFolder.h"
#include "shell/Settings.h"

#include <filesystem>
#include <optional>
#include <string>

namespace veyrant {

// What the buffers hold: the Dialogue in memory.
struct DialogueBuffers {
    std::string InspirationText;
    std::string DialogueText;
    std::string SuggestionText;
    int PairCount = 0;
};

enum class KeepOutcome {
    Kept,
    NotKept,       // the box said why; the Dialogue stays on the screen
    SaveElsewhere, // not kept, and the user asked to save the Dialogue as a text file instead
};

struct PriorDialogue {
    DialogueBuffers Buffers;
    DateTime BufferDate; // when the buffers were last written
    int PriorAge = 0;    // whole days since then, halves to even
};

std::filesystem::path InspirationBufferPath(const AppFolder& folder);

class WorkBuffers {
public:
    WorkBuffers(const AppFolder& folder, const Settings& settings, const Clock& clock,
                WindowLayer& windows);

    // Writes savei.tmp, savem.tmp, saves.tmp and savep.tmp as one set: either all four are
    // the new Dialogue or all four stay as they were. False after a failure, when the box that
    // says so has been shown; true otherwise, Guest Mode included.
    bool WriteWorkBuffers(const DialogueBuffers& dialogue);

    // The same on the way out of the program: the box of a failure asks whether to save the
    // Dialogue elsewhere instead, and the answer comes back.
    KeepOutcome WriteWorkBuffersLeaving(const DialogueBuffers& dialogue);

    // Nothing in Guest Mode, or when any of the four is missing or unusable: the caller then
    // begins a new Dialogue. An Inspiration, Dialogue or Suggestion buffer that is there but
    // unusable is first set aside under a dated name, and a box says where.
    std::optional<PriorDialogue> ReadWorkBuffers() const;

    // Deletes savei.tmp, savem.tmp and savep.tmp as one change, silently; one that is missing
    // already counts as deleted. saves.tmp stays: alone it never makes a Prior Dialogue.
    void DeleteWorkBuffers();

private:
    // The error number and the file of a failed write, told to no one yet.
    struct WriteFailure {
        int Number = 0;
        std::filesystem::path File;
    };
    std::optional<WriteFailure> Write(const DialogueBuffers& dialogue) const;
    void SetAside(const std::filesystem::path& buffer) const;

    const AppFolder& folder_;
    const Settings& settings_;
    const Clock& clock_;
    WindowLayer& windows_;
};

} // namespace veyrant
