#include "storage/LibraryStatus.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrant {
namespace {

TEST(LibraryStatus, EveryWordingOfTheStatus) {
    const std::string heading = "Dialogue Library Status\r\n\t";
    const std::string limits =
        "The Library is set to save 30 Dialogues and delete those older than 21 days.";
    const std::string latest = "You created the latest one on ";
    // The Dialogues, the age of the oldest, Guest Mode, the first file, the most files kept.
    const std::tuple<int, int, std::int16_t, const char*, std::int16_t, std::string> cases[] = {
        {0, 0, 0, "76110309.050", 30,
         "There are currently no Dialogues saved in the Library. " + limits},
        {1, 19, 0, "76110309.050", 30,
         "You have 1 Dialogue saved in the Library. You created it on Tuesday, 9:05 am, "
         "November 3, 2026.  "},
        // An unreadable name stands as it is, and the limits as they are stored.
        {1, 19, 0, "notes.txt", 0,
         "You have 1 Dialogue saved in the Library. You created it on notes.txt.  The Library is "
         "set to save 0 Dialogues and delete those older than 21 days."},
        {3, 19, 0, "", 30,
         "You have 3 Dialogues saved in the Library. " + latest +
             "Sunday, 12:01 am, November 22, 2026. Your earliest Dialogue will be automatically "
             "deleted in 2 days. "},
        {2, 20, 0, "", 30,
         "You have 2 Dialogues saved in the Library. " + latest +
             "Saturday, 11:45 pm, November 21, 2026. Your earliest Dialogue will be "
             "automatically deleted in 1 day. "},
        {3, 19, 1, "", 30, "The Library is in the Guest Mode."},
    };
    for (const auto& [count, oldestAge, guestMode, firstFile, maxFiles, status] : cases) {
        SCOPED_TRACE(status);
        LibraryListing listing;
        listing.LibraryFiles[1] = firstFile;
        listing.LibraryFiles[2] = "76112123.450";
        listing.LibraryFiles[3] = "76112200.010";
        listing.LibraryCount = count;
        listing.OldestAge = oldestAge;
        Settings settings;
        settings.GuestMode = guestMode;
        settings.MaxLibraryFiles = maxFiles;
        // The limits are told alike after every count, and a fixed text by its first words.
        EXPECT_TRUE(GenLibStatus(listing, settings).starts_with(heading + status));
    }
}

} // namespace
} // namespace veyrant
