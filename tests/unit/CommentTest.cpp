// The comment lines that no job writes: those of version 1.5.0.
#include "Comment.h"

#include "BoundedText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

static std::string LinesOf(void (*writer)())
{
    testing::internal::CaptureStdout();
    writer();
    fflush(stdout);
    return testing::internal::GetCapturedStdout();
}

// The value of the line whose text begins with `name`; empty when there is none.
static std::string ValueOf(const std::string &name)
{
    const std::string lines = LinesOf(OutputZPJLCommandforCommentAdvanced);
    const std::string start = "@PJL COMMENT PRINTJOBINFO " + name;
    const size_t found = lines.find(start);
    if (found == lines.npos)
        return "";
    const size_t value = found + start.size();
    return lines.substr(value, lines.find('\n', value) - value);
}

class CommentAdvanced : public testing::Test
{
  protected:
    void SetUp() override { psoptioncomment = {}; }
    void TearDown() override { psoptioncomment = {}; }
};

TEST(CommentVersion, HighIsTheVersionOfTheAdvancedLines)
{
    EXPECT_EQ(LinesOf(OutputZPJLCommandforCommentVersionHigh), "@PJL COMMENT PRINTJOBINFO VERSION=1.5.0\n");
}

TEST_F(CommentAdvanced, OrientationBySignaturePagesAndPageOrientation)
{
    static const struct {
        std::vector<const char *> signatures;
        std::vector<const char *> pages;
        const char *expected[7]; // by orientation 0 to 6
    } cases[] = {
        {{"", "None"}, {"", "1"}, {"", "PORTRAIT", "", "", "LANDSCAPE", "ROTATEDLANDSCAPE", "ROTATEDPORTRAIT"}},
        {{"", "None"}, {"2", "6"}, {"", "LANDSCAPE", "", "", "PORTRAIT", "PORTRAIT", "LANDSCAPE"}},
        {{"", "None"}, {"4", "9", "16"}, {"", "PORTRAIT", "", "", "LANDSCAPE", "LANDSCAPE", "PORTRAIT"}},
        {{"LeftSig", "LeftSigCenterStaple", "LeftSigFold"},
         {"", "1", "4", "9", "16"},
         {"", "LANDSCAPE", "", "", "ROTATEDPORTRAIT", "ROTATEDPORTRAIT", "LANDSCAPE"}},
        {{"LeftSig", "LeftSigCenterStaple", "LeftSigFold"},
         {"2", "6"},
         {"", "ROTATEDPORTRAIT", "", "", "LANDSCAPE", "LANDSCAPE", "ROTATEDPORTRAIT"}},
        {{"RightSig", "RightSigCenterStaple", "RightSigFold"},
         {"", "1", "4", "9", "16"},
         {"", "ROTATEDLANDSCAPE", "", "", "PORTRAIT", "PORTRAIT", "ROTATEDLANDSCAPE"}},
        {{"RightSig", "RightSigCenterStaple", "RightSigFold"},
         {"2", "6"},
         {"", "PORTRAIT", "", "", "ROTATEDLANDSCAPE", "ROTATEDLANDSCAPE", "PORTRAIT"}},
        {{"", "None", "LeftSig", "RightSigFold"}, {"0", "3", "8", "25"}, {"", "", "", "", "", "", ""}},
        {{"TopSig", "LeftSigFolded"}, {"", "2", "4"}, {"", "", "", "", "", "", ""}},
    };
    for (const auto &row : cases) {
        for (const char *signature : row.signatures) {
            for (const char *pages : row.pages) {
                for (int orientation = 0; orientation <= 6; orientation++) {
                    CopyCut(psoptioncomment.signature, signature);
                    CopyCut(psoptioncomment.numberUp, pages);
                    psoptioncomment.orientation = orientation;
                    EXPECT_EQ(ValueOf("ORIENTATION="), row.expected[orientation])
                        << signature << " n=" << pages << " O=" << orientation;
                }
            }
        }
    }
}

TEST_F(CommentAdvanced, LayoutOrderByDirectionAndPages)
{
    static const struct {
        const char *pages;
        const char *expected[8]; // by direction 0 to 7
    } cases[] = {
        {"", {"", "", "", "", "", "", "", ""}},
        {"1", {"", "", "", "", "", "", "", ""}},
        {"2", {"", "RIGHTTODOWN", "", "LEFTTOUP", "", "RIGHTTODOWN", "LEFTTOUP", ""}},
        {"3", {"", "RIGHTTHENDOWN", "", "LEFTTHENDOWN", "", "DOWNTHENRIGHT", "DOWNTHENLEFT", ""}},
        {"16", {"", "RIGHTTHENDOWN", "", "LEFTTHENDOWN", "", "DOWNTHENRIGHT", "DOWNTHENLEFT", ""}},
    };
    for (const auto &row : cases) {
        for (int direction = 0; direction <= 7; direction++) {
            CopyCut(psoptioncomment.numberUp, row.pages);
            psoptioncomment.layoutDirection = direction;
            EXPECT_EQ(ValueOf("NUPEX="), row.expected[direction]) << "n=" << row.pages << " D=" << direction;
        }
    }
}

