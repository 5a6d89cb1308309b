#include "platform/qt/input/key_codes.h"

#include <QtGui/QKeyEvent>
#include <map>
#include <string_view>

#include "platform/windows.h"

namespace {

int NamedKey(int key) {
    static const std::map<int, int> codes = {
        {Qt::Key_Backspace, VK_BACK}, {Qt::Key_Tab, VK_TAB},       {Qt::Key_Backtab, VK_TAB},
        {Qt::Key_Return, VK_RETURN},  {Qt::Key_Enter, VK_RETURN},  {Qt::Key_Escape, VK_ESCAPE},
        {Qt::Key_Space, VK_SPACE},    {Qt::Key_PageUp, VK_PRIOR},  {Qt::Key_PageDown, VK_NEXT},
        {Qt::Key_End, VK_END},        {Qt::Key_Home, VK_HOME},     {Qt::Key_Left, VK_LEFT},
        {Qt::Key_Up, VK_UP},          {Qt::Key_Right, VK_RIGHT},   {Qt::Key_Down, VK_DOWN},
        {Qt::Key_Insert, VK_INSERT},  {Qt::Key_Delete, VK_DELETE},
    };
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return VK_F1 + key - Qt::Key_F1;
    }
    const auto found = codes.find(key);
    return found == codes.end() ? 0 : found->second;
}

// A letter without its accent, in upper case; 0 for anything but a Latin letter or a digit.
int PlainCharacter(QChar character) {
    const QString decomposed = QString(character).normalized(QString::NormalizationForm_D);
    const char16_t plain = decomposed[0].toUpper().unicode();
    const bool usable = (plain >= u'A' && plain <= u'Z') || (plain >= u'0' && plain <= u'9');
    return usable ? plain : 0;
}

// Where a layout has no Latin letters the place of the key on the keyboard decides.
// Native scan codes are the kernel's key codes plus 8.
int LetterAtPlace(quint32 scanCode) {
    struct Row {
        quint32 first;
        std::string_view letters;
    };
    static constexpr Row rows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
    for (const Row& row : rows) {
        if (scanCode >= row.first && scanCode < row.first + row.letters.size()) {
            return row.letters[scanCode - row.first];
        }
    }
    return 0;
}

}  // namespace

int VirtualKey(const QKeyEvent& event) {
    if (const int named = NamedKey(event.key())) {
        return named;
    }
    if (!event.text().isEmpty()) {
        if (const int typed = PlainCharacter(event.text()[0])) {
            return typed;
        }
    }
    // With Ctrl held the text is a control character; the key still says its letter.
    if (event.key() > 0 && event.key() < 0x10000) {
        const QChar character(static_cast<char16_t>(event.key()));
        if (const int plain = PlainCharacter(character)) {
            return plain;
        }
        return character.isLetter() ? LetterAtPlace(event.nativeScanCode()) : 0;
    }
    return 0;
}

std::vector<int> VirtualKeys(const QString& text) {
    std::vector<int> keys;
    for (QChar character : text) {
        const int key = character == u'\n'   ? VK_RETURN
                        : character == u'\b' ? VK_BACK
                        : character == u' '  ? VK_SPACE
                                             : PlainCharacter(character);
        if (key != 0) {
            keys.push_back(key);
        }
    }
    return keys;
}
