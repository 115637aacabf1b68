#include <gtest/gtest.h>

#include "base/OpenLink.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

TEST(OpenLink, PutsTheSchemeInFrontAndReportsOnlyAFailedCall) {
    Log log;
    QueuedBoxes boxes{log};
    RecordingLinks links;
    OpenLink(LinkKind::Mail, "ann@example.com", links, boxes);
    OpenLink(LinkKind::Mail, "", links, boxes);
    EXPECT_TRUE(log.empty());
    links.works = false;
    boxes.answers = {BoxAnswer::Ok};
    OpenLink(LinkKind::Web, "", links, boxes);
    EXPECT_EQ(links.targets, (Log{"mailto:ann@example.com", "mailto:skylob@example.org",
                                  "http://www.example.org/skylob"}));
    EXPECT_EQ(boxes.shown, Log{"Error: Could not establish an internet connection! (!)"});
}

TEST(AgreeingBoxes, TakeTheEntryThatIsThere) {
    EXPECT_EQ(AgreeingBoxes{}.ask({"Title", "Prompt", "Entry"}), "Entry");
}

}  // namespace skylob::test
