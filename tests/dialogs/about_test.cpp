#include "dialogs/about.h"

#include "dialogs/about_drawing.h"
#include "support/dialogs.h"
#include "support/opened_pages.h"

namespace {

using About = DialogTest;

// A slow host plays some of the show, or all of it, before the box is used.
void EndShowByTap(OpenDialog& dialog) {
    if (AboutAnimating == 1) {
        dialog.TapAt(100, 190);
    }
    EXPECT_EQ(AboutAnimating, 0);
}

// In the last frame the pieces are where the picture's are.
TEST_F(About, ThePiecesSlideToWhereTheLogoOfThePictureIs) {
    Use(commandAbout, [](OpenDialog&) {
        KillTimer(TopWindow(), 101);
        ResetLogoPieces();
        AboutAnimating = 1;
        for (int step = 1; step <= 18; ++step) {
            SendMessageW(TopWindow(), WM_TIMER, 101, 0);
            EXPECT_EQ(std::tuple(LogoPieces[0], LogoPieces[1], LogoPieces[2], AboutAnimating),
                      std::tuple(std::min(2 * step, 22), std::min(4 * step, 72),
                                 std::max(240 - 3 * step, 192), 1));
            if (step == 9 || step == 18) {
                ExpectLooksAsRecorded(TopWindow()->surface->Image().copy(),
                                      "About step " + std::to_string(step));
            }
        }
        SendMessageW(TopWindow(), WM_TIMER, 101, 0);
        EXPECT_EQ(AboutAnimating, 0);
    });
}

TEST_F(About, PlaysByItselfEachTimeUntilATapOrItsEnd) {
    for (int opening = 0; opening < 2; ++opening) {
        constexpr int betweenSteps = 1;
        LogoPieces[0] = betweenSteps;
        Use(commandAbout, [&](OpenDialog& dialog) {
            EXPECT_EQ(LogoPieces[0] % 2, 0) << "it begins anew";
            EXPECT_TRUE(QTest::qWaitFor([] { return LogoPieces[0] > 2; }));
            EndShowByTap(dialog);
            EXPECT_TRUE(dialog.IsOpen()) << "the tap opens no link";
        });
    }
    Use(commandAbout, [](OpenDialog& dialog) { dialog.Tap(controlAboutClose); });
    const int left = LogoPieces[0];
    const QImage screen = handheld->Screen();
    QTest::qWait(60);
    EXPECT_EQ(LogoPieces[0], left) << "the timer ends with the box";
    EXPECT_EQ(handheld->Screen(), screen);
}

// Left and top edges belong to them, right and bottom do not; the button covers a corner of one.
TEST_F(About, LinksOpenInsideTheirAreasOnlyAndHelpTheHelp) {
    constexpr std::pair<RECT, const char*> links[] = {
        {{65, 187, 178, 198}, "contact_us"},
        {{44, 202, 196, 213}, "trademarks_copyrights"},
        {{52, 221, 189, 229}, "http://www.quadrel.example.com"},
    };
    OpenedPages pages;
    Use(commandAbout, [&](OpenDialog& dialog) {
        EndShowByTap(dialog);
        EXPECT_TRUE(pages.Take().empty()) << "a tap at a link, too, is the end of the show";
        for (const auto& [area, page] : links) {
            const auto& [left, top, right, bottom] = area;
            for (const auto& [x, y, opens] : {std::tuple(left, top, true),
                                              {right - 1, top, true},
                                              {right - 1, bottom - 1, true},
                                              {left - 1, top, false},
                                              {left, top - 1, false},
                                              {right, top, false},
                                              {right - 1, bottom, false}}) {
                dialog.TapAt(x, y);
                const auto shown = pages.Take();
                EXPECT_EQ(!shown.empty() && shown[0].find(page) != std::string::npos, opens)
                    << x << ", " << y;
                EXPECT_TRUE(dialog.IsOpen());
            }
        }
    });
    Use(commandHelp, [&](OpenDialog& dialog) {
        for (int time = 0; time < 2; ++time) {
            dialog.Tap(controlHelpOpen);
            EXPECT_EQ(pages.Take(), std::vector<std::string>{""});
        }
    });
}

}  // namespace
