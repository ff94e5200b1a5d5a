#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tests {

/// As long as it lives, no file can grow past so many bytes: writing fails as on a full disk.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes = 5)
    {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before_{};
};

} // namespace tests
