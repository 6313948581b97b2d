#pragma once

// The program as main() puts it together, over the real window layer in a fresh folder: the
// banner, the Write window, the Read window and the backdrop, with their timers.

#include "app/Application.h"
#include "app/StartUp.h"
#include "core/Random.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"
#include "ui/BackWindow.h"
#include "ui/BannerWindow.h"
#include "ui/MirrorWindow.h"
#include "ui/QtWindowLayer.h"
#include "ui/ReaderWindow.h"

#include <QPointer>

namespace veyrant {

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

} // namespace veyrant
