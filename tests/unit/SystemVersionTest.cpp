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
    static constexpr uint32_t selectors[] = {kGestaltSystemVersion, kGestaltSystemVersionMajor,
                                             kGestaltSystemVersionMinor, kGestaltSystemVersionFix};
    int32_t answers[4], other = 99;
    for (size_t i = 0; i < 4; i++)
        EXPECT_EQ(Gestalt_ALT(selectors[i], &answers[i]), 0);
    const auto [packed, major, minor, fix] = answers;
    EXPECT_EQ(major, 10);
    EXPECT_EQ(packed, 0x1000 + minor * 16 + fix);
    EXPECT_EQ(Gestalt_ALT(0x7379737A, &other), -1);
    EXPECT_EQ(other, 99);
}
