#pragma once

#include <csignal>
#include <sys/resource.h>

namespace halvenmoor {

/// Does the job while files grow no larger than this: on a disk that is full there.
auto WithSizeLimit(rlim_t bytes, const auto& job) {
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &limit);
    const auto result = job();
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    return result;
}

}  // namespace halvenmoor
