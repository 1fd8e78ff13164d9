// The line builder, the compare functions and the walk over conditions.

#include "CommandBuilder.h"
#include "CommandTable.h"

#include <gtest/gtest.h>
#include <string>

static const int32_t seven = 7;
static const int32_t minusOne = -1;
static const char empty[] = "";
static const char nul = '\0';

static std::string Build(const char *format, std::vector<const void *> values, size_t size = kCommandLineSize)
{
    const CmdParaTable table = {static_cast<int32_t>(values.size()), values.data()};
    std::string line(size, '#');
    BuildPrintComand(format, &table, line.data(), size);
    return line.c_str();
}

TEST(CommandBuilder, BuildsLines)
{
    const std::string longText(2100, 'x');
    const struct {
        const char *format;
        std::vector<const void *> values;
        std::string line;
    } cases[] = {
        {"%d,%d\n", {&seven, &minusOne}, "7,-1\n"},
        {"%%d", {&seven}, "%7"},
        {"%x %2d %", {}, "%x %2d %"},
        {"%%%s", {"v"}, "%%v"},
        {"%c%c-12345X", {&CTRLSym_ESC, &CTRLSym_PERCENTAGE}, "\x1B%-12345X"},
        {"value %s is not read again\n", {"%s%d"}, "value %s%d is not read again\n"},
        {"surplus %s", {"a", "b"}, "surplus a"},
        {"no symbol\n", {}, "no symbol\n"},
        {"", {}, ""},
        {"A=%s;B=%s\n", {"a", empty}, "A=a"},
        {"A=%s;B=%s\n", {empty, "b"}, ""},
        {"%sX%cY\n", {"a", &nul}, "a"},
        {"%s", {longText.c_str()}, std::string(2047, 'x')},
        {"12%s", {longText.c_str()}, "12" + std::string(2045, 'x')},
    };
    for (const auto &c : cases)
        EXPECT_EQ(Build(c.format, c.values), c.line) << c.format;

    EXPECT_EQ(Build(longText.c_str(), {}), std::string(2047, 'x'));
    EXPECT_EQ(Build("ab%scd", {"12"}, 4), "ab1");
    char line[kCommandLineSize];
    BuildPrintComand("no descriptor\n", nullptr, line, sizeof line);
    EXPECT_STREQ(line, "no descriptor\n");
}

TEST(CommandBuilder, UnknownSymbolHasNoValue)
{
    char value[8] = "old";
    EXPECT_EQ(getCtrlSym("%x", &seven, value, sizeof value), 0u);
    EXPECT_EQ(getCtrlSym("%d", &seven, value, sizeof value), 1u);
    EXPECT_STREQ(value, "7");
}

TEST(CommandTable, Conditions)
{
    static const char *const needle = "Coil";
    static const char *const nothing = "";
    static const int32_t three = 3;
    static const int32_t otherSeven = 7;
    const struct {
        ComparationItem item;
        uint32_t holds;
    } cases[] = {
        {Equal(seven, otherSeven), 1},
        {Equal(seven, three), 0},
        {NotEqual(seven, three), 1},
        {NotEqual(seven, otherSeven), 0},
        {Is("Coil", needle), 1},
        {Is("Coils", needle), 0},
        {Contains("aCoilb", needle), 1},
        {Contains("coil", needle), 0},
        {Contains("", nothing), 0},
        {Contains("x", nothing), 1},
        {Contains(nullptr, needle), 0},
        {Lacks("aCoilb", needle), 0},
        {Lacks("coil", needle), 1},
        {Lacks("", nothing), 1},
        {Lacks(nullptr, needle), 1},
        {NotEmpty("x"), 1},
        {NotEmpty(""), 0},
        {NotEmpty(nullptr), 0},
        {Empty("x"), 0},
        {Empty(""), 1},
        {Empty(nullptr), 1},
        {ShorterThan("ab", three), 1},
        {ShorterThan("abc", three), 0},
        {ShorterThan("", minusOne), 0},
    };
    for (size_t i = 0; i < std::size(cases); i++)
        EXPECT_EQ(cases[i].item.func(cases[i].item.arg1, cases[i].item.arg2), cases[i].holds) << "case " << i;
}

static int evaluated;

static uint32_t Count(const void *holds, const void *)
{
    evaluated++;
    return *static_cast<const int32_t *>(holds) == 7;
}

TEST(CommandTable, StopsAtTheFirstConditionThatFails)
{
    const ComparationItem items[] = {{&seven, nullptr, Count}, {&minusOne, nullptr, Count}, {&seven, nullptr, Count}};
    evaluated = 0;
    EXPECT_EQ(ConditionCompare({3, items}), 0u);
    EXPECT_EQ(evaluated, 2);
    EXPECT_EQ(ConditionCompare({1, items}), 1u);
    EXPECT_EQ(ConditionCompare({0, nullptr}), 1u);
    EXPECT_EQ(ConditionCompare({-1, nullptr}), 1u);
}

TEST(CommandTable, WritesUnconditionalRowsAndThoseThatHold)
{
    const ComparationItem fails[] = {Equal(seven, minusOne)};
    const ComparationItem holds[] = {NotEqual(seven, minusOne)};
    const ComparationTable failing = {1, fails}, holding = {1, holds}, none = {0, nullptr};
    const FmtTableRow rows[] = {{"null\n", nullptr, nullptr},
                                {"failing\n", nullptr, &failing},
                                {"none\n", nullptr, &none},
                                {"holding\n", nullptr, &holding}};
    testing::internal::CaptureStdout();
    OutputZPJLCommandFromArray(nullptr, rows, 4);
    OutputZPJLCommandFromArray(nullptr, rows, 0);
    OutputZPJLCommandFromArray(nullptr, rows, -1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "null\nnone\nholding\n");
}
