#include "SpecialPage.h"

#include "BoundedText.h"
#include "OutputSink.h"

#include <algorithm>
#include <charconv>
#include <cinttypes>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>
#include <strings.h>
#include <vector>

constexpr int32_t kItemTicketSize = 256; // key and value of an item's ticket, NUL included

using Field = char[kSpecialPageFieldSize];

// The paper of an item, as its value names it.
struct SpecialPageMedia {
    Field type;
    Field colour;
    Field width;
    Field height;
};

// command: the first field of the command tickets that belong to this kind.
// paperPosition: where their paper selection starts; a fixed character, whatever fields stand before it.
// valueTicket: the key of an item's value, without its index.
// count: the number of items.
// output: writes the lines of one item.
struct SpecialPageKind {
    const char *command;
    size_t paperPosition;
    const char *valueTicket;
    int32_t SpecialPageOptions::*count;
    void (*output)(const char *value, const char *paperSelection);
};

static const char kCommandTicket[] = "com.orvane.dlg.printsettings.ZPIFCommandTicket";

static void OutputAttribute(const char *name, const char *value)
{
    QBfprintfCut(stdout, kMaxDirectLineSize, "@PJL SET JOBATTR=\"@%s=%s\"\n", name, value);
}

// `dest` is zeroed and receives the mapped value; one that the table lacks writes nothing.
static void OutputMapped(const char *name, const char *key, const char *const *table, int32_t count, char *dest)
{
    if (getSpecialPageZPJLValue(key, table, count, dest) == 0)
        OutputAttribute(name, dest);
}

// Reads the field at `offset` and moves on to the next; behind the last one every field is empty.
static void TakeField(const char *value, int32_t &offset, Field &field)
{
    memset(field, 0, sizeof field);
    const int32_t next = getOneValue(value + offset, field);
    offset += next > 0 ? next : static_cast<int32_t>(strlen(value + offset));
}

static void OutputMedia(const SpecialPageMedia &media, const char *paperSelection, char *colourOut)
{
    const bool custom = strcmp(paperSelection, CustomPapertyeSelectNumber) == 0;
    OutputAttribute("EMCP", custom ? "CUSTOM" : "FORMALSIZE");
    OutputAttribute("EMCW", media.width);
    OutputAttribute("EMCH", media.height);
    OutputAttribute("EMCQ", media.type);
    OutputMapped("EMCC", media.colour, MediaColorZPJLComm, MediaColorZPJLCommValueCount, colourOut);
}

static void OutputTrayOrMedia(const char *tray, const SpecialPageMedia &media, const char *paperSelection,
                              char *colourOut)
{
    if (strcmp(tray, "0") == 0)
        OutputAttribute("EMCT", "TRAYT1");
    else if (strcmp(tray, "1") == 0)
        OutputMedia(media, paperSelection, colourOut);
}

static void OutputCover(const char *value, const char *paperSelection)
{
    const bool onlyCover = psOptionSpecialPage.coverCount == 1;
    Field side, tray, printType, pjlType = "", pjlColour = "";
    int32_t offset = 0;
    TakeField(value, offset, side);
    TakeField(value, offset, tray);
    TakeField(value, offset, printType);

    if (strcmp(side, "0") == 0) {
        OutputMapped("EFCV", printType, CoverTypeZPJLComm, CoverTypeZPJLCommValueCount, pjlType);
        OutputSPMediaSizeAndColor(tray, offset, value, paperSelection, pjlColour);
        if (onlyCover)
            OutputAttribute("EBCV", "NONE");
    } else if (strcmp(side, "1") == 0) {
        if (onlyCover)
            OutputAttribute("EFCV", "NONE");
        OutputMapped("EBCV", printType, CoverTypeZPJLComm, CoverTypeZPJLCommValueCount, pjlType);
        OutputSPMediaSizeAndColor(tray, offset, value, paperSelection, pjlColour);
    }
}

static void OutputInsertion(const char *value, const char *paperSelection)
{
    Field tray, position, sheets, pjlColour = "";
    SpecialPageMedia media;
    int32_t offset = 0;
    TakeField(value, offset, tray);
    TakeField(value, offset, position);
    TakeField(value, offset, sheets);
    TakeField(value, offset, media.colour);
    TakeField(value, offset, media.width);
    TakeField(value, offset, media.height);
    TakeField(value, offset, media.type);

    OutputAttribute("EIST", position);
    OutputTrayOrMedia(tray, media, paperSelection, pjlColour);
    OutputAttribute("EISC", sheets);
}

static void OutputException(const char *value, const char *paperSelection)
{
    Field unused, start, end, sides, pjlSides = "", pjlColour = "";
    SpecialPageMedia media;
    int32_t offset = 0;
    for (int i = 0; i < 3; i++)
        TakeField(value, offset, unused);
    TakeField(value, offset, start);
    TakeField(value, offset, end);
    TakeField(value, offset, sides);
    TakeField(value, offset, media.type);
    TakeField(value, offset, media.colour);
    TakeField(value, offset, media.width);
    TakeField(value, offset, media.height);

    OutputAttribute("EOVS", start);
    OutputMedia(media, paperSelection, pjlColour);
    OutputMapped("EMDP", sides, SidesZPJLComm, SidesZPJLCommValueCount, pjlSides);
    OutputAttribute("EOVE", end);
}

