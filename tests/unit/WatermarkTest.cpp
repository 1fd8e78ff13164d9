// Where a mark begins, on A4, and the block of an event that no line of a document stands for.
#include "Watermark.h"

#include "InjectionEvents.h"
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

// A density above 100 goes beyond the colour.
TEST(Watermark, PageOfTheFiltersOwn)
{
    for (const auto &[density, colour] : {std::pair(150, "-0.20 0.25 0.85"), std::pair(22, "0.82 0.89 0.98")}) {
        const std::string tickets = "com.orvane.dlg.printsettings.WMARKNameTicket=a "
                                    "com.orvane.dlg.printsettings.WMARKTypeTicket=0 "
                                    "com.orvane.dlg.printsettings.WMARKColorRTicket=.2 "
                                    "com.orvane.dlg.printsettings.WMARKColorGTicket=.5 "
                                    "com.orvane.dlg.printsettings.WMARKColorBTicket=.9 "
                                    "com.orvane.dlg.printsettings.WMARKDensityTicket=" +
                                    std::to_string(density);
        const char *const argv[] = {"filter", "1", "taro", "Report", "1", tickets.c_str(), nullptr};
        WatermarkGetTicketFromPDE(argv);
        const std::string begin =
            std::string("wqwpgsave restore /wqwpgsave save store gsave\n") + colour + " setrgbcolor\n";
        const auto print = [] { WatermarkOutputPSCommandFromFilter(kEventEndPageOfFilter, 1, stdout); };
        EXPECT_EQ(Printed(print).substr(0, begin.size()), begin);
        EXPECT_EQ(Printed(print), ""); // the first page is the only one
    }
}
