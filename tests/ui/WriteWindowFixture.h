#pragma once

// A whole Write window, shown, over the program's engine in a fresh folder.

#include "app/Application.h"
#include "core/Random.h"
#include "dialogue/EngineDialogue.h"
#include "dialogue/Mirror.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "shell/DisplayScale.h"
#include "storage/DialogueLibrary.h"
#include "storage/WorkBuffers.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"
#include "ui/HunspellDictionary.h"
#include "ui/MirrorWindow.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace veyrant {

struct WriteWindow {
    explicit WriteWindow(int displayOption = 1)
        : App(AppFolder{Temp.Path()}, Temp / "program", Clock, Draws, Layer),
          Composer(Draws, Clock, Layer), Replies(Composer),
          Library(App.Folder, App.UserSettings, Clock, Layer),
          Buffers(App.Folder, App.UserSettings, Clock, Layer) {
        SetDisplayScale(displayOption, App.Scale);
        InstallEngineFiles(App.Folder);
        Composer.LoadSystem(App.Folder);
        Composer.SeedSeries();
        // Every window test types with the spelling marks on.
        OpenSpelling(App, SystemDictionaryFolder);
        Logic = std::make_unique<Mirror>(App.WriteWorld(), Replies, Buffers, Library);
        Window = std::make_unique<MirrorWindow>(App, *Logic);
        Window->show();
        Logic->StartWindow();
        Window->Render();
    }

    QPlainTextEdit* Box(MirrorControl control) const {
        return static_cast<QPlainTextEdit*>(Window->Widget(control));
    }
    // The caption as the user reads it, without the mark of its access letter.
    QString Caption(MirrorControl control) const {
        return static_cast<QPushButton*>(Window->Widget(control))->text().remove(QLatin1Char('&'));
    }
    void Click(MirrorControl control) const {
        QTest::mouseClick(Window->Widget(control), Qt::LeftButton);
    }

    testing::TempFolder Temp;
    testing::FakeWindowLayer Layer;
    testing::FakeClock Clock;
    Random Draws;
    Application App;
    Engine Composer;
    EngineDialogue Replies;
    DialogueLibrary Library;
    WorkBuffers Buffers;
    std::unique_ptr<Mirror> Logic;
    std::unique_ptr<MirrorWindow> Window;
};

} // namespace veyrant
