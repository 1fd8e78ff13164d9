// What the compiler can't see in the modules' command tables: symbols against kinds of values, quotes, line ends,
// repeated rows.
#include "CommandBuilder.h"
#include "Features.h"
#include "JBA.h"
#include "PrintType.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex.h>
#include <set>

struct CommandTable {
    const char *name;
    const FmtTableRow *list;
    int32_t count;
};
static const CommandTable tables[] = {
    {"PrintTypeFmtTable", PrintTypeFmtTable, PrintTypeFmtTableNum},
    {"PrintTypeFmtPartTable", PrintTypeFmtPartTable, PrintTypeFmtPartTableNum},
    {"JBAFmtTableAdmin", JBAFmtTableAdmin, JBAFmtTableAdminNum},
    {"JBAFmtTableCommon", JBAFmtTableCommon, JBAFmtTableCommonNum},
    {"FeaturesFmtTable", FeaturesFmtTable, FeaturesFmtTableNum},
};

static bool IsControlByte(const void *value)
{
    const void *const bytes[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE, &CTRLSym_CR, &CTRLSym_LF, &CTRLSym_DOUBLE};
    return std::ranges::count(bytes, value) != 0;
}

// The line as the printer gets it, with "value" for each text; says what is wrong where a symbol has no fitting value.
static std::string SampleLine(const FmtTableRow &row)
{
    std::string line;
    int32_t symbols = 0;
    for (const char *c = row.prtfmtStr; *c; c++) {
        const char pair[] = {c[0], c[1], '\0'};
        if (!IsCtrlSym(pair)) {
            line += *c;
            continue;
        }
        const void *value = row.symPara->list[symbols++];
        if (!value || IsControlByte(value) != (c[1] == 'c'))
            return "a value that does not fit its symbol";
        line += c[1] == 'c' ? std::string(1, *static_cast<const char *>(value)) : "value";
        c++;
    }
    return line;
}

static bool IsWellFormed(const std::string &line)
{
    regex_t form;
    regcomp(&form, "^@PJL SET [A-Z]+=(\"[^\"\r\n]*\"|[^\"\r\n]+)\r?\n$", REG_EXTENDED | REG_NOSUB);
    const bool matches = regexec(&form, line.c_str(), 0, nullptr, 0) == 0;
    regfree(&form);
    return matches;
}

// What makes a row, in bytes: its format, values and conditions.
static std::string Contents(const FmtTableRow &row)
{
    std::string parts = row.prtfmtStr;
    const auto add = [&parts](const auto *list, int32_t count) {
        parts.append(reinterpret_cast<const char *>(list), sizeof *list * static_cast<size_t>(count));
    };
    if (row.symPara)
        add(row.symPara->list, row.symPara->count);
    add(row.comparation->list, row.comparation->count);
    return parts;
}

TEST(CommandTables, RowsAreWellFormedAndDiffer)
{
    for (const CommandTable &table : tables) {
        std::set<const void *> descriptors;
        std::set<std::string> contents;
        for (int32_t i = 0; i < table.count; i++) {
            SCOPED_TRACE(std::string(table.name) + " " + std::to_string(i + 1));
            const FmtTableRow &row = table.list[i];
            const std::string line = SampleLine(row);
            EXPECT_TRUE(IsWellFormed(line)) << line;
            ASSERT_TRUE(row.comparation);
            EXPECT_TRUE(descriptors.insert(row.comparation).second);
            EXPECT_TRUE(contents.insert(Contents(row)).second);
        }
    }
}
