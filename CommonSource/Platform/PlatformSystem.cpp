// What the filter asks its kernel.
#include "Platform.h"

#include <cstring>

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
