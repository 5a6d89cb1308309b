// A surface renders late, only what changed, and forgets what is hidden. All of that must never
// show: against a picture that draws every mark at once and forgets nothing.
#include "platform/qt/surface/surface.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <variant>
#include <vector>

#include "platform/drawing.h"
#include "platform/qt/surface/mark_painter.h"

namespace {

constexpr int width = 200;
constexpr int height = 120;

struct PlainPicture;

struct PlainCopy {
    RECT area;
    POINT source;
    std::shared_ptr<const PlainPicture> from;
};

struct PlainPicture {
    std::vector<std::variant<Mark, PlainCopy>> marks;

    QImage Image(const Scale& scale) const {
        QImage image(scale.At(width), scale.At(height), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        for (const auto& mark : marks) {
            if (const auto* copy = std::get_if<PlainCopy>(&mark)) {
                PaintCopy(painter, scale, *copy);
            } else {
                PaintMark(painter, scale, std::get<Mark>(mark));
            }
        }
        return image;
    }

    // What lies outside of the source is white.
    static void PaintCopy(QPainter& painter, const Scale& scale, const PlainCopy& copy) {
        const QRect area = scale.Area(copy.area);
        const QPoint source(scale.At(copy.source.x), scale.At(copy.source.y));
        painter.setClipRect(area);
        painter.fillRect(area, Qt::white);
        painter.drawImage(area.topLeft() - source, copy.from->Image(scale));
        painter.setClipping(false);
    }
};

class MarkMaker {
public:
    explicit MarkMaker(std::mt19937& its) : random(its) {
    }
    int Below(unsigned limit) {
        return static_cast<int>(random() % limit);
    }
    // Areas return with other contents, as those of cells do.
    RECT Area() {
        if (areas.size() < 6 || Below(3) == 0) {
            areas.push_back(NewArea());
        }
        return areas[static_cast<std::size_t>(Below(static_cast<unsigned>(areas.size())))];
    }
    // Many edges fall together.
    RECT NewArea() {
        const int step = Below(2) == 0 ? 1 : 9;
        const int left = Below(width + 20) / step * step - 9;
        const int top = Below(height + 20) / step * step - 9;
        return {left, top, left + Below(70) / step * step, top + Below(60) / step * step};
    }
    QRgb Color() {
        return 0xFF000000 | static_cast<QRgb>(Below(0x1000000));
    }
    Mark Line() {
        RECT area = Area();
        (Below(2) == 0 ? area.right : area.bottom) = Below(2) == 0 ? area.left + 1 : area.top + 1;
        return LineMark{area, Color()};
    }
    Mark Any() {
        const FontChoice font{FontChoice::Face::System, Below(2) == 0, Below(30) + 1.0};
        switch (Below(6)) {
            case 0: return FillMark{Area(), Color()};
            case 1: return FrameMark{Area(), Color(), Color(), QSize(6, 6)};
            case 2: return Line();
            case 3:
                return TextMark{Area(), u"Ng",   DT_CENTER | DT_VCENTER | DT_SINGLELINE,
                                font,   Color(), Below(2) == 0,
                                Color()};
            default: return FrameMark{Area(), Color(), Color(), QSize()};
        }
    }

private:
    std::mt19937& random;
    std::vector<RECT> areas;
};

class Surfaces : public testing::TestWithParam<unsigned> {
protected:
    Surfaces() {
        Surface::SetRatioOfAll(1);
    }
    ~Surfaces() override {
        Surface::SetRatioOfAll(1);
    }

    void Draw(const Mark& mark) {
        surface.Draw(mark);
        plain.marks.emplace_back(mark);
    }
    void DrawOnOther(const Mark& mark) {
        other.Draw(mark);
        plainOther.marks.emplace_back(mark);
    }
    void CopyOther(const RECT& area, POINT source) {
        surface.Copy(area, other, source);
        plain.marks.emplace_back(
            PlainCopy{area, source, std::make_shared<PlainPicture>(plainOther)});
    }
    // Where the first difference is, for the message.
    testing::AssertionResult IsRight() {
        const QImage expected = plain.Image(surface.PresentScale());
        const QImage& actual = surface.Image();
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                if (actual.pixel(x, y) != expected.pixel(x, y)) {
                    return testing::AssertionFailure()
                           << "pixel " << x << ", " << y << " at ratio "
                           << surface.PresentScale().ratio << " after " << plain.marks.size();
                }
            }
        }
        return testing::AssertionSuccess();
    }

    Surface surface{width, height};
    Surface other{width, height};
    PlainPicture plain;
    PlainPicture plainOther;
};

