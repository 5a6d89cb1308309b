// A surface renders late, only what changed, and forgets what is hidden. All of that must never
// show: against a picture that draws every mark at once and forgets nothing. What a text mark shows
// is in pictures.

#include <array>
#include <random>

#include "platform/qt/surface/mark_painter.h"
#include "support/handheld.h"
#include "support/looks.h"

namespace {

constexpr double ratios[] = {1, 1.37, 2, 2.5, 3};
constexpr UINT centred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
constexpr UINT formats[] = {centred, DT_WORDBREAK, 0, DT_SINGLELINE};
constexpr QRgb paper = 0xFFFFFFFF;
constexpr QRgb under = 0xFF00FF00;

struct PlainPicture {
    int width = 200;
    int height = 120;
    std::vector<std::function<void(QPainter&, const Scale&)>> steps;

    QImage Image(const Scale& scale) const {
        QImage image(scale.At(width), scale.At(height), QImage::Format_RGB32);
        image.fill(paper);
        QPainter painter(&image);
        for (const auto& step : steps) {
            step(painter, scale);
        }
        return image;
    }
    void Add(const Mark& mark) {
        steps.push_back(
            [mark](QPainter& painter, const Scale& scale) { PaintMark(painter, scale, mark); });
    }
    // What lies outside of the source is white.
    void AddCopy(const RECT& copied, const PlainPicture& from, POINT source) {
        steps.push_back([=](QPainter& painter, const Scale& scale) {
            const QRect area = scale.Area(copied);
            painter.setClipRect(area);
            painter.fillRect(area, Qt::white);
            painter.drawImage(area.topLeft() - QPoint(scale.At(source.x), scale.At(source.y)),
                              from.Image(scale));
            painter.setClipping(false);
        });
    }
};

// What makes up a mark: its kind, its area, two colours and more. Two marks that differ in one of
// these are told apart by a careful eye only.
using Genes = std::array<int, 10>;

class Surfaces : public testing::TestWithParam<unsigned> {
protected:
    Surfaces() {
        // Areas return with other contents, as those of cells do, and many edges fall together.
        for (RECT& area : areas) {
            const int left = Below(24) * 9 - 9;
            const int top = Below(15) * 9 - 9;
            area = {left, top, left + Below(9) * 9, top + Below(8) * 9 + Below(2)};
        }
        for (Genes& genes : board) {
            genes = AnyGenes();
        }
    }
    ~Surfaces() override {
        Surface::SetRatioOfAll(1);
    }

