#include "dialogs/about.h"

#include "dialogs/about_drawing.h"
#include "support/dialogs.h"
#include "support/opened_pages.h"
#include "support/played_board.h"

namespace {

class About : public PlayedBoard {
protected:
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDialog(*handheld, commandAbout, use);
    }
};

// The host's time does not pass meanwhile. In the last frame the pieces are where the picture's
// are.
TEST_F(About, ThePiecesSlideToWhereTheLogoOfThePictureIs) {
    Use([](OpenDialog& dialog) {
        for (int step = 1; step <= 18; ++step) {
            SendMessageW(TopWindow(), WM_TIMER, 101, 0);
            EXPECT_EQ(std::vector<int>(LogoPieces, LogoPieces + 3),
                      (std::vector<int>{std::min(2 * step, 22), std::min(4 * step, 72),
                                        std::max(240 - 3 * step, 192)}));
            EXPECT_EQ(AboutAnimating, 1);
            if (step == 9 || step == 18) {
                ExpectLooksAsRecorded(dialog.Drawn(), "About step " + std::to_string(step));
            }
        }
        SendMessageW(TopWindow(), WM_TIMER, 101, 0);
        EXPECT_EQ(AboutAnimating, 0);
    });
}

TEST_F(About, PlaysByItselfEachTimeUntilATapOrItsEnd) {
    QImage picture;
    for (int opening = 0; opening < 2; ++opening) {
        Use([&](OpenDialog& dialog) {
            EXPECT_EQ(LogoPieces[0], 0);
            EXPECT_TRUE(QTest::qWaitFor([] { return LogoPieces[0] > 2; }));
            dialog.TapAt(100, 190);
            EXPECT_EQ(AboutAnimating, 0);
            EXPECT_TRUE(dialog.IsOpen()) << "the tap opens no link";
            picture = dialog.Drawn();
            QTest::qWait(60);
            EXPECT_EQ(dialog.Drawn(), picture);
        });
    }
    Use([](OpenDialog& dialog) { dialog.Tap(controlAboutClose); });
    const QImage screen = handheld->Screen();
    QTest::qWait(60);
    EXPECT_EQ(LogoPieces[0], 0) << "the timer ends with the box";
    EXPECT_EQ(handheld->Screen(), screen);
}

// Left and top edges belong to them, right and bottom do not; the button covers a corner of one.
TEST_F(About, LinksOpenInsideTheirAreasOnly) {
    constexpr std::pair<RECT, const char*> links[] = {
        {{65, 187, 178, 198}, "contact_us"},
        {{44, 202, 196, 213}, "trademarks_copyrights"},
        {{52, 221, 189, 229}, "http://www.quadrel.example.com"},
    };
    OpenedPages pages;
    Use([&](OpenDialog& dialog) {
        const auto opened = [&](LONG x, LONG y) {
            dialog.TapAt(x, y);
            EXPECT_TRUE(dialog.IsOpen());
            const auto shown = pages.Take();
            return shown.empty() ? "" : shown.back();
        };
        EXPECT_EQ(opened(100, 190), "") << "it was the end of the show";
        for (const auto& [area, page] : links) {
            const auto& [left, top, right, bottom] = area;
            for (POINT in : {POINT{left, top}, {right - 1, top}, {right - 1, bottom - 1}}) {
                EXPECT_NE(opened(in.x, in.y).find(page), std::string::npos) << in.x << ", " << in.y;
            }
            for (POINT out : {POINT{left - 1, top}, {left, top - 1}, {right, top}}) {
                EXPECT_EQ(opened(out.x, out.y), "") << out.x << ", " << out.y;
            }
            EXPECT_EQ(opened(right - 1, bottom), "");
        }
    });
}

TEST_F(About, QuickHelpOpensTheHelpAsOftenAsAsked) {
    OpenedPages pages;
    UseDialog(*handheld, commandHelp, [&](OpenDialog& dialog) {
        for (int time = 0; time < 2; ++time) {
            dialog.Tap(controlHelpOpen);
            EXPECT_EQ(pages.Take(), std::vector<std::string>{""});
            EXPECT_TRUE(dialog.IsOpen());
        }
    });
}

}  // namespace
