// The line builder where no table of ours takes it; whole jobs show it with the tables, conditions and rows.
#include "CommandBuilder.h"

#include "Rows.h"

#include <list>

TEST(CommandBuilder, BuildsLines)
{
    CheckRows("command-lines", [](const Cells &given) -> Cells {
        std::list<int32_t> numbers;
        std::vector<const void *> values;
        for (size_t i = 1; i < given.size(); i++) {
            const char *text = given[i].c_str() + (given[i].size() > 1 ? 2 : 1);
            values.push_back(given[i][0] == 'd' ? static_cast<const void *>(&numbers.emplace_back(Number(text)))
                                                : text);
        }
        const CmdParaTable table = {static_cast<int32_t>(values.size()), values.data()};
        auto line = Buffer(kCommandLineSize), cut = Buffer(4);
        BuildPrintComand(given[0].c_str(), &table, line.data(), line.size());
        BuildPrintComand(given[0].c_str(), &table, cut.data(), cut.size());
        EXPECT_EQ(TextOf(cut), TextOf(line).substr(0, 3));
        return {TextOf(line)};
    });
}