    int Below(int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    }
    Genes AnyGenes() {
        Genes genes;
        std::generate(genes.begin(), genes.end(), [this] { return Below(1000); });
        return genes;
    }
    Mark MarkOf(const Genes& genes) const {
        static const char16_t* const texts[] = {u"Ng", u"Nj", u"N g"};
        const auto [kind, place, ink, ground, face, bold, height, text, format, opaque] = genes;
        RECT area = areas[static_cast<std::size_t>(place % 8)];
        const QRgb color = qRgb(ink % 4 * 80, ink % 7 * 40, 0);
        const QRgb second = qRgb(0, ground % 4 * 80, ground % 7 * 40);
        switch (kind % 8) {
            case 0: return FillMark{area, color};
            case 1: return FrameMark{area, color, second, QSize(6, 6) * (face % 3)};
            case 2: area.right = area.left + 1; return LineMark{area, color};
            case 3: area.bottom = area.top + 1; return LineMark{area, color};
            case 4: return ArtMark{area, face % 2 == 0 ? "menu_main.svg" : "menu_open.svg"};
            case 5: return FrameMark{area, color, second, QSize()};
        }
        const FontChoice font{FontChoice::Face(face % 2), bold % 2 == 0, height % 25 + 5.0};
        return TextMark{area,  texts[text % 3], formats[format % 4], font, color, opaque % 2 == 0,
                        second};
    }
    void Draw(const Mark& mark) {
        surface.Draw(mark);
        plain.Add(mark);
    }
    void CopyOther() {
        Genes genes = AnyGenes();
        genes[4] = 0;  // no smooth corners: where an edge cuts them they are a shade different
        const Mark mark = Below(3) == 0 ? FillMark{{0, 0, 200, 120}, under} : MarkOf(genes);
        other.Draw(mark);
        plainOther.Add(mark);
        const POINT source{Below(30) - 10, Below(30) - 10};
        const RECT area = areas[std::size_t(Below(8))];
        surface.Copy(area, other, source);
        plain.AddCopy(area, plainOther, source);
    }
    // The board as the program paints it: everything anew, or what changed alone.
    void ChangeOneGene() {
        const auto changed = static_cast<std::size_t>(Below(12));
        board[changed][static_cast<std::size_t>(Below(10))] = Below(1000);
        if (Below(4) != 0) {
            Draw(MarkOf(board[changed]));
            return;
        }
        Draw(FillMark{{0, 0, plain.width, plain.height}, paper});
        for (const Genes& genes : board) {
            Draw(MarkOf(genes));
        }
    }
    // So many that those which are hidden are forgotten.
    void Scatter() {
        for (int i = 0; i < 300; ++i) {
            const int left = Below(plain.width);
            Draw(FillMark{{left, i % 99, left + 3, i % 99 + 3}, qRgb(Below(250), 0, 0)});
        }
    }
    void Resize() {
        plain.Add(FillMark{{plain.width, 0, 999, 999}, paper});
        plain.Add(FillMark{{0, plain.height, 999, 999}, paper});
        plain.width = 140 + Below(7) * 20;
        plain.height = 75 + Below(7) * 15;
        surface.Resize(plain.width, plain.height);
    }
    void ExpectRight() {
        const Scale scale = surface.PresentScale();
        RECT area = areas[std::size_t(Below(8))];
        area = Below(2) == 0 ? RECT{0, 0, 999, 999}
                             : RECT{area.left, area.top, area.right + 1, area.bottom + 1};
        const QRect seen = scale.Area(area);
        EXPECT_EQ(surface.ImageWithin(area).copy(seen), plain.Image(scale).copy(seen))
            << scale.ratio;
    }

    std::mt19937 random{GetParam()};
    std::array<RECT, 8> areas;
    std::array<Genes, 12> board;
    PlainPicture plain;
    PlainPicture plainOther;
    Surface surface{plain.width, plain.height};
    Surface other{plain.width, plain.height};
};

TEST_P(Surfaces, ShowWhatDrawingEveryMarkWouldShow) {
    for (int step = 0; step < 150 && !HasFailure(); ++step) {
        SCOPED_TRACE(step);
        switch (Below(14)) {
            case 0:
            case 1: CopyOther(); break;
            case 2: Surface::SetRatioOfAll(ratios[Below(5)]); break;
            case 3: Below(4) == 0 ? Scatter() : Resize(); break;
            case 4:
            case 5: Draw(MarkOf(AnyGenes())); break;
            default: ChangeOneGene();
        }
        if (Below(2) == 0) {
            ExpectRight();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Surfaces, testing::Range(1u, 27u));

// In boxes of every format, too small for some; under them a grey that only opaque texts hide.
TEST(Texts, LookAsRecordedAtEveryRatio) {
    static const char16_t* const texts[] = {u"H", u"1234567",
                                            u"\x01Two words and \u00C5ngstr\u00F6m",
                                            u"Considerable indescribable\tWj\u00C7g|\nline"};
    for (double ratio : ratios) {
        Surface surface(240, 320);
        Surface::SetRatioOfAll(ratio);
        for (int box = 0; box < 32; ++box) {
            const LONG left = box % 4 * 60;
            const LONG top = box / 4 * 40;
            const RECT area{left, top, left + 58, top + 20 + box % 3 * 9};
            const FontChoice font{FontChoice::Face(box / 8 % 2), box % 2 == 1, 8.0 + box % 5 * 2};
            surface.Draw(FillMark{{left, top + 4, left + 29, top + 36}, 0xFFBBBBBB});
            surface.Draw(TextMark{area, texts[box / 8], formats[box / 2 % 4], font, 0xFF000000,
                                  box % 2 == 0, under});
        }
        std::ostringstream name;
        name << "Texts at " << ratio;
        ExpectLooksAsRecorded(surface.Image(), name.str());
    }
    Surface::SetRatioOfAll(1);
}

}  // namespace
