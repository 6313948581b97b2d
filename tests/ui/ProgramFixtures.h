#pragma once

// The program's windows over a fresh folder, as the window tests meet them: the Write window over
// its engine, the dialogs of the Utilities, and the program as main() puts it together.

#include "app/Application.h"
#include "app/StartUp.h"
#include "app/Utility.h"
#include "core/Random.h"
#include "dialogue/EngineDialogue.h"
#include "dialogue/Mirror.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "shell/DisplayScale.h"
#include "shell/Resize.h"
#include "storage/DialogueLibrary.h"
#include "storage/Options.h"
#include "storage/WorkBuffers.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"
#include "ui/BackWindow.h"
#include "ui/BannerWindow.h"
#include "ui/HunspellDictionary.h"
#include "ui/MirrorWindow.h"
#include "ui/QtWindowLayer.h"
#include "ui/ReaderWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <memory>

namespace veyrant {

// The program's state in a fresh folder, over the fake clock and window layer.
struct FreshApplication {
    testing::TempFolder Temp;
    testing::FakeWindowLayer Layer;
    testing::FakeClock Clock;
    Random Draws;
    Application App{AppFolder{Temp.Path()}, Temp / "program", Clock, Draws, Layer};
};

// A whole Write window, shown and started.
struct WriteWindow : FreshApplication {
    explicit WriteWindow(int displayOption = 1) {
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

    Engine Composer{Draws, Clock, Layer};
    EngineDialogue Replies{Composer};
    DialogueLibrary Library{App.Folder, App.UserSettings, Clock, Layer};
    WorkBuffers Buffers{App.Folder, App.UserSettings, Clock, Layer};
    std::unique_ptr<Mirror> Logic;
    std::unique_ptr<MirrorWindow> Window;
};

// The logic of the Utilities and its two dialogs over an empty Library; each way out counts.
template <typename Layer>
struct UtilityDialogs {
    testing::TempFolder Temp;
    AppFolder Folder{Temp.Path()};
    Layer Windows;
    testing::FakeClock Clock;
    Settings UserSettings;
    Preferences UserPreferences;
    DialogueLibrary Library{Folder, UserSettings, Clock, Windows};
    int Exits = 0;
    Utility Utilities{Windows, "4.1.26.11.22", "2026", [this] { ++Exits; }};
    Resize DisplaySize{UserSettings, UserPreferences, Windows, [this] { ++Exits; }};
    Options LibraryOptions{Library, UserSettings, Windows, [this] { ++Exits; }, [] {}};
};

// Over the real window layer: the banner, the Write window, the Read window and the backdrop,
// with their timers.
struct StartedProgram {
    StartedProgram() {
        Windows.RegisterWindow(WindowId::Banner, [this] { return new BannerWindow(Windows); });
        Windows.RegisterWindow(WindowId::Mirror, [this] {
            Write = new MirrorWindow(App, *App.Write);
            Write->OnClose = [this] { UnloadMirror(App); };
            return Write;
        });
        Windows.RegisterWindow(WindowId::Read, [this] {
            Read = new ReaderWindow(App, *App.Read);
            Read->OnClose = [this] { App.Links.CloseLibrary(); };
            return Read.data();
        });
        Windows.RegisterWindow(WindowId::Back, [this] {
            App.Back.Load();
            Back = new BackWindow(App.Back);
            return Back.data();
        });
        Windows.SetTimerHandler(TimerId::MirrorTimer1, [this] { Timer1(App); });
        Windows.SetTimerHandler(TimerId::MirrorHover, [this] {
            App.Write->TimerFired(TimerId::MirrorHover);
            Write->Render();
        });
        Windows.SetTimerHandler(TimerId::ReadHover, [this] {
            App.Read->TimerFired(TimerId::ReadHover);
            Read->Render();
        });
        Windows.SetTimerHandler(TimerId::BackTimer, [this] {
            App.Back.TimerFired();
            Back->Render();
        });
        Windows.SetTimerHandler(TimerId::BannerTimer, [this] { BannerTimer(App); });
    }

    testing::TempFolder Temp;
    QtWindowLayer Windows;
    testing::FakeClock Clock;
    Random Draws;
    Application App{AppFolder{Temp.Path()}, "/proc/self/exe", Clock, Draws, Windows};
    MirrorWindow* Write = nullptr;
    QPointer<ReaderWindow> Read;
    QPointer<BackWindow> Back;
};

// What a screen reader tells of a widget.
inline QString Spoken(QWidget* widget, QAccessible::Text text) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face == nullptr ? QString() : face->text(text);
}

// The controls of a window, the widgets the user works, that a screen reader would give no name.
inline QStringList Unnamed(QWidget& window) {
    QStringList unnamed;
    if (Spoken(&window, QAccessible::Name).isEmpty()) {
        unnamed << window.objectName();
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool control = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                             qobject_cast<QPlainTextEdit*>(widget) != nullptr ||
                             qobject_cast<QLineEdit*>(widget) != nullptr ||
                             qobject_cast<QComboBox*>(widget) != nullptr;
        if (control && Spoken(widget, QAccessible::Name).trimmed().isEmpty()) {
            unnamed << QStringLiteral("%1 (%2)").arg(widget->objectName(),
                                                     widget->metaObject()->className());
        }
    }
    return unnamed;
}

} // namespace veyrant
