// LineScan: the scans of a document for line ends and for the bytes that lines of interest begin with or hold.
// Each looks at the positions [from, end), many of them at once.
#pragma once

#include <cstddef>

// Answers in bytes, without a branch: compilers make vector code of that, and of bool they do not.
constexpr unsigned char IsLineEnd(char byte)
{
    return (byte == '\n') | (byte == '\r');
}

// The first byte tells almost every line of a document from the markers and the watched prefix.
constexpr unsigned char CanBeMarker(char first)
{
    return (first == '%') | (first == 'b') | (first == 'e') | (first == 's') | (first == 'u');
}

// The first CR or LF, or `end`.
const char *FindLineEnd(const char *from, const char *end);

// The first CR or LF that the first byte of a marker follows, at `end` at the latest; or `end`.
const char *FindEndBeforeMarker(const char *from, const char *end);

// The first position with the one byte there and the other `distance` bytes after it, or `end`.
const char *FindFrame(const char *from, const char *end, ptrdiff_t distance, char first, char last);

// The last CR or LF, or null.
const char *FindLastLineEnd(const char *from, const char *end);

// A CR or LF, the last one where lines are short, or `end`.
const char *FindLateLineEnd(const char *from, const char *end);
