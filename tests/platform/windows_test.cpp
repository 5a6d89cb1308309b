#include "platform/windows.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtGui/QMouseEvent>
#include <vector>

#include "platform/drawing.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/window/window.h"
#include "platform/text.h"
#include "support/played_board.h"

namespace {

std::vector<WPARAM> ticks;

LRESULT CountTicks(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_TIMER) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    ticks.push_back(wParam);
    if (wParam == 7) {
        KillTimer(window, 7);  // while its own message is handled
    } else if (wParam == 9) {
        PostMessageW(window, WM_TIMER, 1, 0);
        DestroyWindow(window);
    }
    return 0;
}

class Windows : public PlayedBoard {
protected:
    HWND OpenCounter() {
        ticks.clear();
        WNDCLASSW windowClass;
        windowClass.lpfnWndProc = CountTicks;
        windowClass.lpszClassName = u"Counter";
        RegisterClassW(&windowClass);
        return CreateWindowExW(0, u"Counter", u"Counter", 0, CW_USEDEFAULT, CW_USEDEFAULT, 50, 50,
                               nullptr, nullptr, nullptr, nullptr);
    }
    template <typename Condition>
    bool RunUntil(const Condition& condition, int milliseconds) {
        const QDeadlineTimer deadline(milliseconds);
        while (!condition() && !deadline.hasExpired()) {
            handheld->Settle();
        }
        return condition();
    }
    static long Count(WPARAM id) {
        return std::count(ticks.begin(), ticks.end(), id);
    }
    // A busy machine may take its time.
    bool ComesToTick(WPARAM id, long count) {
        return RunUntil([=] { return Count(id) >= count; }, 5000);
    }
    bool StaysSilent() {
        ticks.clear();
        return !RunUntil([] { return !ticks.empty(); }, 30);
    }
};

TEST_F(Windows, TimersTickUntilTheyAreKilled) {
    HWND window = OpenCounter();
    EXPECT_EQ(SetTimer(window, 3, 5, nullptr), 3u);
    SetTimer(window, 7, 5, nullptr);
    EXPECT_TRUE(ComesToTick(7, 1));
    EXPECT_TRUE(ComesToTick(3, 4));
    EXPECT_EQ(Count(7), 1);
    EXPECT_TRUE(KillTimer(window, 3));
    EXPECT_FALSE(KillTimer(window, 3));
    EXPECT_TRUE(StaysSilent());
    DestroyWindow(window);
}

// A window that goes away inside its timer's message takes its timers and messages along.
TEST_F(Windows, TimersAndMessagesEndWithTheirWindow) {
    HWND window = OpenCounter();
    SetTimer(window, 3, 5, nullptr);
    SetTimer(window, 9, 12, nullptr);
    EXPECT_TRUE(ComesToTick(9, 1));
    EXPECT_EQ(Count(1), 0);
    EXPECT_TRUE(StaysSilent());
    EXPECT_FALSE(IsLiveWindow(window));
    EXPECT_EQ(SetTimer(window, 3, 5, nullptr), 0u);
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_FALSE(PostMessageW(window, WM_TIMER, 1, 0));
}

class PaintCounter : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

TEST_F(Windows, SleepShowsWhatWasDrawnAndHandlesNoInput) {
    PaintCounter counter;
    MainWindow->widget->installEventFilter(&counter);
    HDC context = GetDC(MainWindow);
    Rectangle(context, 10, 10, 50, 50);
    ReleaseDC(MainWindow, context);
    EXPECT_EQ(counter.paints, 0);
    const QPointF place(20, 20);
    QCoreApplication::postEvent(
        MainWindow->widget, new QMouseEvent(QEvent::MouseButtonPress, place, place, Qt::LeftButton,
                                            Qt::LeftButton, Qt::NoModifier));
    QElapsedTimer clock;
    clock.start();
    Sleep(30);
    EXPECT_GE(clock.elapsed(), 30);
    EXPECT_GE(counter.paints, 1);
    EXPECT_FALSE(MessagesWaiting());
    QCoreApplication::removePostedEvents(MainWindow->widget, 0);
}

TEST(Text, OfPuzzlesIsWidenedByWhatItsBytesAre) {
    const std::pair<std::string, std::u16string> cases[] = {
        {"na\xC3\xAFve", u"na\u00EFve"},
        {"na\xEFve", u"na\u00EFve"},
        {"\x93quoted\x94 \x85 \x80", u"\u201Cquoted\u201D \u2026 \u20AC"},
        {"\xE2\x82\xAC and \xF0\x9F\x98\x80", u"\u20AC and \U0001F600"},
        {"overlong \xC0\xAF", u"overlong \u00C0\u00AF"},
        {"surrogate \xED\xA0\x80", u"surrogate \u00ED\u00A0\u20AC"},
        {"both \xC3\xAF and \xEF", u"both \u00C3\u00AF and \u00EF"},
        {"", u""}};
    for (const auto& [bytes, wide] : cases) {
        EXPECT_EQ(WidenText(bytes), wide) << bytes;
    }
    EXPECT_EQ(NarrowPath(WidenPath("\\R\xC3\xA4tsel \xF0\x9F\xA7\xA9.puz")),
              "\\R\xC3\xA4tsel \xF0\x9F\xA7\xA9.puz");
    EXPECT_EQ(WidenPath("broken \xFF"), u"broken \uFFFD");
    EXPECT_EQ(DecimalText(-12), u"-12");
}

}  // namespace
