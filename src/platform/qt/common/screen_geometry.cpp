#include "platform/qt/common/screen_geometry.h"

#include <QtCore/QtMath>
#include <algorithm>

#include "platform/qt/common/scale.h"
#include "platform/qt/common/screen_layout.h"

namespace {

struct Geometry {
    double magnification = 1;
    double deviceRatio = 1;
    QPointF origin;  // of the screen, in the host's window
};

Geometry geometry;

}  // namespace

void FitScreenInto(QSizeF window, double deviceRatio) {
    const double magnification =
        std::min(window.width() / screenWidth, window.height() / screenHeight);
    const QSizeF screen(screenWidth * magnification, screenHeight * magnification);
    // On a whole device pixel, so that nothing on the screen is blurred.
    const auto atPixel = [deviceRatio](double free) {
        return qFloor(free / 2 * deviceRatio) / deviceRatio;
    };
    geometry = {
        magnification,
        deviceRatio,
        {atPixel(window.width() - screen.width()), atPixel(window.height() - screen.height())}};
}

double ScreenMagnification() {
    return geometry.magnification;
}

double ScreenRatio() {
    return geometry.magnification * geometry.deviceRatio;
}

QRectF ExactPlace(const RECT& area) {
    const QRect device = Scale{ScreenRatio()}.Area(area);
    return QRectF(geometry.origin + QPointF(device.topLeft()) / geometry.deviceRatio,
                  QSizeF(device.size()) / geometry.deviceRatio);
}

POINT LogicalPoint(QPointF point) {
    const QPointF logical = (point - geometry.origin) / geometry.magnification;
    return {qFloor(logical.x()), qFloor(logical.y())};
}
