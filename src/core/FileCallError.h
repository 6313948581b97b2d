#pragma once

// A numbered error raised by a failed file call, which keeps the system's own cause: a box that
// must say in plain words why the disk refused can tell a read-only disk from a full one.

#include "core/ProgramError.h"

namespace veyrant {

class FileCallError : public ProgramError {
public:
    FileCallError(int number, int cause) : ProgramError(number), cause_(cause) {}
    // The errno of the failed call.
    int Cause() const noexcept { return cause_; }

private:
    int cause_;
};

} // namespace veyrant