// In output order.
static const SpecialPageKind itemKinds[] = {
    {"0", 6, "com.orvane.dlg.printsettings.ZPIFCoverValueTicket_", &SpecialPageOptions::coverCount, OutputCover},
    {"1", 8, "com.orvane.dlg.printsettings.ZPIFInsertionValueTicket_", &SpecialPageOptions::insertionCount,
     OutputInsertion},
    {"2", 4, "com.orvane.dlg.printsettings.ZPIFExceptionValueTicket_", &SpecialPageOptions::exceptionCount,
     OutputException},
};

// The indexes below `count` that the job has tickets for, ascending. A count is only a number in a ticket: asking for
// each index up to it could take minutes. Case is left to the reader, which asks CUPS.
static std::vector<int64_t> TicketIndexes(const JobOptions &options, std::string_view prefix, int64_t count)
{
    std::vector<int64_t> indexes;
    for (int32_t i = 0; i < options.count; i++) {
        const std::string_view name = options.list[i].name;
        if (strncasecmp(name.data(), prefix.data(), prefix.size()) != 0)
            continue;
        const std::string_view digits = name.substr(prefix.size());
        int64_t index = -1;
        std::from_chars(digits.data(), digits.data() + digits.size(), index);
        if (index >= 0 && index < count && digits == std::to_string(index))
            indexes.push_back(index);
    }
    std::sort(indexes.begin(), indexes.end());
    return indexes;
}

static bool ReadItemTicket(const JobOptions &options, const char *prefix, int64_t index, char (&value)[kItemTicketSize])
{
    char key[kItemTicketSize];
    FormatCut(key, "%s%" PRId64, prefix, index);
    return GetTicketStringConvertedToPrtLang(key, options.count, options.list, value, sizeof value) == 1;
}

// The paper selections of the commands of this kind, in order; empty for a command that is too short to have one.
static std::vector<std::string> PaperSelections(const JobOptions &options, const SpecialPageKind &kind,
                                                int64_t commandCount)
{
    std::vector<std::string> selections;
    for (const int64_t index : TicketIndexes(options, kCommandTicket, commandCount)) {
        char command[kItemTicketSize];
        Field first = "", selection = "";
        if (!ReadItemTicket(options, kCommandTicket, index, command))
            continue;
        getOneValue(command, first);
        if (strcmp(first, kind.command) != 0)
            continue;
        if (strlen(command) > kind.paperPosition)
            getOneValue(command + kind.paperPosition, selection);
        selections.emplace_back(selection);
    }
    return selections;
}

// Every item uses up a command of its kind, also one whose value is absent: item n has the n-th selection.
static void OutputItems(const JobOptions &options, const SpecialPageKind &kind, int64_t commandCount)
{
    const std::vector<std::string> selections = PaperSelections(options, kind, commandCount);
    for (const int64_t index : TicketIndexes(options, kind.valueTicket, psOptionSpecialPage.*kind.count)) {
        char value[kItemTicketSize];
        if (!ReadItemTicket(options, kind.valueTicket, index, value))
            continue;
        const size_t item = static_cast<size_t>(index);
        kind.output(value, item < selections.size() ? selections[item].c_str() : "");
    }
}

void SpecialPageInializeDescriptionTable()
{
    psOptionSpecialPage = {};
}

void SpecialPageGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, SpecialPageTicketData, std::size(SpecialPageTicketData));
}

void OutputZPJLCommandForSpecialPage(const char *const *argv)
{
    int64_t total = 0;
    for (const SpecialPageKind &kind : itemKinds) {
        int32_t &count = psOptionSpecialPage.*kind.count;
        count = std::max(count, 0);
        total += count;
    }
    if (total == 0)
        return;
    const JobOptions options = OptionsOfJob(argv);
    for (const SpecialPageKind &kind : itemKinds)
        OutputItems(options, kind, total);
}

int32_t getOneValue(const char *source, char *dest)
{
    if (!source || !dest)
        return -1;
    const size_t length = strcspn(source, ",");
    memcpy(dest, source, std::min(length, kSpecialPageFieldSize - 1));
    return source[length] == ',' ? static_cast<int32_t>(length) + 1 : 0;
}

int32_t getSpecialPageZPJLValue(const char *key, const char *const *table, int32_t count, char *dest)
{
    for (int32_t i = 0; i + 1 < count; i += 2) {
        if (strcmp(key, table[i]) == 0) {
            CopyCut({dest, kSpecialPageFieldSize}, table[i + 1]);
            return 0;
        }
    }
    return -1;
}

void OutputSPMediaSizeAndColor(const char *trayField, int32_t offset, const char *value, const char *paperSelection,
                               char *colourOut)
{
    SpecialPageMedia media;
    TakeField(value, offset, media.type);
    TakeField(value, offset, media.colour);
    TakeField(value, offset, media.width);
    TakeField(value, offset, media.height);
    OutputTrayOrMedia(trayField, media, paperSelection, colourOut);
}
