// The comment lines that no job writes: those of version 1.5.0.
#include "Comment.h"

#include "BoundedText.h"
#include "Rows.h"

#include <sstream>

// The texts of the lines after what all of them begin with.
static Cells AdvancedLines()
{
    static const std::string start = "@PJL COMMENT PRINTJOBINFO ";
    std::istringstream lines(Printed(OutputZPJLCommandforCommentAdvanced));
    Cells texts;
    for (std::string line; std::getline(lines, line);)
        texts.push_back(line.starts_with(start) ? line.substr(start.size()) : "no line of the block: " + line);
    return texts;
}

// The values that the line of this name has while `setting` goes from 0 to `last`; empty without the line.
static Cells ValuesBy(int32_t &setting, int32_t last, const std::string &name)
{
    Cells values;
    for (setting = 0; setting <= last; setting++) {
        values.emplace_back();
        for (const std::string &line : AdvancedLines())
            if (line.starts_with(name))
                values.back() = line.substr(name.size());
    }
    return values;
}

TEST(Comment, VersionHighIsTheVersionOfTheAdvancedLines)
{
    EXPECT_EQ(Printed(OutputZPJLCommandforCommentVersionHigh), "@PJL COMMENT PRINTJOBINFO VERSION=1.5.0\n");
}

TEST(Comment, OrientationByBookletAndPages)
{
    CheckRows("comment-orientation", [](const Cells &given) {
        psoptioncomment = {};
        CopyCut(psoptioncomment.signature, given[0]);
        CopyCut(psoptioncomment.numberUp, given[1]);
        return ValuesBy(psoptioncomment.orientation, 6, "ORIENTATION=");
    });
}

TEST(Comment, LayoutOrderByPages)
{
    CheckRows("comment-layout", [](const Cells &given) {
        psoptioncomment = {};
        CopyCut(psoptioncomment.numberUp, given[0]);
        return ValuesBy(psoptioncomment.layoutDirection, 7, "NUPEX=");
    });
}

TEST(Comment, AdvancedLinesOfAJob)
{
    CheckRows("comment-advanced", [](const Cells &given) {
        const char *argv[] = {"filter", "1", "taro", "Report", "1", given[0].c_str(), nullptr};
        CommentGetTicketFromPDE(argv);
        return AdvancedLines();
    });
}
