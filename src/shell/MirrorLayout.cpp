#include "shell/MirrorLayout.h"

#include <initializer_list>

namespace veyrant {

namespace {

// Text column on the left, work buttons in a column on the right, the instruction line below.
constexpr double Margin = 240;
constexpr double TextWidth = 7440;
constexpr double ColumnLeft = Margin + TextWidth + 240;
constexpr double ColumnWidth = 1440;
constexpr double InsideWidth = ColumnLeft + ColumnWidth + Margin;
constexpr double InsideHeight = 6060;

constexpr double PanelHeight = 780;
constexpr double TabTop = 150;
constexpr double TabWidth = 1410;
constexpr double TabHeight = 480;
constexpr double TabStep = TabWidth + 60;

constexpr double WorkButtonHeight = 420;

ControlPlace Scaled(const ControlPlace& place, double factor) {
    return {place.Left * factor, place.Top * factor, place.Width * factor, place.Height * factor};
}

} // namespace

MirrorLayout MirrorDesign() {
    MirrorLayout design;
    design.WindowWidth = InsideWidth + FrameWidthTwips;
    design.WindowHeight = InsideHeight + FrameHeightTwips;

    design.Panel1 = {0, 0, InsideWidth, PanelHeight};
    // Methods from the left edge of the panel, libraries from its right edge.
    design.cmdConverse = {Margin, TabTop, TabWidth, TabHeight};
    design.cmdSuppose = {Margin + TabStep, TabTop, TabWidth, TabHeight};
    design.cmdNotate = {Margin + 2 * TabStep, TabTop, TabWidth, TabHeight};
    const double libraryRight = InsideWidth - Margin;
    design.cmdHelp = {libraryRight - TabWidth, TabTop, TabWidth, TabHeight};
    design.cmdRetrieve = {libraryRight - TabWidth - TabStep, TabTop, TabWidth, TabHeight};
    design.cmdKnow = {libraryRight - TabWidth - 2 * TabStep, TabTop, TabWidth, TabHeight};

    // Work buttons in three pairs: the entry, the output, the Dialogue as a whole.
    design.cmdClear = {ColumnLeft, 960, ColumnWidth, WorkButtonHeight};
    design.cmdRemove = {ColumnLeft, 1440, ColumnWidth, WorkButtonHeight};
    design.cmdDisplay = {ColumnLeft, 2040, ColumnWidth, WorkButtonHeight};
    design.cmdPrint = {ColumnLeft, 2520, ColumnWidth, WorkButtonHeight};
    design.cmdSave = {ColumnLeft, 3120, ColumnWidth, WorkButtonHeight};
    design.cmdNew = {ColumnLeft, 3600, ColumnWidth, WorkButtonHeight};

    design.txtResponse = {Margin, 960, TextWidth, 1820};
    design.txtMirror = {Margin, 2480, TextWidth, 465};
    design.lblRem = {Margin + TextWidth - 720, 2760, 720, 225};
    design.txtSaved = {Margin, 2760, TextWidth, 2745};
    design.txtAnalyze = {Margin, 3000, TextWidth, 2175};
    design.lblRemS = {ColumnLeft, 4950, ColumnWidth, 225};
    // Two lines of the control font: the longer instructions wrap.
    design.txtNote = {Margin, 5565, InsideWidth - 2 * Margin, 450};
    return design;
}

MirrorLayout ScaleMirrorLayout(const MirrorLayout& design, double scaleFactor) {
    MirrorLayout scaled;
    scaled.WindowWidth = (design.WindowWidth - FrameWidthTwips) * scaleFactor + FrameWidthTwips;
    scaled.WindowHeight = (design.WindowHeight - FrameHeightTwips) * scaleFactor + FrameHeightTwips;
    for (auto member :
         {&MirrorLayout::Panel1,     &MirrorLayout::cmdConverse, &MirrorLayout::cmdSuppose,
          &MirrorLayout::cmdNotate,  &MirrorLayout::cmdKnow,     &MirrorLayout::cmdRetrieve,
          &MirrorLayout::cmdHelp,    &MirrorLayout::cmdClear,    &MirrorLayout::cmdRemove,
          &MirrorLayout::cmdDisplay, &MirrorLayout::cmdPrint,    &MirrorLayout::cmdSave,
          &MirrorLayout::cmdNew,     &MirrorLayout::txtResponse, &MirrorLayout::txtMirror,
          &MirrorLayout::txtSaved,   &MirrorLayout::txtAnalyze,  &MirrorLayout::txtNote,
          &MirrorLayout::lblRem,     &MirrorLayout::lblRemS}) {
        scaled.*member = Scaled(design.*member, scaleFactor);
    }
    return scaled;
}

} // namespace veyrant
