#include "SystemVersion.h"

#include "Platform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

static constexpr uint32_t kOldestVersion = 0x1000;
static constexpr uint32_t kVersionNotKnown = 0xFFFFFFFF;
static constexpr size_t kReleaseTextSize = 16;

uint32_t PackKernelRelease(const char *release)
{
    uint32_t version = kOldestVersion;
    const long major = strtol(release, nullptr, 10);
    if (major > 0)
        version += (static_cast<uint32_t>(major) * 16 + 0xC0) & 0xFF;
    const char *separator = strchr(release, '.');
    const long minor = separator ? strtol(separator + 1, nullptr, 10) : 0;
    if (minor > 0)
        version += static_cast<uint32_t>(minor) & 0xF;
    return version;
}

static uint32_t SystemVersion()
{
    static uint32_t osVersion = kVersionNotKnown;
    if (osVersion == kVersionNotKnown) {
        char release[kReleaseTextSize];
        osVersion = PlatformKernelRelease(release) ? PackKernelRelease(release) : kOldestVersion;
    }
    return osVersion;
}

int32_t Gestalt_ALT(uint32_t selector, int32_t *result)
{
    const uint32_t version = SystemVersion();
    uint32_t answer = 0;
    switch (selector) {
    case kGestaltSystemVersion:
        answer = version;
        break;
    case kGestaltSystemVersionMajor:
        answer = ((version >> 12) & 0xF) * 10 + ((version >> 8) & 0xF);
        break;
    case kGestaltSystemVersionMinor:
        answer = (version >> 4) & 0xF;
        break;
    case kGestaltSystemVersionFix:
        answer = version & 0xF;
        break;
    default:
        fprintf(stderr, "Gestalt_ALT : selector '%x' not supported.\n", selector);
        return -1;
    }
    *result = static_cast<int32_t>(answer);
    return 0;
}
