#include <gtest/gtest.h>

#include "app/Fade.h"
#include "app/OpenLink.h"
#include "app/Settings.h"
#include "app/StringTable.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

namespace {

std::vector<int> opacities(int start, int end, int step) {
    Fade fade;
    fade.StartFade(start, end, step, AfterFade::Close);
    std::vector<int> shown;
    while (fade.isActive() && shown.size() < 1000) shown.push_back(fade.tick());
    return shown;
}

TEST(Fade, EndsExactlyAtItsEnd) {
    EXPECT_EQ(opacities(kInvisible, kOpaque, kFadeStep),
              (std::vector{20, 40, 60, 80, 100, 120, 140, 160, 180, 200, 220, 240, 255}));
    EXPECT_EQ(opacities(kOpaque, kInvisible, kFadeStep),
              (std::vector{235, 215, 195, 175, 155, 135, 115, 95, 75, 55, 35, 15, 0}));
    const std::vector<int> slow = opacities(kOpaque, kInvisible, kSlowFadeStep);
    EXPECT_EQ(slow.size(), 26U);
    EXPECT_EQ(slow[24], 5);
    EXPECT_EQ(slow[25], 0);
    EXPECT_EQ(opacities(0, 255, 255), std::vector{255});
}

TEST(FadeStatus, IsOffUnlessTheStoreSaysTrue) {
    MemorySettings settings;
    EXPECT_FALSE(settings::readFadeStatus(settings));
    for (const auto& [stored, on] : {std::pair{"True", true},
                                     {" TRUE ", true},
                                     {"-1", true},
                                     {"False", false},
                                     {"0", false},
                                     {"", false},
                                     {"yes", false}}) {
        settings.save("FadeStatus", stored);
        EXPECT_EQ(settings::readFadeStatus(settings), on) << stored;
    }
}

struct RecordingLinks : LinkOpener {
    bool open(const std::string& target) override {
        targets.push_back(target);
        return works;
    }
    std::vector<std::string> targets;
    bool works = true;
};

TEST(OpenLink, PutsTheSchemeInFrontAndReportsOnlyAFailedCall) {
    Log log;
    QueuedBoxes boxes{log};
    RecordingLinks links;
    OpenLink(LinkKind::Mail, "ann@example.com", links, boxes);
    OpenLink(LinkKind::Mail, "", links, boxes);
    OpenLink(LinkKind::Web, "", links, boxes);
    EXPECT_TRUE(log.empty());
    links.works = false;
    boxes.answers = {BoxAnswer::Ok};
    OpenLink(LinkKind::Web, "http://example.com", links, boxes);
    EXPECT_EQ(links.targets, (std::vector<std::string>{
                                 "mailto:ann@example.com", "mailto:skylob@example.org",
                                 "http://www.example.org/skylob", "http://http://example.com"}));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, "Error");
    EXPECT_EQ(boxes.shown[0].text, "Could not establish an internet connection!");
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
}

TEST(StringTable, TakesNumberedLinesAndNothingElse) {
    StringTable table;
    table.addLines("# for the reader\n\n1000  two  blanks \n12 #\n7 last");
    EXPECT_EQ(table.text(1000), " two  blanks ");
    EXPECT_EQ(table.text(12), "#");
    EXPECT_EQ(table.text(7), "last");
    EXPECT_THROW(table.text(8), std::out_of_range);
    for (const char* wrong : {"12 again", "text", "13", "13\ttext", " 13 text"})
        EXPECT_THROW(table.addLines(wrong), std::invalid_argument) << wrong;
}

}  // namespace

}  // namespace skylob::test
