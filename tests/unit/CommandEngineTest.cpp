// The line builder and the conditions where no table of ours takes them; whole
// jobs show them with the tables.
#include "CommandTable.h"

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

TEST(CommandTable, Conditions)
{
    CheckRows("conditions", [](const Cells &given) -> Cells {
        static const char *const word = "bc";
        static const int32_t three = 3;
        const char *text = given[0].c_str();
        const auto length = static_cast<int32_t>(given[0].size());
        Cells answers;
        for (const ComparationItem &item :
             {Is(text, word), Contains(text, word), Lacks(text, word), NotEmpty(text), Empty(text),
              ShorterThan(text, three), Equal(length, three), NotEqual(length, three)})
            answers.push_back(std::to_string(item.func(item.arg1, item.arg2)));
        return answers;
    });
    EXPECT_EQ(StrNoNULLCampareFunc(nullptr, OptionNULLStr), 0U);
    EXPECT_EQ(StrIsNULLCampareFunc(nullptr, OptionNULLStr), 1U);
}
