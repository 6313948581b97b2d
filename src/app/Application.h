#pragma once

// The process-wide values of the program, owned by one object that is passed by reference to
// whatever needs them. A test builds a whole application in a temporary folder.

#include "app/LibraryLink.h"
#include "app/LibraryUnlock.h"
#include "app/PassphraseKeeper.h"
#include "core/Clock.h"
#include "core/Random.h"
#include "core/WindowLayer.h"
#include "dialogue/EngineDialogue.h"
#include "dialogue/Mirror.h"
#include "engine/Engine.h"
#include "reader/FixedLibrary.h"
#include "reader/Reader.h"
#include "reader/ReaderValues.h"
#include "shell/AppFolder.h"
#include "shell/Backdrop.h"
#include "shell/ClosingState.h"
#include "shell/DisplayScale.h"
#include "shell/Preferences.h"
#include "shell/Settings.h"
#include "shell/SpellChecker.h"
#include "storage/DialogueLibrary.h"
#include "storage/WorkBuffers.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace veyrant {

struct Application {
    Application(AppFolder folder, std::filesystem::path programFile, veyrant::Clock& clock,
                veyrant::Random& random, WindowLayer& windows)
        : Folder(std::move(folder)), ProgramFile(std::move(programFile)), Clock(clock),
          Random(random), Windows(windows), Engine(random, clock, windows), Replies(Engine),
          Library(Folder, UserSettings, clock, windows),
          Buffers(Folder, UserSettings, clock, windows), Back(windows), Links(*this) {}

    AppFolder Folder;
    // The executable whose file date makes the version text.
    std::filesystem::path ProgramFile;

    veyrant::Settings UserSettings;
    veyrant::Preferences UserPreferences;
    veyrant::ReadSettings ReaderSettings;
    veyrant::FontNames Fonts;
    veyrant::DisplayScale Scale;

    std::int16_t ClosingState = ClosingStates::Running;
    std::string ProgramYear;
    std::string VersionString;

    veyrant::Clock& Clock;
    veyrant::Random& Random;
    WindowLayer& Windows;

    // The Sagrel's engine, and the Write window's way of asking it.
    veyrant::Engine Engine;
    EngineDialogue Replies;
    DialogueLibrary Library;
    WorkBuffers Buffers;
    // The Information, Knowledge and Advanced Knowledge Libraries, filled behind the banner.
    FixedLibraries Libraries;
    // The spelling marks of the Write window and the export editor, idle until a dictionary is
    // opened.
    SpellChecker Spelling;
    // The Write window's logic, made when the window loads.
    std::unique_ptr<Mirror> Write;

    ReaderValues Reading;
    // The backdrop behind the windows.
    Backdrop Back;
    // The Read window's logic, made afresh at each opening.
    std::unique_ptr<Reader> Read;
    // How the Write window and the Reader reach each other.
    LibraryLink Links;
    // The desktop's keyring and the box that asks for the passphrase of a locked Library; none
    // where the program runs without a desktop.
    PassphraseKeeper* Keyring = nullptr;
    PassphraseQuestion AskPassphrase;

    // The part of the program the Write window's logic may reach.
    MirrorWorld WriteWorld() { return {Clock, Random, Windows, Scale, UserSettings, ClosingState}; }

    // The part of the program the Reader's logic may reach.
    ReaderWorld ReadWorld() {
        return {Clock,          Windows, Scale,     Fonts,   Folder, UserSettings,
                ReaderSettings, Reading, Libraries, Library, Back,   Links};
    }
};

} // namespace veyrant
