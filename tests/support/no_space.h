// A full disk.
#pragma once

#include <sys/resource.h>

#include <QtCore/QtGlobal>
#include <csignal>

// As on a full disk, files of this process can grow no further.
class NoSpace {
public:
    NoSpace() {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{1000, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~NoSpace() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    Q_DISABLE_COPY(NoSpace)

private:
    rlimit before{};
};
