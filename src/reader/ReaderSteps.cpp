// Moving through a library: the step buttons, the split and expanded window modes, the keys and
// the three font steps.

#include "core/KeyCodes.h"
#include "reader/Reader.h"

#include <array>
#include <cmath>

namespace veyrant {

namespace {

// List heights per font step, designed so a whole number of rows fits.
constexpr std::array<int, 4> SplitListHeights{0, 2595, 2430, 2340};
constexpr std::array<int, 4> ExpandedListHeights{0, 5445, 5430, 5310};
constexpr int SplitBelow = 3000;
constexpr int TextTopLow = 3600;
constexpr int TextHeightLow = 2775;
constexpr int TextTopHigh = 960;
constexpr int TextHeightHigh = 5415;

// A step the settings file holds out of range shows as the first.
std::size_t StepIndex(int step) {
    return step >= 1 && step <= 3 ? static_cast<std::size_t>(step) : 1;
}

} // namespace

int Reader::SplitListHeight() const {
    return static_cast<int>(
        std::lround(SplitListHeights[StepIndex(world_.UserSettings.ReaderFontStep)] *
                    world_.Scale.ScaleFactor));
}

int Reader::ExpandedListHeight() const {
    return static_cast<int>(
        std::lround(ExpandedListHeights[StepIndex(world_.UserSettings.ReaderFontStep)] *
                    world_.Scale.ScaleFactor));
}

bool Reader::ListIsSplit() const {
    return C(ReaderControl::List1).Height < SplitBelow * world_.Scale.ScaleFactor;
}

void Reader::ApplyFontStep() {
    const auto step = StepIndex(world_.UserSettings.ReaderFontStep);
    for (auto control : {ReaderControl::List1, ReaderControl::txtSpin}) {
        C(control).FontSize = world_.Scale.TextSize[step];
        C(control).FontBold = step == 1 && world_.Scale.TextSize1Bold;
    }
}

void Reader::CycleFontStep() {
    auto& step = world_.UserSettings.ReaderFontStep;
    step = static_cast<std::int16_t>(StepIndex(step) % 3 + 1);
    ShowLibrary();
}

void Reader::SetStepButtons(bool on) {
    auto& next = C(ReaderControl::cmdNext);
    auto& prior = C(ReaderControl::cmdPrior);
    next.Text = IsDialogueLibrary() ? "Earlier >>" : "Next >>";
    prior.Text = IsDialogueLibrary() ? "<< Later" : "<< Prior";
    if (!on) {
        next.Enabled = false;
        prior.Enabled = false;
        return;
    }
    const int lastRow = static_cast<int>(controls_.List.Rows.size()) - 1;
    prior.Enabled = state_.ListPos >= 1;
    next.Enabled = state_.ListPos < lastRow;
}

void Reader::Step(int by) {
    hover_.End();
    state_.ListPos = static_cast<std::int16_t>(state_.ListPos + by);
    SetStepButtons(true);
    SelectRow(state_.ListPos);
    ScrollList();
    FocusGained(ReaderControl::txtSpin);
}

void Reader::PlaceText(int top, int height) {
    auto& spin = C(ReaderControl::txtSpin);
    spin.Top = static_cast<int>(std::lround(top * world_.Scale.ScaleFactor));
    spin.Height = static_cast<int>(std::lround(height * world_.Scale.ScaleFactor));
    // A hit found by the search is selected again; otherwise the text shows from its top.
    if (state_.HitCount > 0) {
        spin.Caret = state_.HitStart;
        spin.SelectionLength = state_.HitLength;
    } else {
        spin.Caret = 0;
        spin.SelectionLength = 0;
    }
}

void Reader::SetWindowLayout(int mode) {
    if (mode == 2) {
        mode = 0;
        C(ReaderControl::txtSpin).Enabled = true;
        C(ReaderControl::cmdSelect).Enabled = true;
        C(ReaderControl::cmdSelect).Text = "Cancel";
    }
    auto& list = C(ReaderControl::List1);
    auto& spin = C(ReaderControl::txtSpin);
    const bool reading = spin.Background == Colour::ReadingText;
    list.Background = reading ? Colour::IndexText : Colour::ListInUse;
    if (mode == 0) {
        list.Height = SplitListHeight();
        PlaceText(TextTopLow, TextHeightLow);
        list.Visible = true;
        spin.Visible = true;
    } else if (!reading) {
        list.Height = ExpandedListHeight();
        spin.Visible = false;
        list.Visible = true;
        if (world_.Windows.IsWindowVisible(WindowId::Read)) {
            controls_.Focus = ReaderControl::List1;
            FocusGained(ReaderControl::List1);
        }
    } else {
        list.Visible = false;
        PlaceText(TextTopHigh, TextHeightHigh);
        spin.Visible = true;
    }
}

void Reader::ClickWindow() {
    hover_.End();
    const bool indexShows = C(ReaderControl::txtSpin).Background == Colour::IndexText;
    if (state_.SearchActive && indexShows) {
        Message("Split Window Mode When Searching",
                "When entering the search mode, the window is automatically set in the split-view "
                "mode. Once a selection is made, the text is shown in its saved window mode. Only "
                "text that is found during a search can be expanded into the window.");
        return;
    }
    if (state_.IndexMode == IndexView::Sections && !state_.SearchActive && indexShows &&
        !IsDialogueLibrary()) {
        Message("Split Window Mode for Section Display",
                "When entering the Library, resetting its index, or selecting a main <Section> "
                "title, the window is automatically set in the split-view mode. Once you select "
                "a topic within the Section, the text is displayed in its saved window mode. Only "
                "text that is within a Section can be expanded into the window.");
        return;
    }
    auto& mode = world_.UserSettings.WindowMode[world_.Values.ReadLibrary];
    // The saved mode follows what shows.
    if (C(ReaderControl::List1).Visible && ListIsSplit()) {
        mode = 0;
    }
    // A merged view is expanded without its mode saying so; its first toggle goes to split.
    if (mode == 0 && C(ReaderControl::txtSpin).Height ==
                         static_cast<int>(std::lround(TextHeightHigh * world_.Scale.ScaleFactor))) {
        mode = 1;
    }
    mode = mode == 0 ? 1 : 0;
    SetWindowLayout(mode);
    ScrollList();
    if (state_.SearchActive) {
        controls_.Focus = ReaderControl::txtSearch;
    }
}

int Reader::KeyDown(int keyCode) {
    const bool selectOn = C(ReaderControl::cmdSelect).Enabled;
    switch (keyCode) {
    case KeyCode::Enter:
        if (!state_.SearchActive && selectOn) {
            ClickSelect();
            return 0;
        }
        break;
    case KeyCode::Escape:
        if (selectOn) {
            ClickSelect();
            return 0;
        }
        break;
    case KeyCode::Space:
        if (!state_.SearchActive) {
            ClickWindow();
            return 0;
        }
        break;
    case KeyCode::F1:
        HelpKey();
        return 0;
    case KeyCode::PageUp:
    case KeyCode::Up:
        if (C(ReaderControl::cmdPrior).Enabled) {
            Step(-1);
            return 0;
        }
        break;
    case KeyCode::PageDown:
    case KeyCode::Down:
        if (C(ReaderControl::cmdNext).Enabled) {
            Step(1);
            return 0;
        }
        break;
    default:
        break;
    }
    return keyCode;
}

int Reader::KeyPress(int keyAscii, ReaderControl control) {
    // The text is never edited: what is typed at the resting box or the text box goes nowhere.
    if (control == ReaderControl::txtCursor || control == ReaderControl::txtSpin) {
        return 0;
    }
    // Enter in the search box steps the search and goes no further: a search text holds no
    // line end.
    if (control == ReaderControl::txtSearch && keyAscii == KeyCode::Enter) {
        SearchEnter();
        return 0;
    }
    return keyAscii;
}

void Reader::HelpKey() {
    Message("Veyrant Sagrel Help",
            "The Read Window instructions are available when Library content is not being "
            "displayed. If content is being displayed, click 'Index'. If the instruction text is "
            "not visible, click 'Window' to change the window mode.\r\n\r\nYou may review the "
            "complete details by clicking 'Help' in the Write window to review the Read window "
            "instructions.");
}

} // namespace veyrant
