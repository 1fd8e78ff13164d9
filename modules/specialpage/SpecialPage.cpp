#include "SpecialPage.h"

#include "BoundedText.h"
#include "OutputSink.h"

#include <algorithm>
#include <charconv>
#include <cinttypes>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <strings.h>
#include <vector>

constexpr int32_t kItemTicketSize = 256; // key and value of an item's ticket, NUL included

using ItemField = SpecialPageField SpecialPageItem::*;

// command: the first field of the command tickets that belong to this kind.
// paperPosition: where their paper selection starts; a fixed character, whatever fields stand before it.
// valueTicket: the key of an item's value, without its index.
// count: the number of items.
// fields: where the fields of an item's value belong, in their order.
// output: writes the lines of one item.
struct SpecialPageKind {
    const char *command;
    size_t paperPosition;
    const char *valueTicket;
    int32_t SpecialPageOptions::*count;
    std::span<const ItemField> fields;
    void (*output)(const SpecialPageItem &item, const char *paperSelection);
};

static const char kCommandTicket[] = "com.orvane.dlg.printsettings.ZPIFCommandTicket";

static void OutputAttribute(const char *name, const char *value)
{
    QBfprintfCut(stdout, kMaxDirectLineSize, "@PJL SET JOBATTR=\"@%s=%s\"\n", name, value);
}

// A value that the table lacks writes nothing.
static void OutputMapped(const char *name, const char *key, const char *const *table, int32_t count)
{
    SpecialPageField value = "";
    if (getSpecialPageZPJLValue(key, table, count, value) == 0)
        OutputAttribute(name, value);
}

static void OutputMedia(const SpecialPageItem &item, const char *paperSelection)
{
    const bool custom = strcmp(paperSelection, CustomPapertyeSelectNumber) == 0;
    OutputAttribute("EMCP", custom ? "CUSTOM" : "FORMALSIZE");
    OutputAttribute("EMCW", item.width);
    OutputAttribute("EMCH", item.height);
    OutputAttribute("EMCQ", item.mediaType);
    OutputMapped("EMCC", item.colour, MediaColorZPJLComm, MediaColorZPJLCommValueCount);
}

static void OutputCover(const SpecialPageItem &item, const char *paperSelection)
{
    const bool onlyCover = psOptionSpecialPage.coverCount == 1;
    if (strcmp(item.side, "0") == 0) {
        OutputMapped("EFCV", item.printType, CoverTypeZPJLComm, CoverTypeZPJLCommValueCount);
        OutputSPMediaSizeAndColor(item, paperSelection);
        if (onlyCover)
            OutputAttribute("EBCV", "NONE");
    } else if (strcmp(item.side, "1") == 0) {
        if (onlyCover)
            OutputAttribute("EFCV", "NONE");
        OutputMapped("EBCV", item.printType, CoverTypeZPJLComm, CoverTypeZPJLCommValueCount);
        OutputSPMediaSizeAndColor(item, paperSelection);
    }
}

static void OutputInsertion(const SpecialPageItem &item, const char *paperSelection)
{
    OutputAttribute("EIST", item.position);
    OutputSPMediaSizeAndColor(item, paperSelection);
    OutputAttribute("EISC", item.sheets);
}

static void OutputException(const SpecialPageItem &item, const char *paperSelection)
{
    OutputAttribute("EOVS", item.start);
    OutputMedia(item, paperSelection);
    OutputMapped("EMDP", item.sides, SidesZPJLComm, SidesZPJLCommValueCount);
    OutputAttribute("EOVE", item.end);
}

static const ItemField coverFields[] = {
    &SpecialPageItem::side,   &SpecialPageItem::tray,  &SpecialPageItem::printType, &SpecialPageItem::mediaType,
    &SpecialPageItem::colour, &SpecialPageItem::width, &SpecialPageItem::height,
};
static const ItemField insertionFields[] = {
    &SpecialPageItem::tray,  &SpecialPageItem::position, &SpecialPageItem::sheets,    &SpecialPageItem::colour,
    &SpecialPageItem::width, &SpecialPageItem::height,   &SpecialPageItem::mediaType,
};
static const ItemField exceptionFields[] = {
    &SpecialPageItem::unused, &SpecialPageItem::unused, &SpecialPageItem::unused,    &SpecialPageItem::start,
    &SpecialPageItem::end,    &SpecialPageItem::sides,  &SpecialPageItem::mediaType, &SpecialPageItem::colour,
    &SpecialPageItem::width,  &SpecialPageItem::height,
};

// Fields that the value lacks stay empty.
static SpecialPageItem TakeFields(const char *value, std::span<const ItemField> fields)
{
    SpecialPageItem item = {};
    for (const ItemField field : fields) {
        const int32_t next = getOneValue(value, item.*field);
        if (next <= 0)
            break;
        value += next;
    }
    return item;
}

// In output order.
static const SpecialPageKind itemKinds[] = {
    {"0", 6, "com.orvane.dlg.printsettings.ZPIFCoverValueTicket_", &SpecialPageOptions::coverCount, coverFields,
     OutputCover},
    {"1", 8, "com.orvane.dlg.printsettings.ZPIFInsertionValueTicket_", &SpecialPageOptions::insertionCount,
     insertionFields, OutputInsertion},
    {"2", 4, "com.orvane.dlg.printsettings.ZPIFExceptionValueTicket_", &SpecialPageOptions::exceptionCount,
     exceptionFields, OutputException},
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
        SpecialPageField first = "", selection = "";
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
        kind.output(TakeFields(value, kind.fields), item < selections.size() ? selections[item].c_str() : "");
    }
}

void SpecialPageInializeDescriptionTable()
{
    psOptionSpecialPage = {};
}

void SpecialPageGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, SpecialPageTicketData);
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

void OutputSPMediaSizeAndColor(const SpecialPageItem &item, const char *paperSelection)
{
    if (strcmp(item.tray, "0") == 0)
        OutputAttribute("EMCT", "TRAYT1");
    else if (strcmp(item.tray, "1") == 0)
        OutputMedia(item, paperSelection);
}
