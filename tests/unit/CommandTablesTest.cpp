// What the compiler can't see in the modules' command tables: symbols against values, quotes, line ends, repeated rows.
#include "CommandBuilder.h"
#include "Features.h"
#include "JBA.h"
#include "ModuleDispatch.h"
#include "PrintType.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <regex.h>
#include <span>
#include <string>
#include <utility>
#include <vector>

// rows: as many as the printers' interface has lines.
// spare: values that no symbol of the table uses.
struct CommandTable {
    const char *name;
    const FmtTableRow *list;
    int32_t count;
    int32_t rows;
    int32_t spare;
};
static const CommandTable tables[] = {
    {"PrintTypeFmtTable", PrintTypeFmtTable, PrintTypeFmtTableNum, 12, 2},
    {"PrintTypeFmtPartTable", PrintTypeFmtPartTable, PrintTypeFmtPartTableNum, 7, 2},
    {"JBAFmtTableAdmin", JBAFmtTableAdmin, JBAFmtTableAdminNum, 35, 0},
    {"JBAFmtTableCommon", JBAFmtTableCommon, JBAFmtTableCommonNum, 42, 0},
    {"FeaturesFmtTable", FeaturesFmtTable, FeaturesFmtTableNum, 29, 0},
};

static bool IsControlByte(const void *value)
{
    const void *const bytes[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE, &CTRLSym_CR, &CTRLSym_LF, &CTRLSym_DOUBLE};
    return std::ranges::count(bytes, value) != 0;
}

// The line as the printer gets it, with "value" for each text; says what is wrong where a symbol has no fitting value.
static std::string SampleLine(const FmtTableRow &row, int32_t &symbols)
{
    std::string line;
    symbols = 0;
    for (const char *c = row.prtfmtStr; *c; c++) {
        const char pair[] = {c[0], c[1], '\0'};
        if (!IsCtrlSym(pair)) {
            line += *c;
            continue;
        }
        if (!row.symPara || symbols >= row.symPara->count)
            return "more symbols than values";
        const void *value = row.symPara->list[symbols++];
        if (!value || IsControlByte(value) != (c[1] == 'c'))
            return "a value that does not fit its symbol";
        line += c[1] == 'c' ? std::string(1, *static_cast<const char *>(value)) : "value";
        c++;
    }
    return line;
}

TEST(CommandTables, LinesAreWellFormed)
{
    InializeDescriptionTableFromFilter();
    regex_t wellFormed;
    ASSERT_EQ(regcomp(&wellFormed, "^@PJL SET [A-Z]+=(\"[^\"\r\n]*\"|[^\"\r\n]+)\r?\n$", REG_EXTENDED | REG_NOSUB), 0);
    for (const CommandTable &table : tables) {
        EXPECT_EQ(table.count, table.rows) << table.name;
        int32_t spare = 0;
        for (int32_t i = 0; i < table.count; i++) {
            const FmtTableRow &row = table.list[i];
            int32_t symbols = 0;
            const std::string line = SampleLine(row, symbols);
            EXPECT_EQ(regexec(&wellFormed, line.c_str(), 0, nullptr, 0), 0)
                << table.name << ' ' << i + 1 << ": " << line;
            spare += (row.symPara ? row.symPara->count : 0) - symbols;
        }
        EXPECT_EQ(spare, table.spare) << table.name;
    }
    regfree(&wellFormed);
}

TEST(CommandTables, DescriptorsAreFilled)
{
    InializeDescriptionTableFromFilter();
    for (const CommandTable &table : tables)
        for (int32_t i = 0; i < table.count; i++) {
            SCOPED_TRACE(std::string(table.name) + " " + std::to_string(i + 1));
            const FmtTableRow &row = table.list[i];
            EXPECT_TRUE(!row.symPara || row.symPara->count > 0);
            ASSERT_TRUE(row.comparation && row.comparation->count > 0);
            for (int32_t k = 0; k < row.comparation->count; k++) {
                const ComparationItem &item = row.comparation->list[k];
                EXPECT_TRUE(item.arg1 && item.arg2 && item.func) << "condition " << k + 1;
            }
        }
}

// What makes a row: its format, values and conditions.
static auto Contents(const FmtTableRow &row)
{
    std::vector<uintptr_t> parts;
    if (row.symPara)
        for (const void *value : std::span(row.symPara->list, static_cast<size_t>(row.symPara->count)))
            parts.push_back(reinterpret_cast<uintptr_t>(value));
    for (const auto &item : std::span(row.comparation->list, static_cast<size_t>(row.comparation->count)))
        for (const uintptr_t part : {reinterpret_cast<uintptr_t>(item.arg1), reinterpret_cast<uintptr_t>(item.arg2),
                                     reinterpret_cast<uintptr_t>(item.func)})
            parts.push_back(part);
    return std::pair(std::string(row.prtfmtStr), parts);
}

TEST(CommandTables, NoRowTwice)
{
    InializeDescriptionTableFromFilter();
    for (const CommandTable &table : tables)
        for (int32_t i = 0; i < table.count; i++)
            for (int32_t k = 0; k < i; k++) {
                const FmtTableRow &row = table.list[i];
                EXPECT_FALSE(Contents(row) == Contents(table.list[k]) || row.comparation == table.list[k].comparation)
                    << table.name << ": rows " << k + 1 << " and " << i + 1;
            }
}
