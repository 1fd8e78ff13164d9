// The line builder where no table of ours takes it; whole jobs show it with the tables.
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
        auto line = Buffer(kCommandLineSize);
        BuildPrintComand(given[0].c_str(), &table, line.data(), line.size());
        return {TextOf(line)};
    });
}
