// Static texts and pictures.
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <algorithm>

#include "platform/dialogs.h"
#include "platform/qt/common/find_by_id.h"
#include "platform/qt/controls/control.h"
#include "platform/qt/look/art.h"
#include "platform/qt/surface/drawing_objects.h"

namespace {

struct StaticText : Control {
    StaticText(HWND owner, const ControlResource& described, QWidget* parent)
        : Control(owner, described) {
        auto* label = new QLabel(parent);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label->setWordWrap(Lines() > 1);
        Show(label);
        SetText(QString::fromUtf16(described.text));
    }

    QLabel* Label() const {
        return static_cast<QLabel*>(widget.data());
    }
    QString Text() const override {
        return Label()->text();
    }
    void SetText(const QString& text) override {
        Label()->setText(text);
    }

    void Place() override {
        PaintBackground();
        Control::Place();
        const int needed = Lines() > 1 ? 0 : widget->sizeHint().width();
        widget->resize(std::max(widget->width(), needed),
                       std::max(widget->height(), widget->fontMetrics().height()));
    }

private:
    int Lines() const {
        constexpr int unitsPerLine = 8;
        return resource.height / unitsPerLine;
    }

    void PaintBackground() {
        HGDIOBJ brush = BrushFor(WM_CTLCOLORSTATIC);
        widget->setAutoFillBackground(brush != nullptr);
        if (brush != nullptr) {
            QPalette palette = widget->palette();
            palette.setColor(QPalette::Window, QColor(brush->color));
            widget->setPalette(palette);
        }
    }
};

class PictureWidget : public QWidget {
public:
    PictureWidget(QWidget* parent, const ArtResource* picture) : QWidget(parent), art(picture) {
    }

protected:
    void paintEvent(QPaintEvent*) override {
        const double ratio = devicePixelRatioF();
        QImage image = RenderArt(art->file, size() * ratio);
        image.setDevicePixelRatio(ratio);
        QPainter(this).drawImage(QPoint(), image);
    }

private:
    const ArtResource* art;
};

struct PictureBox : Control {
    PictureBox(HWND owner, const ControlResource& described, QWidget* parent,
               const ArtResource* its)
        : Control(owner, described), art(its) {
        Show(new PictureWidget(parent, its));
    }

    // A picture keeps its own size, wherever the place ends.
    RECT Area() const override {
        RECT area = Control::Area();
        area.right = area.left + art->width;
        area.bottom = area.top + art->height;
        return area;
    }

    const ArtResource* art;
};

}  // namespace

std::unique_ptr<Control> MakeStatic(HWND dialog, const ControlResource& resource, QWidget* parent) {
    return std::make_unique<StaticText>(dialog, resource, parent);
}

std::unique_ptr<Control> MakePicture(HWND dialog, const ControlResource& resource, QWidget* parent,
                                     HINSTANCE instance) {
    const ArtResource* art = FindById(instance->art, resource.bitmap);
    if (art == nullptr) {
        return MakeStatic(dialog, resource, parent);
    }
    return std::make_unique<PictureBox>(dialog, resource, parent, art);
}
