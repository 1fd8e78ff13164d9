#include "PSDocument.h"

#include "JobState.h"
#include "ModuleDispatch.h"
#include "SystemVersion.h"

#include <algorithm>

// Systems before this version keep no page log.
static constexpr int32_t kFirstPageLogVersion = 0x1070;

// Injects behind what writeUpTo lets through. Blocks are written whole where nothing is to be injected.
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
        if (!reader.marker) {
            WriteBeforePSLine(reader);
            watched(CurrentPSLine(reader), context);
            continue;
        }
        const auto [text, event, rules] = *reader.marker;
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
