#include "app/FontCheck.h"

#include "app/SettingsFiles.h"

#include <string>

namespace veyrant {

namespace {

// The run-time number for a property that cannot take the value given.
constexpr int InvalidPropertyValue = 380;

struct FaceTrial {
    const std::string& Name;
    bool Italic;
    const char* File;
    const char* UsualName;
};

} // namespace

FontNames InstalledFaceNames(const WindowLayer& windows) {
    const FontNames named;
    if (windows.HasFontFace(named.Main, false) && windows.HasFontFace(named.Main, true)) {
        return named;
    }
    return {"Liberation Serif", "Liberation Serif Italic"};
}

bool CheckFonts(Application& app) {
    LoadFontNames(app);
    // The italic is tried as the roman face with its italic flag on, as the windows select it.
    const FaceTrial trials[] = {
        {app.Fonts.Main, false, "times.ttf", "Times New Roman"},
        {app.Fonts.Italic, true, "timesi.ttf", "Times New Roman Italic"},
    };
    std::string failures;
    for (const FaceTrial& trial : trials) {
        if (app.Windows.HasFontFace(app.Fonts.Main, trial.Italic)) {
            continue;
        }
        const std::string slot = "Error " + std::to_string(InvalidPropertyValue) +
                                 " accessing your font named {" + trial.Name +
                                 "} associated with the file <" + trial.File + "> usually named {" +
                                 trial.UsualName + "}.\r\n\r\n";
        failures += slot;
        app.Windows.ShowMessage({"Veyrant Sagrel", slot, MessageIcon::Stop, MessageButtons::Ok, 1});
    }
    if (failures.empty()) {
        return true;
    }
    app.Windows.ShowMessage(
        {"Fonts Not Functioning",
         "The Veyrant Sagrel font system is not functioning, probably because one or more fonts "
         "have been changed since installation.\r\n\r\nThese required font(s) cannot be "
         "accessed:\r\n\r\n" +
             failures +
             " Details on how to resolve font problems are given in the Information Library.",
         MessageIcon::Stop, MessageButtons::Ok, 1});
    app.Windows.EndProcess();
    return false;
}

} // namespace veyrant
