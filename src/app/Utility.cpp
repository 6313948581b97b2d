#include "app/Utility.h"

#include "core/Text.h"

#include <utility>
#include <vector>

namespace veyrant {

std::string AboutText(const std::string& versionString, const std::string& programYear) {
    const std::vector<std::vector<std::string>> groups = {
        {"Veyrant Sagrel " + Left(versionString, 1) + " for Linux", "Veyrant Ardelune",
         "Version " + versionString},
        {"A Program for Psychological Self-Reflection"},
        {"Powered by the Veyrant Technology Dovrin", " A 'Ambrel' Application"},
        {"For Linux Desktops on X11 and Wayland"},
        {"\xA9 " + programYear + " Veyrant Technology", "veyrant-sagrel.org"},
    };
    std::string text;
    for (const auto& group : groups) {
        if (!text.empty()) {
            text += CrLf;
        }
        for (const std::string& line : group) {
            if (!text.empty()) {
                text += CrLf;
            }
            text += line;
        }
    }
    return text;
}

Utility::Utility(WindowLayer& windows, std::string versionString, std::string programYear,
                 std::function<void()> exitProgram)
    : windows_(windows), versionString_(std::move(versionString)),
      programYear_(std::move(programYear)), exitProgram_(std::move(exitProgram)) {}

void Utility::cmdOptions_Click() {
    ShowInstead(WindowId::Options);
}

void Utility::cmdResize_Click() {
    ShowInstead(WindowId::Resize);
}

void Utility::cmdExport_Click() {
    ShowInstead(WindowId::Export);
}

void Utility::cmdAbout_Click() {
    windows_.HideWindow(WindowId::Utility);
    windows_.ShowMessage({"About the Veyrant Sagrel Program",
                          AboutText(versionString_, programYear_), MessageIcon::Information});
    exitProgram_();
}

void Utility::Form_Close() {
    windows_.HideWindow(WindowId::Utility);
    exitProgram_();
}

void Utility::ShowInstead(WindowId window) {
    windows_.HideWindow(WindowId::Utility);
    windows_.ShowWindow(window);
}

std::string Utility::Dump() const {
    return "title \"" + controls_.Title + "\"\n" + "cmdOptions \"" + controls_.cmdOptions.Caption +
           "\"\n" + "cmdResize \"" + controls_.cmdResize.Caption + "\"\n" + "cmdExport \"" +
           controls_.cmdExport.Caption + "\"\n" + "cmdAbout \"" + controls_.cmdAbout.Caption +
           "\"\n";
}

} // namespace veyrant
