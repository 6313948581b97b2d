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

// One program's worth of storage for one run, made by its path.
struct SweepRun {
    // The folder as the path's files are compared: their bytes, or what a sealed file holds.
    std::function<FolderImage()> Image;
    std::function<const std::vector<MessageBoxRequest>&()> Boxes;
    // Lays down what was there before, without the faults.
    std::function<void()> Before;
    // The path itself.
    std::function<void()> Act;
    // A message when what the program holds in memory disagrees with the disk, after the path.
    std::function<std::optional<std::string>()> Disagreement;
    // The next start after a kill, and what it then shows: a message when it shows a Dialogue
    // that is not whole, or reopens a running Dialogue that is neither old nor new.
    std::function<std::optional<std::string>(const FolderImage& before, const FolderImage& after)>
        Restart;
};

struct SweepPath {
    std::string Name;
    std::function<SweepRun()> Make;
    // The path stops without a word at a failure, as the delete of the work buffers does.
    bool Silent = false;
};

// A path run in a fresh world that has a Folder and Windows and says itself what disagrees and
// what the next start finds; the path gives what was there before and what it does.
template <typename World>
SweepPath PathIn(std::string name, std::function<void(World&)> before,
                 std::function<void(World&)> act, bool silent = false) {
    const auto make = [before, act] {
        const auto world = std::make_shared<World>();
        return SweepRun{
            [world] {
                if constexpr (requires { world->Image(); }) {
                    return world->Image();
                } else {
                    return ImageOf(world->Folder.Root);
                }
            },
            [world]() -> const std::vector<MessageBoxRequest>& { return world->Windows.Boxes; },
            [world, before] {
                before(*world);
                world->Windows.Boxes.clear();
            },
            [world, act] { act(*world); },
            [world] { return world->Disagreement(); },
            [world](const FolderImage& was, const FolderImage& is) {
                return world->Restart(was, is);
            }};
    };
    return {std::move(name), make, silent};
}

// Sweeps each path with ENOSPC, EIO and EROFS at every call, then with a kill at every call;
// every finding is a test failure.
void SweepAll(const std::vector<SweepPath>& paths);

} // namespace veyrant::testing
