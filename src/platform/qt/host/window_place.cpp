#include "platform/qt/host/window_place.h"

#include <QtCore/QSettings>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include "platform/qt/files/device_paths.h"

namespace {

QString FileOfPlaces() {
    return ProgramFolderOnHost() + "/window.ini";
}

// With a screen plugged in or taken away another place is the right one.
QString Screens() {
    QStringList names;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->geometry();
        names << QString("%1x%2+%3+%4")
                     .arg(area.width())
                     .arg(area.height())
                     .arg(area.x())
                     .arg(area.y());
    }
    return names.join(' ');
}

}  // namespace

void RestorePlace(QWidget& window) {
    const QSettings places(FileOfPlaces(), QSettings::IniFormat);
    window.restoreGeometry(places.value(Screens()).toByteArray());
}

void KeepPlace(const QWidget& window) {
    QSettings places(FileOfPlaces(), QSettings::IniFormat);
    places.setValue(Screens(), window.saveGeometry());
}
