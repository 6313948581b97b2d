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

// Every plain file under the root by its relative path, with its bytes, the root's own path in
// them written as ROOT.
using FolderImage = std::map<std::string, std::string>;

FolderImage ImageOf(const std::filesystem::path& root);

// One program's worth of storage for one run; the path makes it and runs in it.
struct SweepRun {
    virtual ~SweepRun() = default;
    virtual std::filesystem::path Root() const = 0;
    virtual const std::vector<MessageBoxRequest>& Boxes() const = 0;
    // The folder as the path's files are compared: their bytes, or what a sealed file holds.
    virtual FolderImage Image() const { return ImageOf(Root()); }
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

// A run in a world that has a Folder and Windows and says itself what disagrees and what the
// next start finds; the path gives what was there before and what it does.
template <typename World>
class WorldRun final : public SweepRun {
public:
    using Step = std::function<void(World&)>;

    WorldRun(Step before, Step act) : before_(std::move(before)), act_(std::move(act)) {}

    std::filesystem::path Root() const override { return world_.Folder.Root; }
    const std::vector<MessageBoxRequest>& Boxes() const override { return world_.Windows.Boxes; }
    FolderImage Image() const override {
        if constexpr (requires { world_.Image(); }) {
            return world_.Image();
        } else {
            return ImageOf(Root());
        }
    }
    void Before() override {
        before_(world_);
        world_.Windows.Boxes.clear();
    }
    void Act() override { act_(world_); }
    std::optional<std::string> Disagreement() const override { return world_.Disagreement(); }
    std::optional<std::string> Restart(const FolderImage& before,
                                       const FolderImage& after) override {
        return world_.Restart(before, after);
    }

private:
    World world_;
    Step before_;
    Step act_;
};

template <typename World>
SweepPath PathIn(std::string name, typename WorldRun<World>::Step before,
                 typename WorldRun<World>::Step act, bool silent = false) {
    return {std::move(name),
            [before, act] { return std::make_unique<WorldRun<World>>(before, act); }, silent};
}

// Sweeps each path with ENOSPC, EIO and EROFS at every call, then with a kill at every call;
// every finding is a test failure.
void SweepAll(const std::vector<SweepPath>& paths);

} // namespace veyrant::testing
