// Where a mark begins, on A4.
#include "Watermark.h"

#include "Rows.h"

#include <algorithm>
#include <cmath>

TEST(Watermark, OriginOfTheTurnedBox)
{
    for (const Row &row : Rows("watermark-origins")) {
        psOptionWatermark = {};
        psOptionWatermark.paperWidth = 595;
        psOptionWatermark.paperHeight = 842;
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
