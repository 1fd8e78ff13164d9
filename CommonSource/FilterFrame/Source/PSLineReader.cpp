#include "PSLineReader.h"

#include "InjectionEvents.h"
#include "JobState.h"
#include "ModuleDispatch.h"
#include "SystemVersion.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

// Systems before this version keep no page log.
static constexpr int32_t kFirstPageLogVersion = 0x1070;

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

// The first byte tells almost every line of a document from the markers.
static bool CanBeMarker(std::string_view line)
{
    switch (line.empty() ? '\0' : line.front()) {
    case '%':
    case 'b':
    case 'e':
    case 's':
    case 'u':
        return true;
    default:
        return false;
    }
}

static const char *Find(const char *from, const char *end, char byte)
{
    const void *found = memchr(from, byte, static_cast<size_t>(end - from));
    return found ? static_cast<const char *>(found) : end;
}

void OpenPSLineReader(PSLineReader &reader, int in, FILE *out, void (*write)(const void *, size_t, size_t, FILE *),
                      const PSWatch *watch)
{
    reader.in = in;
    reader.out = out;
    reader.write = write;
    reader.watch = watch;
    reader.end = reader.block;
    reader.written = reader.line = reader.lineEnd = reader.block;
    reader.nextCR = reader.nextLF = reader.block;
    std::ranges::fill(reader.nextWord, nullptr);
    reader.marker = nullptr;
    reader.last = '\0';
}

// The first CR or LF at or after the line's begin.
static const char *FindLineEnd(PSLineReader &reader)
{
    if (reader.nextCR < reader.line)
        reader.nextCR = Find(reader.line, reader.end, '\r');
    if (reader.nextLF < reader.line)
        reader.nextLF = Find(reader.line, reader.end, '\n');
    return std::min(reader.nextCR, reader.nextLF);
}

static bool IsWatched(PSLineReader &reader)
{
    if (!reader.watch)
        return false;
    if (CurrentPSLine(reader).starts_with(reader.watch->prefix))
        return true;
    for (size_t i = 0; i < kPSWatchWords; i++) {
        if (!reader.nextWord[i] || reader.nextWord[i] < reader.line) {
            const std::string_view word = reader.watch->words[i];
            const void *found =
                memmem(reader.line, static_cast<size_t>(reader.end - reader.line), word.data(), word.size());
            reader.nextWord[i] = found ? static_cast<const char *>(found) : reader.end;
        }
        if (reader.nextWord[i] < reader.lineEnd)
            return true;
    }
    return false;
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

// Writes all but the unfinished line, moves that to the front and reads on behind it. Returns false at the end.
static bool Refill(PSLineReader &reader)
{
    WriteBeforePSLine(reader);
    const size_t unfinished = static_cast<size_t>(reader.end - reader.line);
    memmove(reader.block, reader.line, unfinished);
    reader.written = reader.line = reader.block;

    ssize_t count;
    do
        count = read(reader.in, reader.block + unfinished, kPSBlockSize);
    while (count < 0 && errno == EINTR);
    if (count <= 0) {
        reader.end = reader.block + unfinished;
        return false;
    }
    reader.end = reader.block + unfinished + count;
    reader.last = reader.end[-1];
    reader.nextCR = Find(reader.line, reader.end, '\r');
    reader.nextLF = Find(reader.line, reader.end, '\n');
    std::ranges::fill(reader.nextWord, nullptr);
    return true;
}

bool NextPSLine(PSLineReader &reader)
{
    if (reader.lineEnd < reader.end)
        reader.line = reader.lineEnd + 1;
    for (;;) {
        const char *const lineEnd = FindLineEnd(reader);
        if (static_cast<size_t>(lineEnd - reader.line) >= kPSLineLimit) {
            reader.line += kPSLineLimit;
        } else if (lineEnd == reader.end) {
            if (!Refill(reader)) {
                reader.lineEnd = reader.end;
                return false;
            }
        } else {
            reader.lineEnd = lineEnd;
            reader.marker = CanBeMarker(CurrentPSLine(reader)) ? FindMarker(CurrentPSLine(reader)) : nullptr;
            if (reader.marker || IsWatched(reader))
                return true;
            reader.line = lineEnd + 1;
        }
    }
}

bool CopyPSDocument(PSLineReader &reader, const char *const *argv,
                    void (*watched)(std::string_view line, void *context), void *context)
{
    int32_t pageNumber = 0;
    bool prologEnded = false;
    while (NextPSLine(reader)) {
        if (!reader.marker) {
            WriteBeforePSLine(reader);
            watched(CurrentPSLine(reader), context);
            continue;
        }
        const auto [text, event, rules] = *reader.marker;
        if (rules & kCountPage)
            pageNumber++;
        if ((rules & kInjectBefore) && !((rules & kFirstOnly) && prologEnded)) {
            WriteBeforePSLine(reader);
            OutputPSCommandFromFilter(event, pageNumber, reader.out);
        }
        if (rules & kFirstOnly)
            prologEnded = true;
        if ((rules & kPageEnd) && CancelJob) {
            WriteBeforePSLine(reader);
            return false;
        }
        if (rules & kInjectAfter) {
            WriteThroughPSLine(reader);
            OutputPSCommandFromFilter(event, pageNumber, reader.out);
        }
        if (rules & kLogPage) {
            WriteThroughPSLine(reader);
            OutputPageLogCommand(pageNumber, argv);
        }
    }
    return true;
}

void OutputPageLogCommand(int32_t pageNumber, const char *const *argv)
{
    int32_t version = 0;
    if (Gestalt_ALT(kGestaltSystemVersion, &version) != 0 || version < kFirstPageLogVersion)
        return;
    // A line end in the argument would begin another message to the print system.
    const std::string_view copies = argv[4];
    const size_t length = std::min(copies.find_first_of("\r\n"), copies.size());
    fprintf(stderr, "PAGE:%d %.*s\n", pageNumber, static_cast<int>(length), argv[4]);
}
