#include "LineMeanings.h"

#include "Documents.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <strings.h>

static constexpr char kTicketPrefix[] = "com.orvane.dlg.printsettings";

// The cells of a row of a Markdown table, or none.
static std::vector<std::string> Cells(std::string_view line)
{
    std::vector<std::string> cells;
    if (!line.starts_with("| `"))
        return cells;
    line.remove_prefix(1);
    for (size_t end; (end = line.find('|')) != line.npos; line.remove_prefix(end + 1)) {
        const std::string_view cell = line.substr(0, end);
        const size_t first = std::min(cell.find_first_not_of(' '), cell.size());
        cells.emplace_back(cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
    }
    return cells;
}

// Calls take(section, cells) for each row of the document's tables.
template <class Take> static void ForEachRow(std::string_view document, Take take)
{
    std::string section;
    while (!document.empty()) {
        const size_t end = std::min(document.find('\n'), document.size() - 1);
        const std::string_view line = document.substr(0, end);
        document.remove_prefix(end + 1);
        if (line.starts_with("## "))
            section = line.substr(3);
        else if (const std::vector<std::string> cells = Cells(line); cells.size() >= 2)
            take(section, cells);
    }
}

static std::string Without(std::string text, char mark)
{
    std::erase(text, mark);
    return text;
}

// "`before`*variable*`after`"
static LineMeaning LineRow(const std::string &section, const std::vector<std::string> &cells)
{
    const std::string form = Without(cells[0], '`');
    const size_t star = std::min(form.find('*'), form.size());
    const size_t secondStar = std::min(form.find('*', star + 1), form.size());
    LineMeaning row{section, form.substr(0, star), "", "", cells[1], 0, cells[1].starts_with("**")};
    if (star < form.size()) {
        row.variable = form.substr(star, secondStar + 1 - star);
        row.after = form.substr(secondStar + 1);
    }
    for (size_t bold; (bold = row.meaning.find("**")) != std::string::npos;)
        row.meaning.erase(bold, 2);
    if (cells.size() > 2)
        row.longest = strtoul(cells[2].c_str(), nullptr, 10);
    return row;
}

const std::vector<LineMeaning> &LineMeanings()
{
    static const std::vector<LineMeaning> rows = [] {
        std::vector<LineMeaning> read;
        ForEachRow(kLinesDocument, [&read](const std::string &section, const std::vector<std::string> &cells) {
            read.push_back(LineRow(section, cells));
        });
        return read;
    }();
    return rows;
}

const std::vector<TicketMeaning> &TicketMeanings()
{
    static const std::vector<TicketMeaning> rows = [] {
        std::vector<TicketMeaning> read;
        ForEachRow(kTicketsDocument, [&read](const std::string &section, const std::vector<std::string> &cells) {
            const std::string name = Without(cells[0], '`');
            if (section != "PPD attributes" && cells.size() == 3)
                read.push_back({(name.starts_with('.') ? kTicketPrefix : "") + name, Without(cells[1], '`'),
                                Without(Without(cells[2], '`'), '*')});
        });
        return read;
    }();
    return rows;
}

const LineMeaning *FindLineMeaning(std::string_view brief, bool isComment, bool isCut)
{
    for (const LineMeaning &row : LineMeanings()) {
        if ((row.group == kCommentGroup) != isComment)
            continue;
        const bool fits = row.variable.empty() ? brief == row.before
                                               : brief.starts_with(row.before) && (isCut || brief.ends_with(row.after));
        if (fits)
            return &row;
    }
    return nullptr;
}

const TicketMeaning *FindTicketMeaning(std::string_view name)
{
    std::string item(name.substr(0, name.find_last_not_of("0123456789") + 1));
    item += "<n>";
    for (const TicketMeaning &row : TicketMeanings())
        if (strcasecmp(row.name.c_str(), std::string(name).c_str()) == 0 ||
            strcasecmp(row.name.c_str(), item.c_str()) == 0)
            return &row;
    return nullptr;
}
