// The packing of kernel releases and the selectors.

#include "SystemVersion.h"

#include <gtest/gtest.h>

TEST(SystemVersion, PacksKernelReleases)
{
    const struct {
        const char *release;
        uint32_t version;
    } cases[] = {
        {"19.6.0", 0x10F6}, {"14.0.0", 0x10A0}, {"13.4.0", 0x1094}, {"11.0.0", 0x1070},  {"10.8.0", 0x1068},
        {"4.0", 0x1000},    {"3.9", 0x10F9},    {"20.1.0", 0x1001}, {"22.17.0", 0x1021}, {"0.5", 0x1005},
        {"-3.2", 0x1002},   {"19", 0x10F0},     {"x", 0x1000},      {"", 0x1000},        {"999999999999999", 0x10B0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(PackKernelRelease(c.release), c.version) << c.release;
}

TEST(SystemVersion, AnswersTheFourSelectors)
{
    int32_t packed = 0, major = 0, minor = 0, fix = 0, other = 99;
    EXPECT_EQ(Gestalt_ALT(kGestaltSystemVersion, &packed), 0);
    EXPECT_EQ(Gestalt_ALT(kGestaltSystemVersionMajor, &major), 0);
    EXPECT_EQ(Gestalt_ALT(kGestaltSystemVersionMinor, &minor), 0);
    EXPECT_EQ(Gestalt_ALT(kGestaltSystemVersionFix, &fix), 0);
    EXPECT_EQ(major, 10);
    EXPECT_EQ(packed, 0x1000 + minor * 16 + fix);

    testing::internal::CaptureStderr();
    EXPECT_EQ(Gestalt_ALT(0x7379737A, &other), -1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Gestalt_ALT : selector '7379737a' not supported.\n");
    EXPECT_EQ(other, 99);
}
