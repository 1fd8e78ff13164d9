// What the filter asks its kernel.
#include "Platform.h"

#include <cstring>
#include <sys/resource.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

void PlatformKeepMemoryPrivate()
{
    const struct rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifdef __linux__
    prctl(PR_SET_DUMPABLE, 0);
#endif
}

#ifdef __APPLE__
#include <sys/sysctl.h>
#include <sys/types.h>

bool PlatformKernelRelease(std::span<char> out)
{
    int name[] = {CTL_KERN, KERN_OSRELEASE};
    size_t length = out.size();
    return sysctl(name, 2, out.data(), &length, nullptr, 0) == 0 && length > 0;
}
#else
bool PlatformKernelRelease(std::span<char> out)
{
    // Other kernels count their releases differently. This is the last one for which the packed version is in order.
    static const char release[] = "19.6.0";
    if (out.size() < sizeof release)
        return false;
    memcpy(out.data(), release, sizeof release);
    return true;
}
#endif
