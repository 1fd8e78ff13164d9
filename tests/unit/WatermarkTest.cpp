#include "Watermark.h"

#include "Rows.h"

#include <algorithm>
#include <cmath>
#include <cstring>

// A mark of 300 by 80 points on A4.
static WatermarkOptions SampleMark()
{
    WatermarkOptions mark{};
    mark.orientation = 1;
    mark.paperWidth = 595;
    mark.paperHeight = 842;
    mark.boxWidth = 300;
    mark.boxHeight = 80;
    return mark;
}

TEST(Watermark, OriginOfTheTurnedBox)
{
    for (const Row &row : Rows("watermark-origins")) {
        psOptionWatermark = SampleMark();
        psOptionWatermark.orientation = Number(row.given[0]);
        psOptionWatermark.angle = Number(row.given[1]);
        psOptionWatermark.boxWidth = std::stof(row.given[2]);
        psOptionWatermark.boxHeight = std::stof(row.given[3]);
        float place[2];
        GetWatermarkPostion(place[0], place[1], 12.5F, -30.25F);
        for (const size_t i : {0u, 1u}) {
            const float expected = std::stof(row.expected[i]);
            const float near = std::max(0.001F, std::abs(expected) * 6e-8F); // a thousandth of a point or half a step
            EXPECT_NEAR(place[i] - (i == 0 ? 12.5F : -30.25F), expected, near) << row.where;
        }
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
    EXPECT_EQ(Printed([] {
                  for (int32_t event : {25, 26, 29})
                      WatermarkOutputPSCommandFromFilter(event, 1, stdout);
              }),
              "wqwpgsave restore /wqwpgsave save store gsave\n"
              "0.00 0.00 0.00 setrgbcolor\n"
              "/Helvetica 72 selectfont\n"
              "147.50 381.00 moveto\n"
              "0 rotate\n"
              "(DRAFT) show\n"
              "grestore\n");
}
