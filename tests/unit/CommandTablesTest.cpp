// What the compiler can't see in the modules' command tables: symbols against kinds of values, quotes, line ends,
// repeated rows.
#include "SampleLines.h"

#include <gtest/gtest.h>
#include <regex.h>
#include <set>

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
        for (const FmtTableRow &row : table.rows) {
            const std::string line = SampleLine(row);
            SCOPED_TRACE(table.name + (" " + line));
            EXPECT_TRUE(IsWellFormed(line));
            ASSERT_TRUE(row.comparation);
            EXPECT_TRUE(descriptors.insert(row.comparation).second);
            EXPECT_TRUE(contents.insert(Contents(row)).second);
        }
    }
}
