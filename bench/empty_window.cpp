// The least that a program of this toolkit can do: show an empty window and end after its first
// frame. start_time measures it beside the game.
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <cstdlib>

namespace {

class EmptyWindow : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QTimer::singleShot(0, [] { std::_Exit(0); });
    }
};

}  // namespace

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    EmptyWindow window;
    window.resize(480, 640);
    window.show();
    return QApplication::exec();
}