TEST_F(CommentAdvanced, SaddleStapleByTheSignature)
{
    static const struct {
        const char *signature;
        const char *expected;
    } cases[] = {
        {"", ""},
        {"None", "OFF"},
        {"LeftSig", "OFF"},
        {"RightSigFold", "OFF"},
        {"LeftSigCenterStaple", "ON"},
        {"RightSigCenterStaple", "ON"},
    };
    for (const auto &row : cases) {
        CopyCut(psoptioncomment.signature, row.signature);
        EXPECT_EQ(ValueOf("SADDLESTAPLE="), row.expected) << row.signature;
    }
}

TEST_F(CommentAdvanced, StaplePositionIsTheFirstThatTheChoiceHolds)
{
    static const struct {
        const char *staple;
        const char *expected;
    } cases[] = {
        {"", ""},
        {"None", ""},
        {"LeftDouble", "LEFTDUAL"},
        {"UpperLeftSingle", "TOPLEFT"},
        {"TopDouble", "TOPDUAL"},
        {"UpperRightSingle", "TOPRIGHT"},
        {"RightDouble", "RIGHTDUAL"},
        {"LowerRightSingle", "BOTTOMRIGHT"},
        {"BottomDouble", "BOTTOMDUAL"},
        {"LowerLeftSingle", "BOTTOMLEFT"},
        {"Rear.TopDouble+LeftDouble", "LEFTDUAL"},
    };
    for (const auto &row : cases) {
        CopyCut(psoptioncomment.staple, row.staple);
        EXPECT_EQ(ValueOf("STAPLEEX="), row.expected) << row.staple;
    }
}

TEST_F(CommentAdvanced, PunchNeedsLocationAndHoles)
{
    static const struct {
        const char *punch;
        const char *holes;
        const char *expected;
    } cases[] = {
        {"LeftPunch", "2Holes", "HOLES[TWO]:LOCATION[LEFT]"},
        {"TopPunch", "3Holes", "HOLES[THREE]:LOCATION[TOP]"},
        {"RightPunch", "4Holes", "HOLES[FOUR]:LOCATION[RIGHT]"},
        {"BottomPunch", "CoilPunch", "HOLES[COIL]:LOCATION[BOTTOM]"},
        {"BottomRightTopLeft", "2Holes", "HOLES[TWO]:LOCATION[LEFT]"},
        {"None", "2Holes", ""},
        {"LeftPunch", "", ""},
        {"LeftPunch", "2HolesWide", ""},
        {"", "2Holes", ""},
    };
    for (const auto &row : cases) {
        CopyCut(psoptioncomment.punch, row.punch);
        CopyCut(psoptioncomment.punchHoles, row.holes);
        EXPECT_EQ(ValueOf("PUNCHEX="), row.expected) << row.punch << " " << row.holes;
    }
}

TEST_F(CommentAdvanced, LinesComeInTheirOrder)
{
    psoptioncomment.orientation = 5;
    psoptioncomment.layoutDirection = 3;
    CopyCut(psoptioncomment.numberUp, "2");
    CopyCut(psoptioncomment.signature, "RightSigCenterStaple");
    CopyCut(psoptioncomment.staple, "TopDouble");
    CopyCut(psoptioncomment.punch, "Bottom");
    CopyCut(psoptioncomment.punchHoles, "CoilPunch");
    EXPECT_EQ(LinesOf(OutputZPJLCommandforCommentAdvanced),
              "@PJL COMMENT PRINTJOBINFO ORIENTATION=ROTATEDLANDSCAPE\n"
              "@PJL COMMENT PRINTJOBINFO NUPEX=LEFTTOUP\n"
              "@PJL COMMENT PRINTJOBINFO SADDLESTAPLE=ON\n"
              "@PJL COMMENT PRINTJOBINFO STAPLEEX=TOPDUAL\n"
              "@PJL COMMENT PRINTJOBINFO PUNCHEX=HOLES[COIL]:LOCATION[BOTTOM]\n"
              "@PJL COMMENT PRINTJOBINFO MIXEDSIZETYPE=NONE\n"
              "@PJL COMMENT PRINTJOBINFO CUD=OFF\n");
}

// Only the advanced lines use these two options.
TEST_F(CommentAdvanced, LayoutDirectionAndHolesAreReadFromTheJob)
{
    const char *argv[] = {"filter", "1", "taro", "Report", "1", "number-up=4 OVPunch=Left OVNumPunchHoles=2Holes",
                          nullptr};
    CommentGetTicketFromPDE(argv);
    EXPECT_EQ(ValueOf("NUPEX="), "RIGHTTHENDOWN");
    EXPECT_EQ(ValueOf("PUNCHEX="), "HOLES[TWO]:LOCATION[LEFT]");

    argv[5] = "number-up=4 com.apple.print.PrintSettings.PMLayoutDirection..n.=6";
    CommentGetTicketFromPDE(argv);
    EXPECT_EQ(ValueOf("NUPEX="), "DOWNTHENLEFT");
    EXPECT_EQ(ValueOf("PUNCHEX="), "");
}
