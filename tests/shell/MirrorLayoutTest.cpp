#include "shell/MirrorLayout.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace veyrant::testing {
namespace {

bool Overlap(const ControlPlace& a, const ControlPlace& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

bool Inside(const ControlPlace& inner, double width, double height) {
    return inner.Left >= 0 && inner.Top >= 0 && inner.Left + inner.Width <= width + 1e-6 &&
           inner.Top + inner.Height <= height + 1e-6;
}

// Scaling keeps the frame and lines up the opening arrangement; every control fits and no
// buttons collide.
TEST(MirrorLayout, ScalingKeepsTheFrameAndEveryControlFits) {
    const MirrorLayout design = MirrorDesign();
    for (const double factor : {0.9, 1.0, 1.21, 1.45}) {
        const MirrorLayout layout = ScaleMirrorLayout(design, factor);
        EXPECT_DOUBLE_EQ(layout.WindowHeight, (design.WindowHeight - 405) * factor + 405);
        EXPECT_DOUBLE_EQ(layout.WindowWidth, (design.WindowWidth - 90) * factor + 90);
        // The opening places of the boxes, as the arrangements move them.
        const double opening[] = {layout.txtResponse.Top, layout.txtResponse.Height,
                                  layout.txtMirror.Top, layout.txtSaved.Top,
                                  layout.txtSaved.Height};
        const double designed[] = {960, 1820, 2480, 2760, 2745};
        for (std::size_t k = 0; k < std::size(opening); ++k) {
            EXPECT_DOUBLE_EQ(opening[k], designed[k] * factor) << k;
        }
        const double insideWidth = layout.WindowWidth - FrameWidthTwips;
        const double insideHeight = layout.WindowHeight - FrameHeightTwips;
        const std::vector<ControlPlace> onPanel{layout.cmdConverse, layout.cmdSuppose,
                                                layout.cmdNotate,   layout.cmdKnow,
                                                layout.cmdRetrieve, layout.cmdHelp};
        const std::vector<ControlPlace> onWindow{
            layout.Panel1,    layout.cmdClear, layout.cmdRemove,  layout.cmdDisplay,
            layout.cmdPrint,  layout.cmdSave,  layout.cmdNew,     layout.txtResponse,
            layout.txtMirror, layout.txtSaved, layout.txtAnalyze, layout.txtNote,
            layout.lblRem,    layout.lblRemS};
        for (const ControlPlace& place : onPanel) {
            EXPECT_TRUE(Inside(place, layout.Panel1.Width, layout.Panel1.Height)) << factor;
        }
        for (const ControlPlace& place : onWindow) {
            EXPECT_TRUE(Inside(place, insideWidth, insideHeight)) << factor;
        }
        const std::vector<ControlPlace> workButtons{layout.cmdClear,   layout.cmdRemove,
                                                    layout.cmdDisplay, layout.cmdPrint,
                                                    layout.cmdSave,    layout.cmdNew};
        for (const auto& group : {onPanel, workButtons}) {
            for (std::size_t i = 0; i < group.size(); ++i) {
                for (std::size_t j = i + 1; j < group.size(); ++j) {
                    EXPECT_FALSE(Overlap(group[i], group[j])) << i << " and " << j;
                }
            }
        }
        for (const ControlPlace& box : {layout.txtResponse, layout.txtSaved, layout.txtNote}) {
            for (const ControlPlace& button : workButtons) {
                EXPECT_FALSE(Overlap(box, button));
            }
            EXPECT_FALSE(Overlap(box, layout.Panel1));
        }
    }
}

} // namespace
} // namespace veyrant::testing
