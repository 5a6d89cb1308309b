// The game's own start, ended right after its first frame; start_time measures it beside an empty
// window.
#include <QtCore/QEvent>

#include "frame_end.h"
#include "platform/qt/host/client_view.h"
#include "platform/qt/process/bring_up.h"

namespace {

class FrameWatcher : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && qobject_cast<ClientView*>(object) != nullptr) {
            EndAfterThisFrame();
        }
        return false;
    }
};

}  // namespace

int main(int argumentCount, char** arguments) {
    const auto handheld = BringHandheldUp(argumentCount, arguments);
    FrameWatcher watcher;
    handheld->installEventFilter(&watcher);
    return RunProgram();
}
