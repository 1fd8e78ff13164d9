#include "PSSpool.h"

#include "BoundedText.h"
#include "FeatureCommands.h"
#include "JobHeader.h"
#include "JobState.h"
#include "LineScan.h"
#include "OutputSink.h"
#include "PSDocument.h"

#include <algorithm>
#include <cstring>
#include <cups/cups.h>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>

char PPDPJLOutFilePath[kSpoolPathSize];

// Room for a feature line or one of its words.
static constexpr size_t kFeatureLineSize = 100;

// Digits of a screen line that are looked at.
static constexpr size_t kMaxScreenDigits = 100;

static constexpr char featurePrefix[] = "%%BeginFeature:";

// The first word of each of these sets is the one that the line reader looks for.
static constexpr std::string_view screenWords[] = {"TSCR", "GSCR", "ISCR", "TTRC", "GTRC", "ITRC"};
static constexpr std::string_view curveWords[] = {"TCPR", "GCPR", "ICPR"};
static constexpr PSWatch featureWatch = {featurePrefix, {screenWords[0], curveWords[0]}};
static_assert(CanBeMarker(featurePrefix[0]), "the line reader would pass over the feature lines");
static_assert(screenWords[0].front() == curveWords[0].front() && screenWords[0].back() == curveWords[0].back());

// The resolution that each choice of the output mode asks for, and its line.
static const struct {
    const char *value;
    const char *command;
} resolutions[] = {
    {"600x600", "@PJL SET RESOLUTION=600\n"},
    {"1200x1200", "@PJL SET RESOLUTION=1200\n"},
};

// The halftones of a monochrome device: every attribute takes the choice's value.
static const char *const halftoneNames[] = {"TTRC", "GTRC", "ITRC", "TSCR", "GSCR", "ISCR", nullptr};
static const struct {
    const char *value;
    int32_t values[std::size(halftoneNames) - 1];
} halftones[] = {
    {"Fineness", {64, 64, 64, 64, 64, 64}},
    {"Gradation", {66, 66, 66, 66, 66, 66}},
};

// What is still to be written once a job.
struct FeatureState {
    const char *resolution; // its line, when the document named one
    bool resolutionPending;
    bool defaultsPending;
};

static bool IsKeyword(const char *keyword, const char *key)
{
    return keyword[0] == '*' && strcmp(keyword + 1, key) == 0;
}

// Copies the next word, which ends at a space, and moves past it.
static void TakeWord(std::string_view &text, char (&word)[kFeatureLineSize])
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const size_t length = std::min(text.find(' '), text.size());
    CopyCut(word, text.substr(0, length));
    text.remove_prefix(length);
}

static void OutputHalftone(const char *value)
{
    for (const auto &halftone : halftones)
        if (strcmp(value, halftone.value) == 0)
            outputZPJLCommandFromArray(halftoneNames, halftone.values);
}

static void OutputFeature(std::string_view line, FeatureState &state)
{
    char text[kFeatureLineSize], keyword[kFeatureLineSize], value[kFeatureLineSize];
    CopyCut(text, line);
    std::string_view words = text + strlen(featurePrefix);
    TakeWord(words, keyword);
    TakeWord(words, value);

    if (IsKeyword(keyword, KPPDOutputModeKey))
        for (const auto &resolution : resolutions)
            if (strcmp(value, resolution.value) == 0)
                state.resolution = resolution.command;

    if (PPDAttributeIs("ColorDevice", DeviceColorModeMono)) {
        if (IsKeyword(keyword, KPPDHalfToneKey))
            OutputHalftone(value);
    } else if (state.defaultsPending && PPDAttributeIs("ColorDevice", DeviceColorModeColor)) {
        OutputPJLCommandForPPDKeyArray(PPDKeyArray, JobPPD());
        state.defaultsPending = false;
    }

    if (state.resolutionPending && state.resolution) {
        QBfputs(state.resolution, stdout);
        QBfputs("@PJL SET BITSPERPIXEL=1\n", stdout);
        QBfputs("@PJL SET JOBATTR=\"@DRDM=RASTER\"\n", stdout);
        state.resolutionPending = false;
    }

    if (const char *command = GetThePJLCommandfromKeywordsandMarkedValue(keyword, value))
        QBfputs(command, stdout);
}

std::string GetSubString(std::string_view text, ptrdiff_t from, ptrdiff_t to)
{
    const ptrdiff_t begin = std::max<ptrdiff_t>(from, 0);
    const ptrdiff_t end = std::min(to + 1, static_cast<ptrdiff_t>(text.size()));
    return begin < end ? std::string(text.data() + begin, text.data() + end) : std::string();
}

