#include "keyboard/keyboard_tap.h"

#include "app/view.h"
#include "keyboard/keyboard_drawing.h"
#include "keyboard/keyboard_keys.h"
#include "platform/windows.h"
#include "play/letter_entry.h"

namespace {

void FlashKey(HWND window, const KeyboardKey& key) {
    const WCHAR letter[] = {static_cast<WCHAR>(key.letter), 0};
    switch (key.kind) {
        case KeyboardKey::Kind::Letter: DrawPressedKey(window, key.place, letter); break;
        case KeyboardKey::Kind::Erase: DrawPressedKey(window, key.place, u" "); break;
        case KeyboardKey::Kind::Ok: DrawPressedKey(window, key.place, u"OK"); break;
        case KeyboardKey::Kind::None: break;
    }
}

void ActOnKey(const KeyboardKey& key) {
    switch (key.kind) {
        case KeyboardKey::Kind::Letter: EnterLetter(key.letter); break;
        case KeyboardKey::Kind::Erase: EraseLetter(); break;
        case KeyboardKey::Kind::Ok: KeyboardVisible = 0; break;
        case KeyboardKey::Kind::None: break;
    }
}

}  // namespace

void KeyboardTap(HWND window, LPARAM point) {
    constexpr DWORD flashMilliseconds = 50;
    const auto packed = static_cast<WPARAM>(point);
    const KeyboardKey key = FindKey(LOWORD(packed), HIWORD(packed));
    FlashKey(window, key);
    Sleep(flashMilliseconds);
    DrawKeyboard(window);
    ActOnKey(key);
    CopyViewToScreen(window);
}
