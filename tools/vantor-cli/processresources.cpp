#include "processresources.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>

#include <algorithm>

long ProcessResources::peakResidentKb()
{
    rusage usage{};
    if (getrusage(RUSAGE_SELF, &usage) != 0)
        return -1;
    return usage.ru_maxrss; // kB on Linux
}

long ProcessResources::heapInUseKb()
{
    const struct mallinfo2 info = mallinfo2();
    return long((info.uordblks + info.hblkhd) / 1024);
}

int ProcessResources::openFileDescriptors()
{
    // Every descriptor below the limit is asked; the limit is bounded so the
    // count stays quick whatever the process was given.
    rlimit limit{};
    rlim_t highest = 4096;
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY)
        highest = std::min<rlim_t>(limit.rlim_cur, 65536);
    int open = 0;
    for (rlim_t fd = 0; fd < highest; ++fd) {
        if (fcntl(int(fd), F_GETFD) != -1)
            ++open;
    }
    return open;
}
