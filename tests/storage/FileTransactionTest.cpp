// What the next start finds after a write that a crash cut short, from this version or an
// earlier one: a change whose note was written is finished, anything else is cleared, and no
// hidden file or "*.new" file stays behind.

#include "storage/FileTransaction.h"

#include "LibraryFixture.h"
#include "support/FaultSweep.h"

#include <set>

namespace veyrant::testing {
namespace {

// Files as "place=bytes", the place relative to the application folder.
using Files = std::set<std::string>;

TEST(FileTransaction, TheNextStartFinishesOrClearsWhatACrashLeft) {
    // What the crash left, and everything the folder then holds.
    const std::tuple<const char*, Files, Files> cases[] = {
        {"a write of ours cut short in each folder; the user's own hidden files stay",
         {"exe/.savei.tmp.veyrant-staged.Ab12Cd=\thalf",
          "dlg/.76112010.000.veyrant-staged.x9Y8z7=half",
          "isp/.76112010.000.veyrant-staged.Qq1Ww2=\thalf",
          "..change.veyrant-staged.Zz9Yy8=R\tisp/.a.Qq1Ww2\tisp/a\n", "exe/savei.tmp=\told",
          "dlg/.76112321.030.backup=mine", "exe/.Tolmira.ini.backup=mine", ".notes.backup=mine"},
         {"exe/savei.tmp=\told", "dlg/.76112321.030.backup=mine", "exe/.Tolmira.ini.backup=mine",
          ".notes.backup=mine"}},
        // The Dialogue's rename was done before the crash.
        {"a change whose note is down: the renames and deletes are done",
         {".change=R\tisp/.76112010.000.Qq1Ww2\tisp/76112010.000\n"
          "R\tdlg/.76112010.000.x9Y8z7\tdlg/76112010.000\n"
          "D\tisp/76101010.000\nD\tdlg/76101010.000\n",
          "isp/.76112010.000.Qq1Ww2=\tnew", "dlg/76112010.000=new dialogue",
          "isp/76101010.000=\told", "dlg/76101010.000=old dialogue"},
         {"isp/76112010.000=\tnew", "dlg/76112010.000=new dialogue"}},
        {"an earlier version's buffers, all four staged: the renames are finished",
         {"exe/savei.tmp=\tnew", "exe/savem.tmp=new dialogue", "exe/saves.tmp.new=new suggestion",
          "exe/savep.tmp.new= 2 \r\n", "exe/saves.tmp=old suggestion", "exe/savep.tmp= 1 \r\n"},
         {"exe/savei.tmp=\tnew", "exe/savem.tmp=new dialogue", "exe/saves.tmp=new suggestion",
          "exe/savep.tmp= 2 \r\n"}},
        {"an earlier version's buffers, cut short while staging: the old set stays",
         {"exe/savei.tmp.new=\tnew", "exe/savem.tmp.new=new dial", "exe/savei.tmp=\told",
          "exe/savem.tmp=old dialogue", "exe/saves.tmp=old suggestion", "exe/savep.tmp= 1 \r\n"},
         {"exe/savei.tmp=\told", "exe/savem.tmp=old dialogue", "exe/saves.tmp=old suggestion",
          "exe/savep.tmp= 1 \r\n"}},
        {"an earlier version's save, its Dialogue written: the pair is completed",
         {"isp/.76112010.000.new=\tnew", "dlg/76112010.000=new dialogue"},
         {"isp/76112010.000=\tnew", "dlg/76112010.000=new dialogue"}},
        {"an earlier version's save without its Dialogue: nothing is saved",
         {"isp/.76112010.000.new=\tnew"},
         {}},
    };
    for (const auto& [name, left, expected] : cases) {
        SCOPED_TRACE(name);
        TempFolder temp;
        for (const auto& folder : {"exe", "dlg", "isp"}) {
            std::filesystem::create_directories(temp / folder);
        }
        for (const std::string& file : left) {
            const auto equals = file.find('=');
            WriteWholeFile(temp / file.substr(0, equals), file.substr(equals + 1));
        }
        FinishInterruptedChanges(AppFolder{temp.Path()});
        Files found;
        for (const auto& [file, bytes] : ImageOf(temp.Path())) {
            found.insert(file + "=" + bytes);
        }
        EXPECT_EQ(found, expected);
    }
}

} // namespace
} // namespace veyrant::testing
