#pragma once

// What the Write window asks of the Dialogue Library storage: the work buffers that carry the
// running Dialogue across runs, and the status text of the Library.

#include "core/DateTime.h"

#include <optional>
#include <string>

namespace veyrant {

struct DialogueRecord {
    std::string InspirationText;
    std::string DialogueText;
    std::string SuggestionText;
    int PairCount = 0;
};

struct PriorDialogue {
    DialogueRecord Record;
    DateTime Written; // when the buffers were last written
    int AgeDays = 0;
};

class DialogueStore {
public:
    virtual ~DialogueStore() = default;
    // Nothing when any buffer is missing or unreadable, or in Guest Mode.
    virtual std::optional<PriorDialogue> ReadWorkBuffers() = 0;
    virtual void WriteWorkBuffers(const DialogueRecord& record) = 0;
    virtual void DeleteWorkBuffers() = 0;
    // Files the Dialogue under the date of its work buffers.
    virtual void AddToLibrary(const DialogueRecord& record) = 0;
    // The panel text of the New Dialogue state: the Suggestion and the Library status.
    virtual std::string LibraryStatus(const std::string& suggestionText) = 0;
    virtual int SavedCount() const = 0;
    virtual bool GuestMode() const = 0;
};

} // namespace veyrant
