#include "PSDocument.h"

#include "InjectionEvents.h"
#include "JobState.h"
#include "LineScan.h"
#include "ModuleDispatch.h"
#include "PPDLookup.h"
#include "SystemVersion.h"

#include <algorithm>
#include <charconv>
#include <cstring>

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
    kBeforePages = 64, // what comes before the pages is over: inject for them, once
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
    {"%%EndSetup", kEventEndSetup, kInjectBefore | kBeforePages},
    {"userdict/setpagedevice{pop}bind put", kEventNoPageDevice, kInjectBefore | kBeforePages},
    {"bp", kEventBeginPage, kInjectAfter},
    {"%%EndPageSetup", kEventEndPageSetup, kInjectAfter},
    {"ep", kEventEndPage, kInjectBefore | kCountPage | kLogPage | kPageEnd},
    {"endp", kEventEndPageOfPM, kInjectBefore | kCountPage | kPageEnd},
    {"showpage", 0, kPageEnd},
};
static constexpr std::string_view kCopiesComment = "%RBINumCopies:"; // of pstops
static constexpr struct {
    std::string_view text; // the line's beginning
    PSComment comment;
} comments[] = {
    {"%%BeginDocument", PSComment::BeginDocument},
    {"%%EndDocument", PSComment::EndDocument},
    {"%%Page:", PSComment::Page},
    {"%%Trailer", PSComment::Trailer},
    {kCopiesComment, PSComment::Copies},
};

static constexpr auto isRead = [](const auto &line) { return CanBeMarker(line.text[0]); };
static_assert(std::ranges::all_of(markers, isRead) && std::ranges::all_of(comments, isRead),
              "the line reader would pass over one of these lines");

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

// What can be sent of argument 4: a line end in it would begin another message to the print system.
static int LengthOfCopies(const char *const *argv)
{
    return static_cast<int>(strcspn(argv[4], "\r\n"));
}

// Injects after what writeUpTo lets through. Blocks are written whole where nothing is to be injected.
static void Inject(PSLineReader &reader, void (*writeUpTo)(PSLineReader &), int32_t event, int32_t pageNumber)
{
    if (!HasPSCommandFromFilter(event))
        return;
    writeUpTo(reader);
    OutputPSCommandFromFilter(event, pageNumber, reader.out);
}

bool HasPageLogByComments()
{
    return PPDAttributeIs("OVPageLogMethod", "PageComments");
}

PSComment FindPSComment(std::string_view line, int32_t &depth)
{
    for (const auto &[text, comment] : comments) {
        if (!line.starts_with(text))
            continue;
        if (comment == PSComment::BeginDocument)
            depth++;
        if (comment == PSComment::EndDocument && depth > 0)
            depth--;
        return depth == 0 ? comment : PSComment::None;
    }
    return PSComment::None;
}

bool IsPSPageEnd(PSComment comment)
{
    return comment == PSComment::Page || comment == PSComment::Trailer;
}

// A copy of a document on its way.
struct PSDocumentCopy {
    PSLineReader &reader;
    const char *const *argv;
    int32_t pageNumber = 0; // of the page whose end was seen last
    bool prologEnded = false;

    // What is injected before the pages is still to come; the first line says whether comments will show the place.
    bool beforePages = HasPSCommandFromFilter(kEventBeforePages);
    bool firstLine = true;
    bool longLine = false;
    bool hasComments = false;

    int32_t depth = 0; // of documents within the document
    bool fillers = HasPSCommandFromFilter(kEventFillerPage);
    bool reports = HasPageLogByComments();
    bool inPage = false;
    int32_t page = 0;   // of those that began with a comment
    int32_t copies = 0; // 0: those of the job
};

static void InjectBeforePages(PSDocumentCopy &copy)
{
    Inject(copy.reader, WriteBeforePSLine, kEventBeforePages, 0);
    copy.beforePages = copy.reader.everyLine = false;
}

