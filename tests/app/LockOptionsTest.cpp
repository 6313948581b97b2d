#include "app/LockOptions.h"

#include "app/LibraryUnlock.h"
#include "storage/LibraryLock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <deque>
#include <gtest/gtest.h>
#include <sodium.h>

namespace veyrant::testing {
namespace {

const StretchLimits Light{crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN};

struct FakeKeyring : PassphraseKeeper {
    bool Running = true;
    std::optional<std::string> Kept;
    bool Available() override { return Running; }
    std::optional<std::string> Recall() override { return Kept; }
    bool Keep(const std::string& passphrase) override {
        Kept = passphrase;
        return true;
    }
    void Forget() override { Kept.reset(); }
};

struct LockWorld {
    TempFolder Temp{std::filesystem::temp_directory_path()};
    AppFolder Folder{Temp.Path()};
    FakeWindowLayer Windows;
    FakeKeyring Keyring;
    int Closed = 0;
    LockOptions Window{Folder, Windows, &Keyring, [this] { ++Closed; }, Light};

    void Choose(int lock, const std::string& first, const std::string& second, int keep = 0) {
        Window.Form_Load();
        Window.chkLock_Click(lock);
        Window.chkKeep_Click(keep);
        Window.txtPassphrase_Change(first);
        Window.txtConfirm_Change(second);
        Window.cmdOK_Click();
    }
};

TEST(LockOptions, TheChoiceLocksChangesAndUnlocksAndTheStartAsksOnlyWithoutTheKeyring) {
    LockWorld world;
    world.Choose(1, "lantern", "lanterns");
    EXPECT_FALSE(LibraryIsLocked(world.Folder));
    EXPECT_EQ(world.Windows.Boxes.back().Text,
              "The two passphrases are not the same. Type the passphrase again in both boxes.");
    world.Choose(1, "lantern", "lantern", 1);
    EXPECT_TRUE(LibraryIsLocked(world.Folder));
    EXPECT_EQ(world.Keyring.Kept, "lantern");
    EXPECT_EQ(world.Closed, 1);
    world.Window.Form_Load();
    EXPECT_EQ(world.Window.Dump(), "chkLock 1\nchkKeep 1, on\nlblPassphrase \"A new passphrase, "
                                   "twice (leave empty to keep it):\", boxes on\n");

    struct Start {
        bool Keyring;
        std::deque<std::optional<std::string>> Typed;
        bool Opens;
        std::vector<std::string> Prompts;
    };
    const Start starts[] = {
        {true, {}, true, {}},
        {false, {"beacon", "lantern"}, true, {UnlockPrompt, WrongPassphrasePrompt}},
        {false, {"beacon", std::nullopt}, false, {UnlockPrompt, WrongPassphrasePrompt}},
    };
    for (const auto& start : starts) {
        AppFolder next{world.Folder.Root};
        world.Keyring.Running = start.Keyring;
        auto typed = start.Typed;
        std::vector<std::string> prompts;
        EXPECT_EQ(OpenLockedLibrary(next, world.Windows, &world.Keyring,
                                    [&](const std::string& prompt) {
                                        prompts.push_back(prompt);
                                        auto answer = typed.front();
                                        typed.pop_front();
                                        return answer;
                                    }),
                  start.Opens);
        EXPECT_EQ(prompts, start.Prompts);
        EXPECT_EQ(next.Key != nullptr, start.Opens);
    }

    world.Keyring.Running = true;
    world.Keyring.Forget();
    world.Choose(1, "", "", 1);
    EXPECT_EQ(world.Windows.Boxes.back().Text,
              "To keep the passphrase in the keyring, type it in both boxes. The Library then "
              "opens with the passphrase you typed.");
    world.Choose(1, "lantern", "lantern", 1);
    EXPECT_EQ(world.Keyring.Kept, "lantern");
    world.Windows.Answers = {MessageAnswer::Yes};
    world.Choose(0, "", "");
    EXPECT_FALSE(LibraryIsLocked(world.Folder));
    EXPECT_EQ(world.Keyring.Kept, std::nullopt);
}

} // namespace
} // namespace veyrant::testing
