#pragma once

// The Write window's design, in twips for display option 1, with its boxes in the Opening
// arrangement, and the scaling that fits it to the user's display option.

namespace veyrant {

struct ControlPlace {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

struct MirrorLayout {
    // The outer size of the window, frame included.
    double WindowWidth = 0;
    double WindowHeight = 0;

    // Panel1 holds the method and library buttons; their places are within it.
    ControlPlace Panel1;
    ControlPlace cmdConverse;
    ControlPlace cmdSuppose;
    ControlPlace cmdNotate;
    ControlPlace cmdKnow;
    ControlPlace cmdRetrieve;
    ControlPlace cmdHelp;

    ControlPlace cmdClear;
    ControlPlace cmdRemove;
    ControlPlace cmdDisplay;
    ControlPlace cmdPrint;
    ControlPlace cmdSave;
    ControlPlace cmdNew;

    ControlPlace txtResponse;
    ControlPlace txtMirror;
    ControlPlace txtSaved;
    ControlPlace txtAnalyze;
    ControlPlace txtNote;
    ControlPlace lblRem;
    ControlPlace lblRemS;
};

// The room a window's frame takes, which does not grow with the scale.
inline constexpr double FrameWidthTwips = 90;
inline constexpr double FrameHeightTwips = 405;

MirrorLayout MirrorDesign();

// Every control's place times the factor; the window's inside grows by the factor, its frame
// stays as it is.
MirrorLayout ScaleMirrorLayout(const MirrorLayout& design, double scaleFactor);

} // namespace veyrant
