// One request to a web server, as the platform sees it.
//
// What stands behind it is a module that is loaded with the first request: its network library
// would take a noticeable part of every start of the program, and most starts download nothing.
#pragma once

#include <cstddef>

#include "platform/types.h"

// Moves on with the event loop of its thread.
class Transfer {
public:
    Transfer() = default;
    virtual ~Transfer() = default;
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    // The last server on the way has answered.
    virtual bool Opened() const = 0;
    // All has arrived, or nothing more will.
    virtual bool Ended() const = 0;
    // Why it ended early, a number of errors.h; else 0.
    virtual DWORD Error() const = 0;
    // Grows with everything that a server sends.
    virtual int SignsOfLife() const = 0;
    // All bytes of the answer so far, unpacked.
    virtual std::size_t Received() const = 0;
    // Those that nobody has taken yet.
    virtual std::size_t Waiting() const = 0;
    virtual std::size_t Take(char* buffer, std::size_t size) = 0;
};

struct TransferRequest {
    const WCHAR* address;
    const WCHAR* agent;
    std::size_t limit;  // an answer with more bytes ends with ERROR_FILE_TOO_LARGE
};

// The module's one exported function, of the name below; the caller owns what it returns.
using StartTransferFunction = Transfer*(const TransferRequest& request);
constexpr const char* startTransferName = "StartTransfer";
