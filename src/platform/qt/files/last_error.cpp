#include "platform/qt/files/last_error.h"

#include <cerrno>

namespace {

DWORD lastError = 0;

}  // namespace

DWORD GetLastError() {
    return lastError;
}

void SetLastError(DWORD error) {
    lastError = error;
}

BOOL Fail(DWORD error) {
    SetLastError(error);
    return FALSE;
}

DWORD ErrorOfSystem(int systemError, DWORD otherwise) {
    switch (systemError) {
        case ENOENT: return ERROR_FILE_NOT_FOUND;
        case ENOTDIR: return ERROR_PATH_NOT_FOUND;
        case EMFILE:
        case ENFILE: return ERROR_TOO_MANY_OPEN_FILES;
        case EACCES:
        case EPERM:
        case EISDIR: return ERROR_ACCESS_DENIED;
        case EROFS: return ERROR_WRITE_PROTECT;
        case EBUSY:
        case ETXTBSY: return ERROR_SHARING_VIOLATION;
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return ERROR_DISK_FULL;  // the last one is a quota, too
        case ENAMETOOLONG: return ERROR_FILENAME_EXCED_RANGE;
        default: return otherwise;
    }
}
