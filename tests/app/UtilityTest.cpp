// The Utilities window passes the user on to one other window, or shows the About box, and every
// way out of it ends the program; the Library Options lock the Library.

#include "app/Utility.h"

#include "app/AppFixture.h"
#include "app/LibraryUnlock.h"
#include "app/LockOptions.h"
#include "storage/LibraryLock.h"

#include <deque>
#include <gtest/gtest.h>
#include <sodium.h>
#include <string>
#include <vector>

namespace veyrant::testing {
namespace {

TEST(Utility, EachButtonHidesTheWindowAndLeadsOnOrEnds) {
    // The window's events; the ways that lead nowhere end the program.
    using Events = std::vector<std::string>;
    const std::pair<void (Utility::*)(), Events> cases[] = {
        {&Utility::cmdOptions_Click, {"hide Utility", "show Options"}},
        {&Utility::cmdResize_Click, {"hide Utility", "show Resize"}},
        {&Utility::cmdExport_Click, {"hide Utility", "show Export"}},
        {&Utility::cmdAbout_Click, {"hide Utility"}},
        {&Utility::Form_Close, {"hide Utility"}},
    };
    for (const auto& [press, events] : cases) {
        SCOPED_TRACE(events.back());
        FakeWindowLayer layer;
        int exits = 0;
        Utility window(layer, "5.0.27.1.3", "2027", [&] { ++exits; });
        (window.*press)();
        EXPECT_EQ(layer.WindowEvents, events);
        EXPECT_EQ(exits, events.size() == 1 ? 1 : 0);
        const bool about = press == &Utility::cmdAbout_Click;
        ASSERT_EQ(layer.Boxes.size(), about ? 1u : 0u);
        if (about) {
            EXPECT_EQ(layer.Boxes[0].Title, "About the Veyrant Sagrel Program");
            EXPECT_EQ(layer.Boxes[0].Icon, MessageIcon::Information);
            const std::string& text = layer.Boxes[0].Text;
            EXPECT_TRUE(text.starts_with("Veyrant Sagrel 5 for Linux\r\n") &&
                        text.find("\r\nVersion 5.0.27.1.3\r\n\r\n") != std::string::npos &&
                        text.find("\r\n\r\n\xA9 2027 Veyrant") != std::string::npos)
                << text;
            EXPECT_NE(window.Dump().find("\ncmdAbout \""), std::string::npos);
        }
    }
}

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

struct LockWorld : AppFixture {
    FakeKeyring Keyring;
    int Closed = 0;
    LockOptions Window{Folder, Windows, &Keyring, [this] { ++Closed; },
                       StretchLimits{crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN}};

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
    EXPECT_TRUE(world.Windows.Boxes.back().Text.starts_with("The two passphrases are not"));
    world.Choose(1, "lantern", "lantern", 1);
    EXPECT_TRUE(LibraryIsLocked(world.Folder));
    EXPECT_EQ(world.Keyring.Kept, "lantern");
    EXPECT_EQ(world.Closed, 1);
    world.Window.Form_Load();
    EXPECT_TRUE(world.Window.Dump().starts_with("chkLock 1\nchkKeep 1, on\n") &&
                world.Window.Dump().ends_with(", boxes on\n"));

    // With the keyring running, the passphrase typed at the start, then whether it opens.
    using Typed = std::deque<std::optional<std::string>>;
    const std::vector<std::string> asked = {UnlockPrompt, WrongPassphrasePrompt};
    const std::tuple<bool, Typed, bool, std::vector<std::string>> starts[] = {
        {true, {}, true, {}},
        {false, {"beacon", "lantern"}, true, asked},
        {false, {"beacon", std::nullopt}, false, asked},
    };
    for (auto [keyring, typed, opens, prompts] : starts) {
        AppFolder next{world.Folder.Root};
        world.Keyring.Running = keyring;
        std::vector<std::string> shown;
        EXPECT_EQ(OpenLockedLibrary(next, world.Windows, &world.Keyring,
                                    [&](const std::string& prompt) {
                                        shown.push_back(prompt);
                                        auto answer = typed.front();
                                        typed.pop_front();
                                        return answer;
                                    }),
                  opens);
        EXPECT_EQ(shown, prompts);
        EXPECT_EQ(next.Key != nullptr, opens);
    }

    world.Keyring.Running = true;
    world.Keyring.Forget();
    world.Choose(1, "", "", 1);
    EXPECT_TRUE(world.Windows.Boxes.back().Text.starts_with("To keep the passphrase"));
    world.Choose(1, "lantern", "lantern", 1);
    EXPECT_EQ(world.Keyring.Kept, "lantern");
    world.Windows.Answers = {MessageAnswer::Yes};
    world.Choose(0, "", "");
    EXPECT_FALSE(LibraryIsLocked(world.Folder));
    EXPECT_EQ(world.Keyring.Kept, std::nullopt);
}

} // namespace
} // namespace veyrant::testing
