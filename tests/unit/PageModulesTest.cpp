// What jobs can't reach of special pages and perfect binding: arguments that their writers never pass.
#include "PBind.h"
#include "Rows.h"
#include "SpecialPage.h"

TEST(SpecialPage, OneValueAnswersTheNextOffset)
{
    CheckRows("special-page-fields", [](const Cells &given) -> Cells {
        std::vector<char> field(kSpecialPageFieldSize);
        const int32_t next = getOneValue(given[0].c_str(), field.data());
        return {TextOf(field), std::to_string(next)};
    });
}

TEST(SpecialPage, MapsOnlyWholePairs)
{
    const char *const pairs[] = {"a", "1", "b", "2", "c"};
    char value[kSpecialPageFieldSize] = "";
    EXPECT_EQ(getSpecialPageZPJLValue("a", pairs, 0, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("1", pairs, 5, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("c", pairs, 5, value), -1);
    EXPECT_STREQ(value, "");
    EXPECT_EQ(getSpecialPageZPJLValue("b", pairs, 4, value), 0);
    EXPECT_STREQ(value, "2");
}

TEST(PBind, TrimmingsThatTheDialogLacksAreKnownByTheirEdges)
{
    const std::string cuts = " OVPBindCutPageSize=A4 OVPBindCutPositionTop=4mm OVPBindCutPositionFore=5mm";
    for (const auto &[dialog, pjl] : {std::pair{"1EdgeNew", "FACE"}, {"3EdgeNew", "FULLBLEED"}, {"Edge", "Edge"}}) {
        const std::string options = "OVPBindTrimming=" + std::string(dialog) + cuts;
        const char *argv[] = {"filter", "1", "taro", "Report", "1", options.c_str(), nullptr};
        PBindGetTicketFromPDE(argv);
        EXPECT_STREQ(psoptionpbind.trimming, pjl);
        EXPECT_STREQ(psoptionpbind.cutPageSize, "");
        EXPECT_STREQ(psoptionpbind.cutPositionTop, "4mm");
        EXPECT_STREQ(psoptionpbind.cutPositionFore, "5mm");
    }
}

TEST(PBind, MappedValueIsCutToItsBuffer)
{
    auto value = Buffer(5);
    convertPBindPPDValue("Stationary", value.data(), 5);
    EXPECT_EQ(TextOf(value), "NORM");
}

TEST(PBind, NumberIsMultipliedBeforeItsSign)
{
    EXPECT_EQ(Printed([] {
                  OutputZPJLCommandforPBindDigital("-3", 4, "PBAX", "RIGHT", 1);
                  OutputZPJLCommandforPBindDigital("", 4, "PBAV", "RIGHT", 1);
              }),
              "@PJL SET JOBATTR=\"@PBAX=12\"\n");
}
