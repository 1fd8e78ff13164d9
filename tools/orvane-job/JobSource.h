// JobSource: the bytes of a job in pieces that end where one of its lines or parts does.
// A job of any size and contents is read in the same small memory.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

// Universal Exit Language: leaves whatever language the printer is in.
constexpr std::string_view kUEL = "\x1b%-12345X";
constexpr std::string_view kPJLPrefix = "@PJL";

// Longest piece, in bytes; what is longer comes in several.
constexpr size_t kPieceLimit = 16384;

struct JobSource {
    FILE *file;
    std::vector<char> bytes = {}; // those between begin and end are read and not yet taken
    size_t begin = 0;
    size_t end = 0;
    uint64_t offset = 0; // of bytes[begin] in the job
};

// The next piece, good until the next call; empty at the end. A piece that begins with "@PJL", directly or after a UEL,
// ends with a line feed; any other with a line feed, a carriage return or a byte 4. A further UEL begins a piece.
std::string_view NextPiece(JobSource &source);