static bool HoldsAll(std::string_view line, std::span<const std::string_view> words)
{
    return std::ranges::all_of(words, [line](std::string_view word) { return line.find(word) != line.npos; });
}

// Each number of one or two digits is the value of the attribute whose four letters end one byte before it.
static void OutputScreen(std::string_view line)
{
    size_t seen = 0;
    for (size_t p = 0; p < line.size() && seen < kMaxScreenDigits; p++) {
        const auto isDigit = [line](size_t at) { return at < line.size() && line[at] >= '0' && line[at] <= '9'; };
        if (!isDigit(p))
            continue;
        seen++;
        const ptrdiff_t first = static_cast<ptrdiff_t>(p);
        ptrdiff_t last = first;
        if (isDigit(p + 1) && seen < kMaxScreenDigits) {
            seen++;
            last = first + 1;
            p++;
        }
        const std::string name = GetSubString(line, first - 5, first - 2);
        const std::string value = GetSubString(line, first, last);
        QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@%s=%s\"\n", name.c_str(), value.c_str());
    }
}

static void OutputWatchedLine(std::string_view line, void *context)
{
    if (line.starts_with(featurePrefix))
        OutputFeature(line, *static_cast<FeatureState *>(context));
    if (HoldsAll(line, screenWords) || HoldsAll(line, curveWords))
        OutputScreen(line);
}

static FILE *CreateSpoolFile()
{
    const int file = cupsTempFd(PPDPJLOutFilePath, kSpoolPathSize);
    if (file < 0)
        return nullptr;
    FILE *spool = fdopen(file, "wb");
    if (!spool) {
        close(file);
        unlink(PPDPJLOutFilePath);
    }
    return spool;
}

// Of the bytes after the last line end only the last is kept; the document then ends with one 0x04.
static void EndSpooledDocument(const PSLineReader &reader, FILE *spool)
{
    if (!CurrentPSLine(reader).empty())
        QBfputc(reader.last, spool);
    if (reader.last != '\x04')
        QBfputc('\x04', spool);
}

// Copies the document into the spool file. Returns whether all of it is there.
static bool SpoolDocument(int in, const char *const *argv)
{
    // A cancelled job leaves the spool file open and in its place: a static stream is no leak.
    static FILE *spool;
    spool = CreateSpoolFile();
    if (!spool)
        return false;
    FeatureState state = {nullptr, true, true};
    PSLineReader reader;
    OpenPSLineReader(reader, in, spool, QBfwrite, &featureWatch);
    if (!CopyPSDocument(reader, argv, OutputWatchedLine, &state))
        return false;
    EndSpooledDocument(reader, spool);
    const bool failed = ferror(spool);
    if (fclose(spool) != 0 || failed) {
        fputs("ERROR: The spool file could not take the whole document; nothing of it was printed.\n", stderr);
        unlink(PPDPJLOutFilePath);
        return false;
    }
    return true;
}

// Not through the sink: the job copy has had the document.
static void WritePlain(const void *buffer, size_t size, size_t count, FILE *stream)
{
    fwrite(buffer, size, count, stream);
}

static void CopySpooledDocument(int spool)
{
    PSLineReader reader;
    OpenPSLineReader(reader, spool, stdout, WritePlain, nullptr);
    // Until the job is cancelled, no line matters; but comments count only outside of documents within the document.
    const bool byComments = HasPageLogByComments();
    while (!byComments && !CancelJob && SkipPSBlock(reader))
        continue;
    int32_t depth = 0;
    while (NextPSLine(reader)) {
        const std::string_view line = CurrentPSLine(reader);
        if (byComments && IsPSPageEnd(FindPSComment(line, depth)) && CancelJob) {
            WriteBeforePSLine(reader);
            return;
        }
        if (!IsPSPageEnd(line))
            continue;
        WriteThroughPSLine(reader);
        if (CancelJob)
            return;
    }
    const std::string_view tail = CurrentPSLine(reader);
    WritePlain(tail.data(), 1, tail.size(), stdout);
}

void OutputPSStreamtoFileandInsertPJLforFeaturePDE(int argc, const char *const *argv)
{
    const bool fromFile = argc == 7;
    const int in = fromFile ? open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    if (in < 0)
        return;
    const bool complete = SpoolDocument(in, argv);
    if (fromFile)
        close(in);
    if (!complete)
        return;
    OutputZPJLCommandFromArray(argv, prtFmtTableEnterPS, numFmtTableEnterPS);
    const int spool = open(PPDPJLOutFilePath, O_RDONLY | O_CLOEXEC);
    if (spool >= 0) {
        CopySpooledDocument(spool);
        close(spool);
    }
    unlink(PPDPJLOutFilePath);
}
