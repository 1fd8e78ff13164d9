// The packing of kernel releases and the selectors.
#include "SystemVersion.h"

#include "Rows.h"

TEST(SystemVersion, PacksKernelReleases)
{
    CheckRows("kernel-releases", [](const Cells &given) -> Cells {
        char hex[9];
        snprintf(hex, sizeof hex, "%X", PackKernelRelease(given[0].c_str()));
        return {hex};
    });
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
