// The output mode that a job asks for, which no job shows.
#include "PSStream.h"

#include <gtest/gtest.h>
#include <string>

TEST(OutputMode, IsTheOptions)
{
    const std::string longest(kOutputModeSize - 1, 'x'), options = "number-up=2 OVOutputMode=" + longest + "y";
    const char *argv[] = {"", "", "", "", "", options.c_str(), nullptr};
    EXPECT_EQ(GetDLOutputMode(argv), 1);
    EXPECT_EQ(g_DLOutputMode, longest);
    argv[5] = "OVOutput=1 OutputMode=2 OVOutputModes=3";
    EXPECT_EQ(GetDLOutputMode(argv), 0);
}
