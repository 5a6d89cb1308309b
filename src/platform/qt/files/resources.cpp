// Strings, dialogs and icons by number.
#include "platform/resources.h"

#include <deque>
#include <string_view>

#include "platform/qt/common/find_by_id.h"
#include "platform/qt/look/art.h"
#include "platform/qt/look/icon_object.h"

int LoadStringW(HINSTANCE instance, UINT id, WCHAR* buffer, int bufferSize) {
    const StringResource* found = FindById(instance->strings, static_cast<int>(id));
    if (found == nullptr || bufferSize < 1) {
        return 0;
    }
    std::u16string_view text(found->text);
    text = text.substr(0, static_cast<size_t>(bufferSize) - 1);
    buffer[text.copy(buffer, text.size())] = 0;
    return static_cast<int>(text.size());
}

HRSRC FindResourceW(HINSTANCE instance, int id, int type) {
    return type == RT_DIALOG ? FindById(instance->dialogs, id) : nullptr;
}

HGLOBAL LoadResource(HINSTANCE, HRSRC resource) {
    return resource;
}

HICON LoadIconW(HINSTANCE instance, int id) {
    // Loaded icons are shared and live as long as the program.
    static std::deque<IconObject> icons;
    const ArtResource* found = FindById(instance->icons, id);
    if (found == nullptr) {
        return nullptr;
    }
    icons.push_back({found});
    return &icons.back();
}

QIcon ToQIcon(HICON icon) {
    QIcon result;
    for (int size : {16, 32, 64, 128}) {
        result.addPixmap(QPixmap::fromImage(RenderArt(icon->art->file, {size, size})));
    }
    return result;
}
