#include "PSLineReader.h"

#include "InjectionEvents.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

static const PSMarker markers[] = {
    {"%%BeginProlog", kEventBeginProlog, kInjectAfter},
    {"%%EndProlog", kEventEndProlog, kInjectBefore | kFirstOnly},
    {"%%EndSetup", kEventEndSetup, kInjectBefore},
    {"userdict/setpagedevice{pop}bind put", kEventNoPageDevice, kInjectBefore},
    {"bp", kEventBeginPage, kInjectAfter},
    {"%%EndPageSetup", kEventEndPageSetup, kInjectAfter},
    {"ep", kEventEndPage, kInjectBefore | kCountPage | kLogPage | kPageEnd},
    {"endp", kEventEndPageOfPM, kInjectBefore | kCountPage | kPageEnd},
    {"showpage", 0, kPageEnd},
};

static const PSMarker *FindMarker(std::string_view line)
{
    for (const PSMarker &marker : markers)
        if (line == marker.text)
            return &marker;
    return nullptr;
}

// Bytes that are looked at together, and the length of common lines.
static constexpr ptrdiff_t kScanStep = 64;
static constexpr ptrdiff_t kShortLine = 256;

// The scans are compiled twice where a processor may have wider vectors than all of its kind.
#if defined(__x86_64__) && defined(__GLIBC__)
#define FOR_WIDE_VECTORS_TOO [[gnu::target_clones("avx2", "default")]]
#else
#define FOR_WIDE_VECTORS_TOO
#endif

// The first position in [from, end) at which the test holds for the byte there and the one `offset` behind it, or
// `end`. The inner loop is one that compilers make vector code of: without a branch, and all in bytes (with bool they
// do not).
template <typename Test>
[[gnu::always_inline]] static inline const char *FindPosition(const char *from, const char *end, ptrdiff_t offset,
                                                              Test test)
{
    for (; end - from >= kScanStep; from += kScanStep) {
        unsigned char any = 0;
        for (ptrdiff_t i = 0; i < kScanStep; i++)
            any = static_cast<unsigned char>(any | test(from[i], from[i + offset]));
        if (any)
            break;
    }
    while (from < end && !test(from[0], from[offset]))
        from++;
    return from;
}

static unsigned char IsLineEnd(char byte)
{
    return (byte == '\n') | (byte == '\r');
}

// The first byte tells almost every line of a document from the markers and the watched prefix.
static unsigned char CanBeMarker(char first)
{
    return (first == '%') | (first == 'b') | (first == 'e') | (first == 's') | (first == 'u');
}

// The first CR or LF in [from, end), or `end`.
FOR_WIDE_VECTORS_TOO static const char *FindLineEnd(const char *from, const char *end)
{
    return FindPosition(from, end, 0, [](char byte, char) { return IsLineEnd(byte); });
}

// The first CR or LF in [from, end) with the first byte of a marker behind it, or `end`.
FOR_WIDE_VECTORS_TOO static const char *FindEndBeforeMarker(const char *from, const char *end)
{
    return FindPosition(from, end, 1, [](char byte, char next) { return IsLineEnd(byte) & CanBeMarker(next); });
}

// The first position in [from, end) with the one byte there and the other as a watched word's last, or `end`.
FOR_WIDE_VECTORS_TOO static const char *FindFrame(const char *from, const char *end, char first, char last)
{
    return FindPosition(from, end, kPSWordLength - 1,
                        [first, last](char byte, char behind) { return (byte == first) & (behind == last); });
}

// The last CR or LF in [from, end), or null.
static const char *FindLastLineEnd(const char *from, const char *end)
{
    while (end > from) {
        const char *const begin = end - std::min(end - from, kShortLine);
        if (FindLineEnd(begin, end) < end) {
            while (!IsLineEnd(*--end))
                continue;
            return end;
        }
        end = begin;
    }
    return nullptr;
}

// A CR or LF in [from, end), the last one where lines are short, or `end`.
static const char *FindLateLineEnd(const char *from, const char *end)
{
    const char *const late = FindLastLineEnd(end - std::min(end - from, kShortLine), end);
    return late ? late : FindLineEnd(from, end);
}

// The first of the watched words in [from, end), or `end`.
static const char *FindWord(const char *from, const char *end, const PSWatch &watch)
{
    constexpr size_t last = kPSWordLength - 1;
    const auto &[one, other] = watch.words;
    if (end - from < static_cast<ptrdiff_t>(kPSWordLength))
        return end;
    for (const char *const stop = end - last; (from = FindFrame(from, stop, one[0], one[last])) < stop; from++)
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
    reader.marker = nullptr;
    reader.last = '\0';
}

// The begin of the first line that may be of interest and has its end in [line, lineEnd]; null when there is none.
static const char *FindCandidate(PSLineReader &reader, const char *lineEnd)
{
    const char *candidate = reader.line;
    if (!CanBeMarker(*candidate))
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

static bool IsWatched(const PSLineReader &reader)
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
        reader.marker = FindMarker(CurrentPSLine(reader));
        if (reader.marker || IsWatched(reader))
            return true;
        reader.line = reader.lineEnd + 1;
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
