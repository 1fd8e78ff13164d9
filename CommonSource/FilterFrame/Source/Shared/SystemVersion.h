// SystemVersion: the operating system's version, packed as the classic selectors answer it.
#pragma once

#include <cstdint>

constexpr uint32_t kGestaltSystemVersion = 0x73797376;      // 'sysv': the packed version
constexpr uint32_t kGestaltSystemVersionMajor = 0x73797331; // 'sys1'
constexpr uint32_t kGestaltSystemVersionMinor = 0x73797332; // 'sys2'
constexpr uint32_t kGestaltSystemVersionFix = 0x73797333;   // 'sys3'

// Packs a kernel release of the form D.m.p: 0x1000, D - 4 in the second nibble and m in the last. Of both numbers only
// the low four bits stay, so that a D of 20 gives 0 again, and one of 35 what 19 gave.
uint32_t PackKernelRelease(const char *release);

// Stores the answer and returns 0; says so on standard error and returns -1 for a selector that is not one of the four.
int32_t Gestalt_ALT(uint32_t selector, int32_t *result);