// Marks come from a small pool, so that the same ones return in other company: what a surface must
// see as unchanged, and what not.
TEST_P(Surfaces, ShowWhatDrawingEveryMarkWouldShow) {
    constexpr double ratios[] = {1, 1.37, 2, 2.5, 3};
    std::mt19937 random(GetParam());
    MarkMaker maker(random);
    std::vector<Mark> pool;
    for (int i = 0; i < 25; ++i) {
        pool.push_back(maker.Any());
    }
    for (int step = 0; step < 400; ++step) {
        const Mark& mark = pool[static_cast<std::size_t>(maker.Below(25))];
        const int choice = maker.Below(100);
        if (choice < 12) {
            Draw(FillMark{{0, 0, width, height}, 0xFFFFFFFF});
        } else if (choice < 15) {
            CopyOther(maker.Area(), {maker.Below(30) - 10, maker.Below(30) - 10});
        } else if (choice < 20) {
            DrawOnOther(mark);
        } else if (choice < 40) {
            ASSERT_TRUE(IsRight()) << "step " << step;
        } else if (choice < 42) {
            Surface::SetRatioOfAll(ratios[maker.Below(5)]);
        } else {
            Draw(mark);
        }
    }
    ASSERT_TRUE(IsRight());
}

// A copy makes a surface drop what is hidden; at another ratio a frame hides a little less.
TEST_P(Surfaces, RememberAllThatCanBeSeenAtAnotherRatio) {
    std::mt19937 random(GetParam() + 1000);
    MarkMaker maker(random);
    Draw(FillMark{{0, 0, width, height}, 0xFFFFFFFF});
    for (int i = 0; i < 8; ++i) {
        const RECT area = maker.Area();
        Draw(FillMark{area, maker.Color()});
        Draw(maker.Any());
        Draw(FrameMark{area, maker.Color(), maker.Color(), QSize()});
    }
    CopyOther({0, 0, 1, 1}, {0, 0});
    for (double ratio : {3.0, 1.37, 2.5, 1.0}) {
        Surface::SetRatioOfAll(ratio);
        EXPECT_TRUE(IsRight());
    }
}

// Of many marks those that are hidden are forgotten, drawn yet or not.
TEST_P(Surfaces, TakeManySmallMarks) {
    std::mt19937 random(GetParam() + 4000);
    MarkMaker maker(random);
    for (bool anew : {true, false, true}) {
        if (anew) {
            Draw(FillMark{{0, 0, width, height}, maker.Color()});
        }
        for (int i = 0; i < 600; ++i) {
            const int left = maker.Below(width);
            const int top = maker.Below(height);
            Draw(FillMark{{left, top, left + 3, top + 3}, maker.Color()});
        }
        ASSERT_TRUE(IsRight());
    }
}

// In so many places, like the squares of a chessboard, that they are rendered as one area.
TEST_P(Surfaces, TakeScatteredMarks) {
    constexpr int square = 24;
    std::mt19937 random(GetParam() + 5000);
    MarkMaker maker(random);
    for (int step = 0; step < 3; ++step) {
        Draw(FillMark{{0, 0, width, height}, 0xFFFFFFFF});
        for (int row = 0; row < height / square; ++row) {
            for (int col = row % 2; col < width / square; col += 2) {
                const int left = col * square + 8;
                const int top = row * square + 8;
                Draw(FillMark{{left, top, left + 4, top + 4}, maker.Color()});
            }
        }
        ASSERT_TRUE(IsRight());
    }
}

// Before anybody asks for pixels, the first frame is painted from the marks, copies among them.
TEST_P(Surfaces, PaintTheirFirstFrameAsTheirPixelsAre) {
    constexpr QPoint place(7, 5);
    std::mt19937 random(GetParam() + 2000);
    MarkMaker maker(random);
    Surface::SetRatioOfAll(GetParam() % 2 == 0 ? 3 : 1.37);
    for (int i = 0; i < 30; ++i) {
        Draw(maker.Any());
        DrawOnOther(maker.Any());
        if (maker.Below(6) == 0) {
            CopyOther(maker.Area(), {maker.Below(30) - 10, maker.Below(30) - 10});
        }
    }
    const QSize size = plain.Image(surface.PresentScale()).size();
    QImage frame(size + QSize(20, 20), QImage::Format_RGB32);
    QPainter painter(&frame);
    painter.setClipRect(QRect(place, size));
    painter.translate(place);
    surface.Paint(painter);
    painter.end();
    EXPECT_TRUE(IsRight());
    EXPECT_EQ(frame.copy(QRect(place, size)), surface.Image());
}

TEST_P(Surfaces, KeepTheirContentAndAreWhiteWhereTheyAreNew) {
    std::mt19937 random(GetParam() + 3000);
    MarkMaker maker(random);
    for (int i = 0; i < 20; ++i) {
        Draw(maker.Any());
    }
    const QImage before = surface.Image().copy();
    surface.Resize(width, height - 30);
    EXPECT_EQ(surface.Image(), before.copy(0, 0, width, height - 30));
    surface.Resize(width, height + 10);
    EXPECT_EQ(surface.Image().copy(0, 0, width, height - 30),
              before.copy(0, 0, width, height - 30));
    EXPECT_EQ(surface.Image().pixel(5, height + 5), 0xFFFFFFFF);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Surfaces, testing::Range(1u, 9u));

}  // namespace
