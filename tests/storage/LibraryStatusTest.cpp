#include "storage/LibraryStatus.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

TEST(LibraryStatus, EveryWordingOfTheStatus) {
    LibraryListing listing;
    listing.LibraryFiles[1] = "76110309.050";
    listing.LibraryFiles[2] = "76112123.450";
    listing.LibraryFiles[3] = "76112200.010";
    const std::string heading = "Dialogue Library Status\r\n\t";
    struct Case {
        const char* What;
        int Count;
        int OldestAge;
        int GuestMode;
        std::string Status;
    };
    const Case cases[] = {
        {"none saved", 0, 0, 0,
         heading + "There are currently no Dialogues saved in the Library. The Library is set to "
                   "save 30 Dialogues and delete those older than 21 days."},
        {"one saved", 1, 19, 0,
         heading + "You have 1 Dialogue saved in the Library. You created it on Tuesday, 9:05 am, "
                   "November 3, 2026.  The Library is set to save 30 Dialogues and delete those "
                   "older than 21 days."},
        {"several, days left", 3, 19, 0,
         heading + "You have 3 Dialogues saved in the Library. You created the latest one on "
                   "Sunday, 12:01 am, November 22, 2026. Your earliest Dialogue will be "
                   "automatically deleted in 2 days. The Library is set to save 30 Dialogues and "
                   "delete those older than 21 days."},
        {"one day left", 2, 20, 0,
         heading + "You have 2 Dialogues saved in the Library. You created the latest one on "
                   "Saturday, 11:45 pm, November 21, 2026. Your earliest Dialogue will be "
                   "automatically deleted in 1 day. The Library is set to save 30 Dialogues and "
                   "delete those older than 21 days."},
        {"no days left prints as it is", 2, 21, 0,
         heading + "You have 2 Dialogues saved in the Library. You created the latest one on "
                   "Saturday, 11:45 pm, November 21, 2026. Your earliest Dialogue will be "
                   "automatically deleted in 0 days. The Library is set to save 30 Dialogues and "
                   "delete those older than 21 days."},
        {"past the limit too", 3, 24, 0,
         heading + "You have 3 Dialogues saved in the Library. You created the latest one on "
                   "Sunday, 12:01 am, November 22, 2026. Your earliest Dialogue will be "
                   "automatically deleted in -3 days. The Library is set to save 30 Dialogues and "
                   "delete those older than 21 days."},
        {"guest mode with Dialogues", 3, 19, 1,
         heading + "The Library is in the Guest Mode. No Dialogues are saved or retrieved."},
        {"guest mode without", 0, 0, 1,
         heading + "The Library is in the Guest Mode. No Dialogues are saved or retrieved."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        listing.LibraryCount = c.Count;
        listing.OldestAge = c.OldestAge;
        Settings settings;
        settings.GuestMode = static_cast<std::int16_t>(c.GuestMode);
        EXPECT_EQ(GenLibStatus(listing, settings), c.Status);
    }
}

TEST(LibraryStatus, LimitsAreShownAsStoredAndAnUnreadableNameAsItStands) {
    LibraryListing listing;
    listing.LibraryCount = 1;
    listing.LibraryFiles[1] = "notes.txt";
    Settings settings;
    settings.MaxLibraryFiles = 0;
    settings.MaxLibraryDays = 150;
    EXPECT_EQ(GenLibStatus(listing, settings),
              "Dialogue Library Status\r\n\tYou have 1 Dialogue saved in the Library. You created "
              "it on notes.txt.  The Library is set to save 0 Dialogues and delete those older "
              "than 150 days.");
}

} // namespace
} // namespace veyrant
