#pragma once

#include "core/FileCalls.h"

#include <cerrno>
#include <optional>

namespace veyrant::testing {

// Puts a fault into every file call of the program for the lifetime of the object, and counts
// the calls. Call k counts from 1.
class FileFaults {
public:
    FileFaults() {
        SetFileFault([this](FileCall call, const std::filesystem::path&) { return Answer(call); });
    }
    ~FileFaults() { SetFileFault({}); }
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    // Call k alone fails with the error; the calls after it run.
    void FailAt(int k, int error) {
        failAt_ = k;
        error_ = error;
    }
    // Every call of that kind fails with the error.
    void FailEvery(FileCall call, int error) {
        every_ = call;
        error_ = error;
    }
    // The program dies just before call k: that call and every later one never reach the disk.
    void CrashAt(int k) { crashAt_ = k; }

    int Calls = 0;

private:
    int Answer(FileCall call) {
        ++Calls;
        if ((crashAt_ != 0 && Calls >= crashAt_) || Calls == failAt_ || call == every_) {
            return crashAt_ != 0 && Calls >= crashAt_ ? EIO : error_;
        }
        return 0;
    }

    int failAt_ = 0;
    int crashAt_ = 0;
    int error_ = 0;
    std::optional<FileCall> every_;
};

} // namespace veyrant::testing
