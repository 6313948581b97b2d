#include "app/SmallDisplay.h"

#include "app/SettingsFiles.h"

namespace veyrant {

void WarnSmallDisplay(Application& app) {
    app.Windows.ShowMessage(
        {"Veyrant Sagrel Window Size Adjustment",
         "Veyrant Sagrel windows are currently not the proper size for your 640x480 display. A "
         "parameter will be changed and the program closed. Then you may re-open it.\r\n\r\n"
         "Please note that 640x480 is not a recommended display size for the Veyrant Sagrel. "
         "Although the program will operate, its visual parameters are not optimum. Some "
         "instruction messages may be cut off. You may also need to hide your desktop's panel.",
         MessageIcon::Warning, MessageButtons::Ok, 1});
    app.UserSettings.DisplayOption = 0;
    SaveSettings(app);
    app.Windows.EndProcess();
}

} // namespace veyrant
