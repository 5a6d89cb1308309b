#include "platform/text.h"

#include <QtCore/QStringDecoder>
#include <algorithm>

namespace {

// Bytes 0x80 to 0x9F of Windows-1252; a byte it leaves undefined stays the control character.
constexpr char16_t windows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t WidenByte(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= 0x80 && value < 0xA0 ? windows1252[value - 0x80] : value;
}

bool IsPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

QString DecodeUtf8(std::string_view text, bool& valid) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded =
        decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    valid = !decoder.hasError();
    return decoded;
}

}  // namespace

std::u16string WidenText(std::string_view text) {
    if (!IsPlain(text)) {
        bool valid = false;
        const QString decoded = DecodeUtf8(text, valid);
        if (valid) {
            return decoded.toStdU16String();
        }
    }
    std::u16string wide(text.size(), 0);
    std::transform(text.begin(), text.end(), wide.begin(), WidenByte);
    return wide;
}

std::u16string WidenPath(std::string_view path) {
    return QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())).toStdU16String();
}

std::string NarrowPath(std::u16string_view path) {
    return QString::fromUtf16(path.data(), static_cast<qsizetype>(path.size())).toStdString();
}

std::u16string DecimalText(int number) {
    return QString::number(number).toStdU16String();
}

std::u16string HexadecimalText(std::uint32_t number) {
    return QString::number(number, 16).toStdU16String();
}
