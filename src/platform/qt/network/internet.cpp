// Web addresses.
//
// Supported: what internet.h lists. Left out: proxies, request headers, other flags than
// INTERNET_FLAG_RAW_DATA, asynchronous operation, uploading.
#include "platform/internet.h"

#include <memory>
#include <string>

#include "platform/qt/files/last_error.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/network_module.h"
#include "platform/qt/network/waiting.h"

// A root has the function and the agent, a link has the rest.
struct InternetObject {
    StartTransferFunction* start = nullptr;
    std::u16string agent;
    std::unique_ptr<Transfer> transfer;
    std::unique_ptr<BusySign> sign;
};

namespace {

constexpr std::size_t longestAnswer = 1024 * 1024;

}  // namespace

HINTERNET InternetOpenW(const WCHAR* agent, DWORD, const WCHAR*, const WCHAR*, DWORD) {
    StartTransferFunction* start = LoadNetworkModule();
    if (start == nullptr) {
        SetLastError(ERROR_MOD_NOT_FOUND);
        return nullptr;
    }
    return new InternetObject{start, agent, nullptr, nullptr};
}

HINTERNET InternetOpenUrlW(HINTERNET root, const WCHAR* address, const WCHAR*, DWORD, DWORD,
                           std::uintptr_t) {
    if (root == nullptr || root->start == nullptr) {
        SetLastError(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    auto link = std::make_unique<InternetObject>();
    link->transfer.reset(root->start({address, root->agent.c_str(), longestAnswer}));
    link->sign = std::make_unique<BusySign>(&Host());
    const Transfer& transfer = *link->transfer;
    DWORD error = AwaitTransfer(transfer, *link->sign, [&] { return transfer.Opened(); });
    // What breaks after the answer has begun is found by reading it.
    if (error == 0 && !transfer.Opened()) {
        error = transfer.Error() != 0 ? transfer.Error() : ERROR_HTTP_INVALID_SERVER_RESPONSE;
    }
    if (error != 0) {
        SetLastError(error);
        return nullptr;
    }
    return link.release();
}

BOOL InternetReadFile(HINTERNET link, void* buffer, DWORD size, DWORD* bytesRead) {
    *bytesRead = 0;
    if (link == nullptr || !link->transfer) {
        return Fail(ERROR_INVALID_HANDLE);
    }
    Transfer& transfer = *link->transfer;
    const DWORD error =
        AwaitTransfer(transfer, *link->sign, [&] { return transfer.Waiting() >= size; });
    // Whole blocks that came before it broke are still good.
    const bool broken = transfer.Error() != 0 && transfer.Waiting() < size;
    if (error != 0 || broken) {
        return Fail(error != 0 ? error : transfer.Error());
    }
    *bytesRead = static_cast<DWORD>(transfer.Take(static_cast<char*>(buffer), size));
    return TRUE;
}

BOOL InternetCloseHandle(HINTERNET handle) {
    delete handle;
    return handle != nullptr || Fail(ERROR_INVALID_HANDLE);
}
