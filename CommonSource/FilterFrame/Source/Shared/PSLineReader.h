// PSLineReader: the lines of a PostScript document, those among them that may be of interest, and the way out of all.
// Reads large blocks and writes them as they lie; the rules are those of a byte-wise reader with an 8192-byte line
// buffer.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>

// A line ends at a CR or LF, each by itself. One that holds this many bytes without an end is let through unexamined;
// what follows is a line of its own.
constexpr size_t kPSLineLimit = 8065;

// What is read at once: no more than a pipe holds, so that the next block is read and examined while the reader at the
// pipe's other end takes the last. It always begins at a page, to which the kernel copies fastest.
constexpr size_t kPSBlockSize = 65536;
constexpr size_t kPSBlockAlignment = 4096;
constexpr size_t kPSLineRoom = 2 * kPSBlockAlignment;
static_assert(kPSLineRoom >= kPSLineLimit);

// Length of a watched word.
constexpr size_t kPSWordLength = 4;

// Lines that are of interest beside the markers: those that begin with the prefix, whose first letter CanBeMarker
// knows, or hold one of the words, whose first and last letters are the same.
struct PSWatch {
    std::string_view prefix;
    std::string_view words[2];
};

// The document's way from a descriptor to a stream. Everything before `written` is out; the current line begins at
// `line` and, when NextPSLine found one, its end is `lineEnd`.
struct PSLineReader {
    int in;
    FILE *out;
    void (*write)(const void *buffer, size_t size, size_t count, FILE *stream); // QBfwrite, or a plain write
    const PSWatch *watch;                                                       // or null

    alignas(kPSBlockAlignment) char block[kPSLineRoom + kPSBlockSize]; // an unfinished line, then what is read
    const char *written;
    const char *line;
    const char *lineEnd;
    char *end;            // of the bytes read
    const char *nextWord; // the first at or after `line`, or `end`; null when not looked for
    char last;            // last byte of the input, 0 when it is empty
    bool everyLine;       // every line is of interest; false at first
};

void OpenPSLineReader(PSLineReader &reader, int in, FILE *out, void (*write)(const void *, size_t, size_t, FILE *),
                      const PSWatch *watch);

// Moves to the next line that CanBeMarker or is watched; the lines on the way go out with their block or, sooner, with
// one of the write calls. Returns false at the end of the input, with all complete lines written.
bool NextPSLine(PSLineReader &reader);

// False for a part of a line that is too long to be examined, which is found only where every line is of interest.
bool IsWholePSLine(const PSLineReader &reader);

// Whether the current line is watched.
bool IsWatchedPSLine(const PSLineReader &reader);

// Writes the lines that have been read, unexamined, and reads on. Returns false at the end of the input.
bool SkipPSBlock(PSLineReader &reader);

// The current line without its end; after NextPSLine returned false, the bytes after the last line end.
std::string_view CurrentPSLine(const PSLineReader &reader);

// Write what lies before the current line, or that and the line with its end.
void WriteBeforePSLine(PSLineReader &reader);
void WriteThroughPSLine(PSLineReader &reader);
