#include "platform/qt/network/module/unpacker.h"

namespace {

constexpr int eitherFormat = 32 + MAX_WBITS;

}  // namespace

Unpacker::Unpacker() {
    inflateInit2(&stream, eitherFormat);
}

Unpacker::~Unpacker() {
    inflateEnd(&stream);
}

bool Unpacker::Unpack(QByteArray packed, QByteArray& content, std::size_t limit) {
    if (complete && !packed.isEmpty()) {
        return false;
    }
    stream.next_in = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    Bytef buffer[16384];
    do {
        stream.next_out = buffer;
        stream.avail_out = sizeof buffer;
        const int result = inflate(&stream, Z_NO_FLUSH);
        if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) {
            return false;
        }
        complete = result == Z_STREAM_END;
        content.append(reinterpret_cast<const char*>(buffer),
                       static_cast<qsizetype>(sizeof buffer - stream.avail_out));
    } while (!complete && stream.avail_out == 0 &&
             static_cast<std::size_t>(content.size()) <= limit);
    return !complete || stream.avail_in == 0;
}
