#pragma once

#include <csignal>
#include <sys/resource.h>

/// A disk on which no file can grow beyond that many bytes, as long as this lives.
class FullDisk {
public:
    explicit FullDisk(rlim_t size = 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit none{size, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }

    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
};
