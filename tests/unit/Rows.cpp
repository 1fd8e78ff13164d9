#include "Rows.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

// \e \r \n \t \\ \xHH, and \{N TEXT} for N times the text.
static std::string Unescape(std::string_view text)
{
    static const std::map<char, char> codes = {{'e', '\x1B'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}, {'\\', '\\'}};
    std::string result;
    for (size_t i = 0; i < text.size(); i++) {
        if (text[i] != '\\') {
            result += text[i];
        } else if (text.at(++i) == 'x') {
            result += static_cast<char>(std::stoi(std::string(text.substr(i + 1, 2)), nullptr, 16));
            i += 2;
        } else if (text[i] == '{') {
            const size_t blank = text.find(' ', i), end = text.find('}', i);
            for (int count = std::stoi(std::string(text.substr(i + 1, blank))); count > 0; count--)
                result += text.substr(blank + 1, end - blank - 1);
            i = end;
        } else {
            result += codes.at(text[i]);
        }
    }
    return result;
}

static Cells CellsOf(const std::string &text)
{
    Cells cells;
    std::istringstream all(text + "|");
    for (std::string cell; std::getline(all, cell, '|');) {
        const size_t begin = std::min(cell.find_first_not_of(' '), cell.size());
        cells.push_back(Unescape(cell.substr(begin, cell.find_last_not_of(' ') + 1 - begin)));
    }
    return cells;
}

std::vector<Row> Rows(const std::string &table)
{
    const std::string path = OV_TEST_DATA "/rows/" + table + ".rows";
    std::ifstream file(path);
    std::vector<Row> rows;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        number++;
        for (std::string rest; line.ends_with(" \\") && std::getline(file, rest); number++)
            line.replace(line.size() - 1, 1, rest, std::min(rest.find_first_not_of(' '), rest.size()));
        const size_t arrow = line.find("=>");
        if (!line.empty() && line[0] != '#')
            rows.push_back(
                {CellsOf(line.substr(0, arrow)), CellsOf(line.substr(arrow + 2)), path + ":" + std::to_string(number)});
    }
    EXPECT_FALSE(rows.empty()) << path;
    return rows;
}

void CheckRows(const std::string &table, Cells (*answer)(const Cells &given))
{
    for (const Row &row : Rows(table))
        EXPECT_EQ(answer(row.given), row.expected) << row.where;
}

int32_t Number(const std::string &cell)
{
    return std::stoi(cell);
}

std::vector<char> Buffer(int32_t size)
{
    return std::vector<char>(static_cast<size_t>(std::max(size, 0)), 'x');
}

std::string TextOf(const std::vector<char> &buffer)
{
    return {buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0')};
}
