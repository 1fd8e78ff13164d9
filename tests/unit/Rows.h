// Rows: tables of what functions are given and what they answer, in data/rows/NAME.rows, one call a line:
// "cell | cell => cell | cell". Blanks around a cell don't count; escapes are those of the job cases. A line that ends
// with a blank and a backslash goes on in the next one, whose indentation doesn't count.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using Cells = std::vector<std::string>;

struct Row {
    Cells given, expected;
    std::string where; // file and line
};
std::vector<Row> Rows(const std::string &table);

// Calls `answer` with what each row of the table gives, and compares.
void CheckRows(const std::string &table, Cells (*answer)(const Cells &given));

int32_t Number(const std::string &cell);

// A buffer of exactly `size` bytes, so that a sanitizer sees any byte too many; and its text.
std::vector<char> Buffer(int32_t size);
std::string TextOf(const std::vector<char> &buffer);

// What a call prints.
template <typename Call> std::string Printed(Call call)
{
    testing::internal::CaptureStdout();
    call();
    return testing::internal::GetCapturedStdout();
}
