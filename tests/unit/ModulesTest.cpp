// What whole jobs can't reach of the modules, or would take a job each.
#include "Comment.h"
#include "InjectionEvents.h"
#include "PBind.h"
#include "Rows.h"
#include "SpecialPage.h"
#include "Watermark.h"

#include <sstream>

// The options with each of a and b in place of "[a/b]".
static Cells Alternatives(const std::string &options)
{
    const size_t begin = options.find('['), end = options.find(']');
    if (begin == options.npos)
        return {options};
    Cells all;
    std::istringstream values(options.substr(begin + 1, end - begin - 1) + "/");
    for (std::string value; std::getline(values, value, '/');)
        for (const std::string &rest : Alternatives(options.substr(end + 1)))
            all.push_back(options.substr(0, begin) + value + rest);
    return all;
}

// A row: what tells the lines that count (nothing: all count) | options of the job | values of the last option => what
// these lines say for each value, whichever of the alternatives "[a/b]" the options have.
static void CheckLines(const std::string &table, void (*write)(const std::string &options))
{
    for (const Row &row : Rows(table)) {
        for (size_t i = 2; i < row.given.size(); i++) {
            for (const std::string &options : Alternatives(row.given[1] + row.given[i])) {
                std::istringstream lines(Printed([&] { write(options); }));
                std::string said;
                for (std::string line; std::getline(lines, line);)
                    if (const size_t word = line.find(row.given[0]); word != line.npos) {
                        const std::string rest = line.substr(word + row.given[0].size());
                        said += (said.empty() ? "" : " ") + (rest.empty() ? line.substr(0, word - 1) : rest);
                    }
                EXPECT_EQ(said, row.expected.at(i - 2)) << row.where << ": " << options;
            }
        }
    }
}

TEST(Comment, LinesOfTheHighVersion)
{
    CheckLines("comment-advanced", [](const std::string &options) {
        const char *const argv[] = {"filter", "1", "taro", "Report", "1", options.c_str(), nullptr};
        CommentGetTicketFromPDE(argv);
        OutputZPJLCommandforCommentVersionHigh();
        OutputZPJLCommandforCommentAdvanced();
    });
}

// The block of an event that no line of a document stands for, twice: the first page is the only one.
TEST(Watermark, PageOfTheFiltersOwn)
{
    CheckLines("watermark-lines", [](const std::string &options) {
        std::istringstream words("Name=a Type=0 PaperWidth=595 PaperHeight=842 " + options);
        std::string tickets;
        for (std::string word; words >> word;)
            tickets += " com.orvane.dlg.printsettings.WMARK" + word.insert(word.find('='), "Ticket");
        const char *const argv[] = {"filter", "1", "taro", "Report", "1", tickets.c_str(), nullptr};
        WatermarkGetTicketFromPDE(argv);
        for (const int32_t page : {1, 2})
            WatermarkOutputPSCommandFromFilter(kEventEndPageOfFilter, page, stdout);
        EXPECT_EQ(psOptionWatermark.options, 1);
    });
}

TEST(SpecialPage, OneValueAnswersTheNextOffset)
{
    SpecialPageField field = "";
    EXPECT_EQ(getOneValue("ab,c", field), 3);
    EXPECT_STREQ(field, "ab");
    EXPECT_EQ(getOneValue("ab", field), 0);
    EXPECT_EQ(getOneValue(nullptr, field), -1);
    EXPECT_EQ(getOneValue("ab", nullptr), -1);
}

TEST(SpecialPage, MapsOnlyWholePairs)
{
    const char *const pairs[] = {"a", "1", "b", "2", "c"};
    SpecialPageField value = "";
    EXPECT_EQ(getSpecialPageZPJLValue("a", pairs, 0, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("1", pairs, 5, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("c", pairs, 5, value), -1);
    EXPECT_EQ(getSpecialPageZPJLValue("b", pairs, 4, value), 0);
    EXPECT_STREQ(value, "2");
}

TEST(PBind, ArgumentsThatItsWriterNeverPasses)
{
    auto value = Buffer(5);
    convertPBindPPDValue("Stationary", value.data(), 5);
    EXPECT_EQ(TextOf(value), "NORM");
    EXPECT_EQ(Printed([] { OutputZPJLCommandforPBindDigital("-3", 4, "PBAX", "RIGHT", 1); }),
              "@PJL SET JOBATTR=\"@PBAX=12\"\n");
}
