#pragma once

// The hover help of a window. The button under the pointer is marked at once; a tick later its
// help stands in the instruction box, for seven ticks of 1250 milliseconds, and at the eighth the
// standing instruction comes back. An area without a mark of its own (a text box, the instruction
// box, the window's background) has help on the same count.

#include "core/Colour.h"
#include "core/Control.h"
#include "core/WindowLayer.h"

#include <optional>
#include <string>
#include <utility>

namespace veyrant {

template <typename Controls, typename ControlId>
class HoverHelp {
public:
    static constexpr int Interval = 1250;
    static constexpr int LastTick = 7;

    // `note` is the instruction box; `timer` ticks while help is pending or on show.
    HoverHelp(WindowLayer& windows, TimerId timer, Controls& controls, ControlId note)
        : windows_(windows), timer_(timer), controls_(controls), note_(note) {}
    HoverHelp(const HoverHelp&) = delete;
    HoverHelp& operator=(const HoverHelp&) = delete;

    // The control marked last, whether or not it still shows the mark.
    std::optional<ControlId> Marked() const { return marked_; }
    // The help pending or on show.
    const std::string& Text() const { return text_; }

    // Marks the control and starts the count toward its help.
    void Mark(ControlId control, std::string text) {
        Unmark();
        area_.reset();
        marked_ = control;
        controls_[control].Ink = Colour::HoverInk;
        controls_[control].Underlined = true;
        Start(std::move(text));
    }

    // The marked control shows plain again; the count goes on.
    void Unmark() {
        if (marked_) {
            controls_[*marked_].Ink = Colour::Black;
            controls_[*marked_].Underlined = false;
        }
    }

    // Starts the count toward help that marks no control.
    void Start(std::string text) {
        text_ = std::move(text);
        ticks_ = 0;
        windows_.StartTimer(timer_, Interval);
    }

    // Help for an area: the count starts when the pointer arrives, not at each move across it.
    void StartArea(ControlId area, std::string text) {
        if (area_ == area && text_ == text) {
            return;
        }
        Unmark();
        marked_.reset();
        area_ = area;
        Start(std::move(text));
    }

    // The pointer has left the area; coming back starts its count again.
    void LeaveArea() { area_.reset(); }

    // Unmarks, and the next tick brings the instruction back.
    void End() {
        Unmark();
        ticks_ = LastTick;
    }

    // The help starts its seven ticks afresh.
    void Rewind() { ticks_ = 0; }

    // No tick comes until help starts again.
    void Stop() {
        windows_.StopTimer(timer_);
        ticks_ = 0;
        area_.reset();
    }

    // One tick of the timer: the help in the instruction box, or at the last the standing
    // instruction in its own ink.
    void Tick(const std::string& instruction, Colour instructionInk) {
        Control& note = controls_[note_];
        if (ticks_ < LastTick) {
            note.Text = text_;
            note.Ink = Colour::HelpInk;
            ++ticks_;
            return;
        }
        note.Text = instruction;
        note.Ink = instructionInk;
        Stop();
    }

private:
    WindowLayer& windows_;
    TimerId timer_;
    Controls& controls_;
    ControlId note_;
    std::optional<ControlId> marked_;
    // The area whose help is pending or on show.
    std::optional<ControlId> area_;
    std::string text_;
    int ticks_ = 0;
};

} // namespace veyrant
