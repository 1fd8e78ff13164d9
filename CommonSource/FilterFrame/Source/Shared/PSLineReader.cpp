#include "PSLineReader.h"

#include "LineScan.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

// The first of the watched words in [from, end), or `end`.
static const char *FindWord(const char *from, const char *end, const PSWatch &watch)
{
    constexpr size_t last = kPSWordLength - 1;
    const auto &[one, other] = watch.words;
    if (end - from < static_cast<ptrdiff_t>(kPSWordLength))
        return end;
    for (const char *const stop = end - last; (from = FindFrame(from, stop, last, one[0], one[last])) < stop; from++)
        if (const std::string_view word(from, kPSWordLength); word == one || word == other)
            return from;
    return end;
}

void OpenPSLineReader(PSLineReader &reader, int in, FILE *out, void (*write)(const void *, size_t, size_t, FILE *),
                      const PSWatch *watch)
{
    reader.in = in;
    reader.out = out;
    reader.write = write;
    reader.watch = watch;
    reader.end = reader.block + kPSLineRoom;
    reader.written = reader.line = reader.lineEnd = reader.end;
    reader.nextWord = nullptr;
    reader.last = '\0';
    reader.everyLine = false;
}

// The beginning of the first line that may be of interest and has its end in [line, lineEnd]; null when there is none.
static const char *FindCandidate(PSLineReader &reader, const char *lineEnd)
{
    const char *candidate = reader.line;
    if (!reader.everyLine && !CanBeMarker(*candidate))
        candidate = FindEndBeforeMarker(reader.line, lineEnd) + 1;
    if (reader.watch) {
        if (!reader.nextWord || reader.nextWord < reader.line)
            reader.nextWord = FindWord(reader.line, reader.end, *reader.watch);
        if (reader.nextWord < candidate) {
            const char *const before = FindLastLineEnd(reader.line, reader.nextWord);
            candidate = before ? before + 1 : reader.line;
        }
    }
    return candidate <= lineEnd ? candidate : nullptr;
}

bool IsWholePSLine(const PSLineReader &reader)
{
    return IsLineEnd(*reader.lineEnd);
}

bool IsWatchedPSLine(const PSLineReader &reader)
{
    return reader.watch &&
           (reader.nextWord < reader.lineEnd || CurrentPSLine(reader).starts_with(reader.watch->prefix));
}

static void WriteUpTo(PSLineReader &reader, const char *position)
{
    if (position > reader.written)
        reader.write(reader.written, 1, static_cast<size_t>(position - reader.written), reader.out);
    reader.written = position;
}

void WriteBeforePSLine(PSLineReader &reader)
{
    WriteUpTo(reader, reader.line);
}

void WriteThroughPSLine(PSLineReader &reader)
{
    WriteUpTo(reader, reader.lineEnd + 1);
}

std::string_view CurrentPSLine(const PSLineReader &reader)
{
    return {reader.line, reader.lineEnd};
}

// Writes all but the unfinished line, moves that before the block and reads on. Returns false at the end.
static bool Refill(PSLineReader &reader)
{
    WriteBeforePSLine(reader);
    const size_t unfinished = static_cast<size_t>(reader.end - reader.line);
    char *const block = reader.block + kPSLineRoom;
    memmove(block - unfinished, reader.line, unfinished);
    reader.written = reader.line = block - unfinished;

    ssize_t count;
    do
        count = read(reader.in, block, kPSBlockSize);
    while (count < 0 && errno == EINTR);
    if (count <= 0) {
        reader.end = block;
        return false;
    }
    reader.end = block + count;
    reader.last = reader.end[-1];
    reader.nextWord = nullptr;
    return true;
}

bool NextPSLine(PSLineReader &reader)
{
    if (reader.lineEnd < reader.end)
        reader.line = reader.lineEnd + 1;
    for (;;) {
        // What lies before the limit and has a line end is lines that are short enough to be examined.
        const char *const limit = reader.line + std::min<ptrdiff_t>(reader.end - reader.line, kPSLineLimit);
        const char *const lineEnd = FindLateLineEnd(reader.line, limit);
        if (lineEnd == limit) {
            if (limit - reader.line == kPSLineLimit) {
                if (reader.everyLine) {
                    reader.lineEnd = limit - 1;
                    return true;
                }
                reader.line = limit;
            } else if (!Refill(reader)) {
                reader.lineEnd = reader.end;
                return false;
            }
            continue;
        }
        const char *const candidate = FindCandidate(reader, lineEnd);
        if (!candidate) {
            reader.line = lineEnd + 1;
            continue;
        }
        reader.line = candidate;
        reader.lineEnd = FindLineEnd(candidate, lineEnd);
        return true;
    }
}

bool SkipPSBlock(PSLineReader &reader)
{
    if (const char *const last = FindLastLineEnd(reader.line, reader.end))
        reader.line = last + 1;
    reader.line = reader.end - static_cast<size_t>(reader.end - reader.line) % kPSLineLimit;
    const bool more = Refill(reader);
    reader.lineEnd = reader.end;
    return more;
}
