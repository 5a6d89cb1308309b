// Unpacking of compressed answers while they arrive.
//
// The transfer library would do it, too, but hands over all that a few packed bytes hold, and takes
// several streams for one.
#pragma once

#include <zlib.h>

#include <QtCore/QByteArray>

class Unpacker {
public:
    // Takes the format of the HTTP encodings gzip and deflate, whichever it is.
    Unpacker();
    ~Unpacker();
    Unpacker(const Unpacker&) = delete;
    Unpacker& operator=(const Unpacker&) = delete;

    // Appends what the packed bytes hold, until the content is longer than the limit. False when
    // they are broken or go on behind the end of the packed stream.
    bool Unpack(QByteArray packed, QByteArray& content, std::size_t limit);
    // Whether the end of the packed stream was seen, with its checksum.
    bool IsComplete() const {
        return complete;
    }

private:
    z_stream stream{};
    bool complete = false;
};