// Without comments, what the pages are to find must stand before the first line of code.
static void LookForCode(PSDocumentCopy &copy)
{
    const std::string_view line = CurrentPSLine(copy.reader);
    if (copy.firstLine)
        copy.hasComments = line.starts_with("%!PS-Adobe-");
    copy.firstLine = false;
    if (copy.hasComments)
        copy.reader.everyLine = false;
    else if (!copy.longLine && !line.empty() && line[0] != '%')
        InjectBeforePages(copy);
    copy.longLine = !IsWholePSLine(copy.reader);
}

static void ReportPage(PSDocumentCopy &copy)
{
    if (!copy.inPage)
        return;
    if (copy.copies > 0)
        fprintf(stderr, "PAGE: %d %d\n", copy.page, copy.copies);
    else
        fprintf(stderr, "PAGE: %d %.*s\n", copy.page, LengthOfCopies(copy.argv), copy.argv[4]);
}

// The number that the text begins with, after blanks; 0 for none.
static int32_t NumberIn(std::string_view text)
{
    int32_t number = 0;
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

// Returns false when a cancelled job ends before the comment.
static bool TakeComment(PSDocumentCopy &copy, PSComment comment)
{
    if (comment == PSComment::Copies && copy.page == 0)
        copy.copies = NumberIn(CurrentPSLine(copy.reader).substr(kCopiesComment.size()));
    if (!copy.reports || !IsPSPageEnd(comment))
        return true;
    ReportPage(copy);
    if (CancelJob) {
        WriteBeforePSLine(copy.reader);
        return false;
    }
    copy.inPage = comment == PSComment::Page;
    copy.page += copy.inPage;
    return true;
}

// Returns false when a cancelled job ends before the marker.
static bool TakeMarker(PSDocumentCopy &copy, const PSMarker &marker)
{
    const auto [text, event, rules] = marker;
    if (rules & kCountPage)
        copy.pageNumber++;
    if ((rules & kInjectBefore) && !((rules & kFirstOnly) && copy.prologEnded))
        Inject(copy.reader, WriteBeforePSLine, event, copy.pageNumber);
    if (rules & kFirstOnly)
        copy.prologEnded = true;
    if ((rules & kPageEnd) && CancelJob) {
        WriteBeforePSLine(copy.reader);
        return false;
    }
    if (rules & kInjectAfter)
        Inject(copy.reader, WriteThroughPSLine, event, copy.pageNumber);
    if ((rules & kLogPage) && !copy.reports)
        OutputPageLogCommand(copy.pageNumber, copy.argv);
    return true;
}

bool CopyPSDocument(PSLineReader &reader, const char *const *argv,
                    void (*watched)(std::string_view line, void *context), void *context)
{
    PSDocumentCopy copy = {reader, argv};
    reader.everyLine = copy.beforePages;
    const bool byComments = copy.beforePages || copy.fillers || copy.reports;
    while (NextPSLine(reader)) {
        if (reader.everyLine)
            LookForCode(copy);
        if (!IsWholePSLine(reader))
            continue;
        const std::string_view line = CurrentPSLine(reader);
        const PSMarker *marker = FindMarker(line);
        const PSComment comment = byComments ? FindPSComment(line, copy.depth) : PSComment::None;
        if (copy.beforePages && copy.hasComments && copy.depth == 0 &&
            (comment == PSComment::Page || (marker && (marker->rules & kBeforePages))))
            InjectBeforePages(copy);
        if (!TakeComment(copy, comment) || (marker && !TakeMarker(copy, *marker)))
            return false;
        if (comment == PSComment::Page && copy.fillers && line.starts_with("%%Page: (filler)"))
            Inject(reader, WriteThroughPSLine, kEventFillerPage, 0);
        if (!marker && IsWatchedPSLine(reader)) {
            WriteBeforePSLine(reader);
            watched(line, context);
        }
    }
    ReportPage(copy);
    if (copy.beforePages && copy.hasComments)
        fputs("DEBUG: No watermark: the document has comments, but none that ends its setup or begins a page.\n",
              stderr);
    return true;
}

void OutputPageLogCommand(int32_t pageNumber, const char *const *argv)
{
    int32_t version = 0;
    if (Gestalt_ALT(kGestaltSystemVersion, &version) != 0 || version < kFirstPageLogVersion)
        return;
    fprintf(stderr, "PAGE:%d %.*s\n", pageNumber, LengthOfCopies(argv), argv[4]);
}
