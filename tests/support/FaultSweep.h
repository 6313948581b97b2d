#pragma once

// Runs one writing path of the program again and again: once to count its file calls, then with
// call k failing as a full, failing or read-only disk would, and with the program killed at call
// k, for every k. After each run the folder must hold, file by file, what it held before or what
// a clean run leaves, never a torn file or a leftover, and the files that belong together (a
// Dialogue's pair, the set of work buffers) must be old or new together.

#include "core/WindowLayer.h"
#include "support/FileFaults.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veyrant::testing {

// Every plain file under the root by its relative path, with its bytes.
using FolderImage = std::map<std::string, std::string>;

FolderImage ImageOf(const std::filesystem::path& root);

// One program's worth of storage for one run; the path makes it and runs in it.
struct SweepRun {
    virtual ~SweepRun() = default;
    virtual std::filesystem::path Root() const = 0;
    virtual const std::vector<MessageBoxRequest>& Boxes() const = 0;
    // Lays down what was there before, without the faults.
    virtual void Before() = 0;
    // The path itself.
    virtual void Act() = 0;
    // A message when what the program holds in memory disagrees with the disk, after the path.
    virtual std::optional<std::string> Disagreement() const = 0;
    // The next start after a kill, and what it then shows: a message when it shows a Dialogue
    // that is not whole, or reopens a running Dialogue that is neither old nor new.
    virtual std::optional<std::string> Restart(const FolderImage& before,
                                               const FolderImage& after) = 0;
};

struct SweepPath {
    std::string Name;
    std::function<std::unique_ptr<SweepRun>()> Make;
    // The path stops without a word at a failure, as the delete of the work buffers does.
    bool Silent = false;
};

struct SweepCount {
    int Calls = 0;
    int FaultRuns = 0;
    int CrashRuns = 0;
};

// Sweeps the path with ENOSPC, EIO and EROFS at every call, then with a kill at every call;
// every finding is a test failure.
SweepCount Sweep(const SweepPath& path);

} // namespace veyrant::testing
