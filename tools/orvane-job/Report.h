// Report: explanations as people and scripts read them, on standard output.
#pragma once

#include "Explanation.h"

#include <string>
#include <string_view>

// How the terminal takes text. width: its columns, 0 for lines of any length.
struct Paper {
    bool hasColour = false;
    size_t width = 0;
};

// The standard output's; plain when it is no terminal.
Paper PaperOfStandardOutput();

// One entry: a short form, and what it means, wrapped after it. mark: '!' for what is worth a look, '-', '<' and '>'
// for what one of two jobs has, else ' '.
void PrintEntry(const Paper &paper, char mark, std::string_view brief, std::string_view words);
void PrintHeading(const Paper &paper, std::string_view text);

void PrintExplanation(const Paper &paper, const std::string &name, const Explanation &explanation);
void PrintJSON(const std::string &name, const Explanation &explanation);

// Says what differs between two jobs; withKey: whether passwords were opened. Returns whether anything does.
bool PrintDifferences(const Paper &paper, const Explanation &one, const Explanation &other, bool withKey);

// Says what a job has that it would not have without an option, and what it then lacks. Returns how much that is.
size_t PrintGains(const Paper &paper, const Explanation &with, const Explanation &without);
