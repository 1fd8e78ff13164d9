#include "PSDocument.h"

#include "InjectionEvents.h"
#include "JobState.h"
#include "LineScan.h"
#include "ModuleDispatch.h"
#include "SystemVersion.h"

#include <algorithm>

// Systems before this version keep no page log.
static constexpr int32_t kFirstPageLogVersion = 0x1070;

// What a marker line asks for.
enum PSMarkerRules : uint32_t {
    kInjectBefore = 1, // inject, then write the line
    kInjectAfter = 2,  // write the line, then inject
    kFirstOnly = 4,    // inject at the first such line of the document only
    kCountPage = 8,    // count the page before the injection
    kLogPage = 16,     // report the page once its line has been let through
    kPageEnd = 32,     // a page ends with this line: a cancelled job goes no further
};

// text: the whole line; event: what the modules inject at, 0 for none; rules: PSMarkerRules.
struct PSMarker {
    std::string_view text;
    int32_t event;
    uint32_t rules;
};

static constexpr PSMarker markers[] = {
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
static_assert(std::ranges::all_of(markers, [](const PSMarker &marker) { return CanBeMarker(marker.text[0]); }),
              "the line reader would pass over this marker");

static const PSMarker *FindMarker(std::string_view line)
{
    for (const PSMarker &marker : markers)
        if (line == marker.text)
            return &marker;
    return nullptr;
}

bool IsPSPageEnd(std::string_view line)
{
    const PSMarker *marker = FindMarker(line);
    return marker && (marker->rules & kPageEnd);
}

// Injects after what writeUpTo lets through. Blocks are written whole where nothing is to be injected.
static void Inject(PSLineReader &reader, void (*writeUpTo)(PSLineReader &), int32_t event, int32_t pageNumber)
{
    if (!HasPSCommandFromFilter(event))
        return;
    writeUpTo(reader);
    OutputPSCommandFromFilter(event, pageNumber, reader.out);
}

bool CopyPSDocument(PSLineReader &reader, const char *const *argv,
                    void (*watched)(std::string_view line, void *context), void *context)
{
    int32_t pageNumber = 0;
    bool prologEnded = false;
    while (NextPSLine(reader)) {
        const PSMarker *marker = FindMarker(CurrentPSLine(reader));
        if (!marker) {
            if (IsWatchedPSLine(reader)) {
                WriteBeforePSLine(reader);
                watched(CurrentPSLine(reader), context);
            }
            continue;
        }
        const auto [text, event, rules] = *marker;
        if (rules & kCountPage)
            pageNumber++;
        if ((rules & kInjectBefore) && !((rules & kFirstOnly) && prologEnded))
            Inject(reader, WriteBeforePSLine, event, pageNumber);
        if (rules & kFirstOnly)
            prologEnded = true;
        if ((rules & kPageEnd) && CancelJob) {
            WriteBeforePSLine(reader);
            return false;
        }
        if (rules & kInjectAfter)
            Inject(reader, WriteThroughPSLine, event, pageNumber);
        if (rules & kLogPage)
            OutputPageLogCommand(pageNumber, argv);
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
