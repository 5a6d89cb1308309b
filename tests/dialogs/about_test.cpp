#include "dialogs/about.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>

#include "dialogs/about_drawing.h"
#include "platform/qt/window/window.h"
#include "resources/ids.h"
#include "support/dialogs.h"
#include "support/menus.h"
#include "support/opened_pages.h"
#include "support/played_board.h"

namespace {

class About : public PlayedBoard {
protected:
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDialog(
            *handheld, [this] { handheld->PressButton("About Quadrel"); }, use);
    }
    // The host's time does not pass meanwhile.
    void Tick() {
        SendMessageW(TopWindow(), WM_TIMER, 101, 0);
    }
    void Wait(int milliseconds) {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < milliseconds) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        }
    }
};

std::vector<int> Pieces() {
    return {LogoPieces[0], LogoPieces[1], LogoPieces[2]};
}

// What is drawn in the area of the frame stays where it is in the picture, which may add to it. The
// edges of curves may differ by a trace.
void ExpectKept(const QImage& frame, const QImage& picture, const QRect& area) {
    constexpr int trace = 4;
    int drawn = 0;
    int changed = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb before = frame.pixel(x, y);
            if (before != qRgb(255, 255, 255)) {
                ++drawn;
                changed += std::abs(qGray(before) - qGray(picture.pixel(x, y))) > trace;
            }
        }
    }
    EXPECT_GT(drawn, 200) << area.x() << ", " << area.y();
    EXPECT_EQ(changed, 0) << area.x() << ", " << area.y();
}

TEST_F(About, ThePiecesSlideToWhereTheLogoOfThePictureIs) {
    Use([this](OpenDialog& dialog) {
        for (int step = 1; step <= 18; ++step) {
            Tick();
            EXPECT_EQ(Pieces(), (std::vector<int>{std::min(2 * step, 22), std::min(4 * step, 72),
                                                  std::max(240 - 3 * step, 192)}));
            EXPECT_EQ(AboutAnimating, 1);
        }
        const QImage lastFrame = dialog.Drawn();
        Tick();
        EXPECT_EQ(AboutAnimating, 0);
        const QImage picture = dialog.Drawn();
        ExpectKept(lastFrame, picture, {22, 102, 62, 91});
        ExpectKept(lastFrame, picture, {102, 72, 64, 84});
        ExpectKept(lastFrame, picture, {192, 102, 27, 84});
    });
}

TEST_F(About, ATapSkipsToThePictureAndASecondOpeningPlaysAgain) {
    for (int opening = 0; opening < 2; ++opening) {
        Use([this](OpenDialog& dialog) {
            EXPECT_EQ(Pieces(), (std::vector<int>{0, 0, 240}));
            Tick();
            dialog.TapAt(100, 190);
            EXPECT_EQ(AboutAnimating, 0);
            EXPECT_TRUE(dialog.IsOpen());
            const QImage picture = dialog.Drawn();
            Wait(80);
            EXPECT_EQ(dialog.Drawn(), picture);
        });
    }
}

TEST_F(About, TheTimerPlaysItAndEndsWithTheBox) {
    Use([this](OpenDialog& dialog) {
        Wait(200);
        EXPECT_GT(LogoPieces[0], 0);
        dialog.Tap(controlAboutClose);
        EXPECT_FALSE(dialog.IsOpen());
        EXPECT_EQ(AboutAnimating, 1);
    });
    const std::vector<int> atTheEnd = Pieces();
    const QImage screen = handheld->Screen();
    Wait(120);
    EXPECT_EQ(Pieces(), atTheEnd);
    EXPECT_EQ(handheld->Screen(), screen);
}

struct Corner {
    POINT inside;
    POINT outside;
    const char* opens;
};

// The four corners of the three areas: left and top edges belong to them, right and bottom do not.
constexpr Corner corners[] = {
    {{65, 187}, {64, 187}, "contact_us"},
    {{177, 197}, {178, 197}, "contact_us"},
    {{65, 197}, {65, 198}, "contact_us"},
    {{177, 187}, {177, 186}, "contact_us"},
    {{44, 202}, {43, 202}, "trademarks_copyrights"},
    {{195, 212}, {196, 212}, "trademarks_copyrights"},
    {{44, 212}, {44, 213}, "trademarks_copyrights"},
    {{195, 202}, {195, 201}, "trademarks_copyrights"},
    {{188, 228}, {189, 228}, "http://www.quadrel.example.com"},
    {{188, 228}, {188, 229}, "http://www.quadrel.example.com"},
    {{70, 221}, {70, 220}, "http://www.quadrel.example.com"},
};

TEST_F(About, LinksOpenInsideTheirAreasOnly) {
    OpenedPages pages;
    Use([&](OpenDialog& dialog) {
        dialog.TapAt(100, 190);
        EXPECT_EQ(pages.Take(), std::vector<std::string>());
        for (const Corner& corner : corners) {
            dialog.TapAt(corner.outside.x, corner.outside.y);
            EXPECT_EQ(pages.Take(), std::vector<std::string>()) << corner.outside.x;
            dialog.TapAt(corner.inside.x, corner.inside.y);
            const std::vector<std::string> opened = pages.Take();
            ASSERT_EQ(opened.size(), 1u) << corner.inside.x;
            EXPECT_NE(opened[0].find(corner.opens), std::string::npos) << opened[0];
            EXPECT_TRUE(dialog.IsOpen());
        }
    });
}

TEST_F(About, QuickHelpOpensTheHelpAsOftenAsAsked) {
    OpenedPages pages;
    const auto open = [this] { ChooseFromBar(*handheld, "Main Menu", {"Help"}); };
    UseDialog(*handheld, open, [&](OpenDialog& dialog) {
        for (int time = 0; time < 2; ++time) {
            dialog.Tap(controlHelpOpen);
            EXPECT_EQ(pages.Take(), std::vector<std::string>{""});
            EXPECT_TRUE(dialog.IsOpen());
        }
    });
}

}  // namespace
