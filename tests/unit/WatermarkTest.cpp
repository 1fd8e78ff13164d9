#include "Watermark.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

namespace
{

// A mark of 300 by 80 points on A4.
WatermarkOptions SampleMark()
{
    WatermarkOptions mark{};
    mark.orientation = 1;
    mark.paperWidth = 595;
    mark.paperHeight = 842;
    mark.boxWidth = 300;
    mark.boxHeight = 80;
    return mark;
}

struct Origin {
    int32_t setting;
    float x;
    float y;
};

void ExpectOrigin(const Origin &expected, float horizontalOffset, float verticalOffset)
{
    float x;
    float y;
    GetWatermarkPostion(x, y, horizontalOffset, verticalOffset);
    // Half a step of a float, or a thousandth of a point.
    EXPECT_NEAR(x, expected.x + horizontalOffset, std::max(0.001F, std::abs(expected.x) * 6e-8F)) << expected.setting;
    EXPECT_NEAR(y, expected.y + verticalOffset, std::max(0.001F, std::abs(expected.y) * 6e-8F)) << expected.setting;
}

// The expected numbers come from a rotation of the half-diagonal (150, 40) as a complex number, in double precision.
TEST(Watermark, OrientationChoosesThePageCentre)
{
    const Origin origins[] = {{1, 187.5962F, 311.3590F},   {2, 311.0962F, 187.8590F},   {3, 187.5962F, 311.3590F},
                              {4, 311.0962F, 187.8590F},   {0, -109.9038F, -109.6410F}, {5, -109.9038F, -109.6410F},
                              {-1, -109.9038F, -109.6410F}};
    psOptionWatermark = SampleMark();
    psOptionWatermark.angle = 30;
    for (const Origin &origin : origins) {
        psOptionWatermark.orientation = origin.setting;
        ExpectOrigin(origin, 0, 0);
    }
}

TEST(Watermark, TurnedBoxIsCentredInEachQuadrant)
{
    const Origin origins[] = {{0, 147.5F, 381.0F},         {30, 187.5962F, 311.3590F},
                              {90, 337.5F, 271.0F},        {91, 340.1118F, 271.7209F},
                              {135, 431.8503F, 343.2183F}, {180, 447.5F, 461.0F},
                              {181, 446.7791F, 463.6118F}, {225, 375.2817F, 555.3503F},
                              {270, 257.5F, 571.0F},       {271, 254.8882F, 570.2791F},
                              {300, 187.8590F, 530.9038F}, {360, 147.5F, 381.0F},
                              {-45, 0.0F, 0.0F},           {-1, 0.0F, 0.0F},
                              {361, 0.0F, 0.0F},           {400, 0.0F, 0.0F}};
    psOptionWatermark = SampleMark();
    for (const Origin &origin : origins) {
        psOptionWatermark.angle = origin.setting;
        ExpectOrigin(origin, 12.5F, -30.25F);
    }
}

// On a box of 1000000 by 100 the short constants show: a quarter turn, 1.5707963, falls short by 2.68e-8, which moves
// the end of the box by 0.0134 where a quadrant ends and by nothing where the next begins.
TEST(Watermark, QuadrantsEndAfterTheirQuarterTurn)
{
    const Origin origins[] = {{90, 347.4866F, -499579.0F}, {91, 9073.6956F, -499501.9750F},
                              {180, 500297.5F, 470.9866F}, {181, 500220.4750F, 9197.1956F},
                              {270, 247.5134F, 500421.0F}, {271, -8478.6956F, 500343.9750F},
                              {360, -499702.5F, 371.0134F}};
    psOptionWatermark = SampleMark();
    psOptionWatermark.boxWidth = 1e6F;
    psOptionWatermark.boxHeight = 100;
    for (const Origin &origin : origins) {
        psOptionWatermark.angle = origin.setting;
        ExpectOrigin(origin, 0, 0);
    }
}

// No line of a document stands for this point.
TEST(Watermark, DrawsBetweenTheFiltersOwnSaveAndRestore)
{
    psOptionWatermark = SampleMark();
    strcpy(psOptionWatermark.name, "Draft");
    strcpy(psOptionWatermark.text, "(DRAFT)");
    strcpy(psOptionWatermark.font, "Helvetica");
    psOptionWatermark.fontSize = 72;
    psOptionWatermark.density = 100;

    char text[512] = "";
    const std::unique_ptr<FILE, int (*)(FILE *)> stream(fmemopen(text, sizeof text, "w"), fclose);
    for (int32_t event : {25, 26, 29})
        WatermarkOutputPSCommandFromFilter(event, 1, stream.get());
    fflush(stream.get());
    EXPECT_STREQ(text, "wqwpgsave restore /wqwpgsave save store gsave\n"
                       "0.00 0.00 0.00 setrgbcolor\n"
                       "/Helvetica 72 selectfont\n"
                       "147.50 381.00 moveto\n"
                       "0 rotate\n"
                       "(DRAFT) show\n"
                       "grestore\n");
}

} // namespace
