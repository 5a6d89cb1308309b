#include "platform/qt/window/handed_files.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "platform/qt/files/device_paths.h"
#include "platform/qt/window/window.h"
#include "platform/shell.h"

struct HandedFiles {
    QStringList paths;
};

namespace {

QStringList waitingFiles;

}  // namespace

void HandOver(const QStringList& files) {
    waitingFiles += files;
}

const QStringList& WaitingFiles() {
    return waitingFiles;
}

void TellWaitingFiles() {
    if (!waitingFiles.isEmpty() && BottomWindow() != nullptr) {
        auto* files = new HandedFiles{std::exchange(waitingFiles, {})};
        PostMessageW(BottomWindow(), WM_DROPFILES, reinterpret_cast<WPARAM>(files), 0);
    }
}

UINT DragQueryFileW(HDROP files, UINT index, WCHAR* buffer, UINT size) {
    if (index == numberOfFiles) {
        return static_cast<UINT>(files->paths.size());
    }
    const std::optional<std::u16string> path = ToDevicePath(files->paths.value(index));
    if (!path || path->size() >= size) {
        return 0;
    }
    *std::copy(path->begin(), path->end(), buffer) = u'\0';
    return static_cast<UINT>(path->size());
}

void DragFinish(HDROP files) {
    delete files;
}
