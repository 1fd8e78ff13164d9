// LineMeanings: what the lines of a job and the options of a call mean, as docs/lines.md and docs/tickets.md say.
// Both documents are built into the tool; the rows of their tables are its data.
#pragma once

#include <string>
#include <string_view>
#include <vector>

inline constexpr char kCommentGroup[] = "Comment block";
inline constexpr char kHoldGroup[] = "How it is held";
inline constexpr char kQualityGroup[] = "Image quality";

// group: the section. A line fits when it begins with `before`, ends with `after` and, unless `variable` names what
// stands between them, is no longer. meaning: may have the variable between stars. longest: bytes that the text can
// have, 0 for any number. remarkable: worth a look wherever it stands.
struct LineMeaning {
    std::string group, before, variable, after, meaning;
    size_t longest;
    bool remarkable;
};

// name: in full. values, gives: the cells of the table without their markup.
struct TicketMeaning {
    std::string name, values, gives;
};

const std::vector<LineMeaning> &LineMeanings();
const std::vector<TicketMeaning> &TicketMeanings();

// The first row that fits the line in its short form, in the comment block or outside it; null when none does. Of a
// line that is `cut`, what stands after the value is not asked for.
const LineMeaning *FindLineMeaning(std::string_view brief, bool isComment, bool isCut = false);

// The row of an option, whose name may have the number of an item at its end; null when the filter reads none so named.
const TicketMeaning *FindTicketMeaning(std::string_view name);
