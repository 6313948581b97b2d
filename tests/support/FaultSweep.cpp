#include "support/FaultSweep.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace veyrant::testing {

FolderImage ImageOf(const std::filesystem::path& root) {
    FolderImage image;
    std::error_code error;
    for (auto entry = std::filesystem::recursive_directory_iterator(root, error);
         entry != std::filesystem::recursive_directory_iterator(); entry.increment(error)) {
        if (entry->is_regular_file()) {
            std::ifstream in(entry->path(), std::ios::binary);
            std::ostringstream bytes;
            bytes << in.rdbuf();
            // A .trashinfo names the file's first place, which differs from run to run only by
            // the root.
            std::string text = bytes.str();
            for (auto at = text.find(root.string()); at != std::string::npos;
                 at = text.find(root.string(), at)) {
                text.replace(at, root.string().size(), "ROOT");
            }
            image[entry->path().lexically_relative(root).string()] = text;
        }
    }
    return image;
}

namespace {

struct Fault {
    int Error;
    const char* Name;
    int Number; // the number the user must see
};

constexpr Fault Faults[] = {
    {ENOSPC, "ENOSPC", 61},
    {EIO, "EIO", 75},
    {EROFS, "EROFS", 70},
};

const char* const BufferFiles[] = {"exe/savei.tmp", "exe/savem.tmp", "exe/saves.tmp",
                                   "exe/savep.tmp"};

std::optional<std::string> Find(const FolderImage& image, const std::string& file) {
    const auto found = image.find(file);
    return found == image.end() ? std::nullopt : std::optional<std::string>(found->second);
}

// A group is whole when all its files stand as before, or all as after.
bool Whole(const std::vector<std::string>& group, const FolderImage& before,
           const FolderImage& after, const FolderImage& now) {
    return std::ranges::any_of(std::array{&before, &after}, [&](const FolderImage* side) {
        return std::ranges::all_of(
            group, [&](const std::string& file) { return Find(now, file) == Find(*side, file); });
    });
}

std::vector<std::string> Findings(const FolderImage& before, const FolderImage& after,
                                  const FolderImage& now) {
    std::vector<std::string> findings;
    std::set<std::string> files;
    std::set<std::string> pairs;
    for (const auto* image : {&before, &after, &now}) {
        for (const auto& [file, bytes] : *image) {
            files.insert(file);
            if (file.starts_with("isp/") || file.starts_with("dlg/")) {
                pairs.insert(file.substr(4));
            }
        }
    }
    for (const auto& file : files) {
        const auto is = Find(now, file);
        if (is != Find(before, file) && is != Find(after, file)) {
            findings.push_back(is && !before.contains(file) && !after.contains(file)
                                   ? "left behind: " + file
                                   : "neither old nor new: " + file);
        }
    }
    for (const auto& name : pairs) {
        if (!Whole({"isp/" + name, "dlg/" + name}, before, after, now)) {
            findings.push_back("a pair half old, half new: " + name);
        }
    }
    if (!Whole({std::begin(BufferFiles), std::end(BufferFiles)}, before, after, now)) {
        findings.push_back("the work buffers are a mixed set");
    }
    return findings;
}

bool Told(const std::vector<MessageBoxRequest>& boxes, int number) {
    const std::string error = "Error " + std::to_string(number);
    return std::ranges::any_of(boxes, [&](const MessageBoxRequest& box) {
        return (box.Title + "\n" + box.Text).find(error) != std::string::npos;
    });
}

// A fresh run of the path, acting with the faults the arm puts in.
SweepRun RunUnder(const SweepPath& path, const std::function<void(FileFaults&)>& arm) {
    SweepRun run = path.Make();
    run.Before();
    FileFaults faults;
    arm(faults);
    run.Act();
    return run;
}

void Sweep(const SweepPath& path) {
    SCOPED_TRACE(path.Name);
    SweepRun clean = path.Make();
    clean.Before();
    const FolderImage before = clean.Image();
    int calls = 0;
    {
        FileFaults faults;
        clean.Act();
        calls = faults.Calls;
    }
    const FolderImage after = clean.Image();
    EXPECT_EQ(clean.Disagreement(), std::nullopt);
    for (const auto& [file, bytes] : after) {
        EXPECT_EQ(file.find("/."), std::string::npos) << "hidden file left: " << file;
    }
    for (int k = 1; k <= calls; ++k) {
        for (const Fault& fault : Faults) {
            SCOPED_TRACE("call " + std::to_string(k) + " fails with " + fault.Name);
            SweepRun run =
                RunUnder(path, [&](FileFaults& faults) { faults.FailAt(k, fault.Error); });
            const auto now = run.Image();
            EXPECT_EQ(Findings(before, after, now), std::vector<std::string>{});
            if (now != after && !path.Silent) {
                EXPECT_TRUE(Told(run.Boxes(), fault.Number)) << "no box names the failure";
            }
            EXPECT_EQ(run.Disagreement(), std::nullopt);
        }
        SCOPED_TRACE("killed at call " + std::to_string(k));
        SweepRun run = RunUnder(path, [&](FileFaults& faults) { faults.CrashAt(k); });
        EXPECT_EQ(run.Restart(before, after), std::nullopt);
        EXPECT_EQ(Findings(before, after, run.Image()), std::vector<std::string>{});
    }
    EXPECT_GT(calls, 0);
}

} // namespace

void SweepAll(const std::vector<SweepPath>& paths) {
    for (const auto& path : paths) {
        Sweep(path);
    }
}

} // namespace veyrant::testing
