// The least that a program of this toolkit can do: show an empty window, as large as the game's,
// and end after its first frame. start_time measures it beside the game.
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <algorithm>

#include "frame_end.h"

namespace {

class EmptyWindow : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        EndAfterThisFrame();
    }
};

}  // namespace

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    EmptyWindow window;
    const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
    const double fit = std::min(desktop.width() * 0.9 / 240, desktop.height() * 0.9 / 320);
    window.resize(QSize(240, 320) * std::max(static_cast<int>(fit), 1));
    window.show();
    return QApplication::exec();
}
