// What jobs can't reach of the document: an option that the job's flow doesn't ask, an event that no line stands for.
#include "PSStream.h"

#include "InjectionEvents.h"
#include "Rows.h"
#include "Watermark.h"

#include <cstring>

TEST(PSStream, OutputModeOfTheJob)
{
    const std::string longest = "OVOutputMode=" + std::string(300, 'x');
    const char *argv[] = {"filter", "1", "taro", "Report", "1", "OVOutput=1 OVOutputMode=600x600", nullptr};
    EXPECT_EQ(GetDLOutputMode(argv), 1);
    EXPECT_STREQ(g_DLOutputMode, "600x600");
    argv[5] = longest.c_str();
    EXPECT_EQ(GetDLOutputMode(argv), 1);
    EXPECT_EQ(strlen(g_DLOutputMode), 254U);
    argv[5] = "OVOutput=1 OVOutputModes=2";
    EXPECT_EQ(GetDLOutputMode(argv), 0);
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
