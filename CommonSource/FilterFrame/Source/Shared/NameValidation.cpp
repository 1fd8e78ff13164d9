#include "NameValidation.h"

#include "BoundedText.h"
#include "JobState.h"
#include "PPDLookup.h"
#include "Platform.h"
#include "TextEncoding.h"
#include "TicketReader.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

const char kPrintTypeProductType[] = "com.orvane.dlg.printsettings.PrintTypeProductTypeTicketKey";

// Printable ASCII and half-width katakana; the lead bytes of Shift-JIS with their trail bytes, ranges read as numbers.
constexpr DataRangeTable shiftJISBytes = {2, {{0x20, 0x7E}, {0xA1, 0xDF}}};
constexpr DataRangeTable shiftJISWords = {4, {{0x8140, 0x9F7E}, {0x8180, 0x9FFC}, {0xE040, 0xFC7E}, {0xE080, 0xFCFC}}};
constexpr DataRangeTable UTF8Bytes = {1, {{0x20, 0xFF}}};
constexpr DataRangeTable UTF8Words = {1, {{0x0020, 0xFFFF}}};

// Of the words of product 02 only 0x8160 occurs in Shift-JIS text: no character there begins with 0x00 or 0xFF.
const ValidateDataScale userNameValidateDataScale = {shiftJISBytes, shiftJISWords};
const ValidateDataScale userNameValidateDataScaleForUTF8 = {UTF8Bytes, UTF8Words};
const ValidateDataScale docuNameValidateDataScale = {shiftJISBytes, shiftJISWords};
const ValidateDataScale docuNameValidateDataScaleForProduct02 = {
    shiftJISBytes, {3, {{0x0020, 0x007E}, {0x8160, 0x8160}, {0xFF61, 0xFF9F}}}};
const ValidateDataScale docuNameValidateDataScaleForProduct03 = {shiftJISBytes, shiftJISWords};
const ValidateDataScale docuNameValidateDataScaleForProduct03UTF8 = {UTF8Bytes, UTF8Words};

// What IsAllSpace takes for a space beside the ASCII one: the ideographic space of Shift-JIS.
constexpr ValidateDataScale spaceDataScale = {{0, {}}, {1, {{0x8140, 0x8140}}}};

// Limits of a user name: UTF-16 units in UTF-8 mode, bytes otherwise.
constexpr size_t kUserNameLimit = 255;
constexpr size_t kJBAUserNameUnits = 32;

// The limit of a document name in bytes, whatever the product.
constexpr size_t kDocumentNameLimit = 24;

// What a document name may be by product type; the last row is for every other type.
// limit: in UTF-16 units in UTF-8 mode, otherwise in columns.
// scale, scaleForUTF8: what the print-type name may hold; legacy characters in UTF-8 mode leave little but ASCII.
// replaces: in legacy mode the print-type name is emptied before it takes the document's.
struct DocumentNameRule {
    int32_t type;
    size_t limit;
    const ValidateDataScale &scale;
    const ValidateDataScale &scaleForUTF8;
    bool replaces;
};
static const DocumentNameRule documentNameRules[] = {
    {2, 12, docuNameValidateDataScaleForProduct02, docuNameValidateDataScale, true},
    {3, 64, docuNameValidateDataScaleForProduct03, docuNameValidateDataScaleForProduct03UTF8, true},
    {5, 24, docuNameValidateDataScale, docuNameValidateDataScaleForProduct03UTF8, false},
    {-1, 24, docuNameValidateDataScale, docuNameValidateDataScale, false},
};

// A unit with one of these bits counts two columns.
constexpr unsigned kWideUnitBits = 0x1100;

// Most bytes that a buffer's end can leave of a character that it cut.
constexpr size_t kMaxCutBytes = 2;

static bool InRanges(int32_t value, const DataRangeTable &table)
{
    for (int32_t i = 0; i < table.count; i++)
        if (value >= table.ranges[i].low && value <= table.ranges[i].high)
            return true;
    return false;
}

static int32_t ByteAt(const char *text)
{
    return static_cast<unsigned char>(*text);
}

bool ISByteValid(const char *text, const DataRangeTable &bytes)
{
    return InRanges(ByteAt(text), bytes);
}

bool ISWordValid(const char *text, const DataRangeTable &words)
{
    return InRanges(ByteAt(text) << 8 | ByteAt(text + 1), words);
}

bool ISByteSpace(const char *text, const DataRangeTable &bytes)
{
    return ISByteValid(text, bytes);
}

bool ISWordSpace(const char *text, const DataRangeTable &words)
{
    return ISWordValid(text, words);
}

int32_t ValidateDada(const char *text, const ValidateDataScale &scale)
{
    while (*text) {
        if (ISWordValid(text, scale.words)) {
            if (text[1] == '\0') // the last byte pairs with the end of the text
                return 1;
            text += 2;
        } else if (ISByteValid(text, scale.bytes)) {
            text++;
        } else {
            return 0;
        }
    }
    return 1;
}

int32_t IsAllSpace(const char *text)
{
    while (*text) {
        if (*text == ' ' || ISByteSpace(text, spaceDataScale.bytes))
            text++;
        else if (ISWordSpace(text, spaceDataScale.words))
            text += 2;
        else
            return 0;
    }
    return 1;
}

using Decoder = bool (*)(std::string_view text, std::u16string &units);

// The characters of a name; one that the buffer cut is taken off the name.
static std::u16string ReadName(char *name, Decoder decode)
{
    std::u16string units;
    const std::string_view text = name;
    for (size_t cut = 0; cut <= std::min(kMaxCutBytes, text.size()); cut++) {
        if (!decode(text.substr(0, text.size() - cut), units))
            continue;
        memset(name + text.size() - cut, 0, cut);
        break;
    }
    return units;
}

// Cuts a name to `limit` units and returns how many it had.
static size_t CutToUnits(std::span<char> name, size_t limit)
{
    const size_t units = ReadName(name.data(), PlatformDecodeUTF8).size();
    if (units > limit) {
        const size_t bytes = UTF8BytesOfUnits(name.data(), limit);
        memset(name.data() + bytes, 0, name.size() - bytes);
    }
    return units;
}

// Cuts a longer name where its characters reach `limit` columns.
static void CutToWidth(char *name, size_t limit)
{
    if (strlen(name) <= limit)
        return;
    size_t width = 0;
    for (const char16_t unit : ReadName(name, PlatformDecodeShiftJIS)) {
        width += unit & kWideUnitBits ? 2 : 1;
        if (width >= limit) {
            name[width == limit ? limit : limit - 1] = '\0';
            return;
        }
    }
}

template <size_t size> static void Clear(char (&buffer)[size])
{
    memset(buffer, 0, size);
}

static bool IsUserName(const ValidateDataScale &scale)
{
    return ValidateDada(StdUserName, scale) && !IsAllSpace(StdUserName);
}

static void InvalidateStdUserNameForUTF8()
{
    const size_t units = CutToUnits(StdUserName, kUserNameLimit);
    if (units == 0 || !IsUserName(userNameValidateDataScaleForUTF8)) {
        Clear(StdUserName);
        Clear(StdJBAUserName);
        CopyCut(StdUserName, defaultUserName);
        CopyCut(StdJBAUserName, defaultUserName);
    } else if (units > kJBAUserNameUnits) {
        Clear(StdJBAUserName);
        CopyCut(StdJBAUserName, {StdUserName, UTF8BytesOfUnits(StdUserName, kJBAUserNameUnits)});
    }
}

void InvalidateStdUserName()
{
    if (IsUTF8Mode()) {
        InvalidateStdUserNameForUTF8();
        return;
    }
    StdUserName[kUserNameLimit] = '\0';
    if (IsUserName(userNameValidateDataScale))
        return;
    // StdJBAUserName keeps even a rejected name: accounting then knows at least what it was.
    memset(StdUserName, 0, kUserNameSizeLegacy);
    CopyCut(StdUserName, defaultUserName);
}

// The rule of the job's product type; null when the job names none.
static const DocumentNameRule *RuleOfJob(const char *const *argv)
{
    const JobOptions options = OptionsOfJob(argv);
    int32_t type;
    if (GetTicketInteger(kPrintTypeProductType, options.count, options.list, &type, sizeof type) == 0)
        return nullptr;
    const DocumentNameRule *const other = std::end(documentNameRules) - 1;
    return std::find_if(documentNameRules, other, [type](const DocumentNameRule &rule) { return rule.type == type; });
}

static void DropInvalidPrintTypeName(const ValidateDataScale &scale)
{
    if (!ValidateDada(PTStdDocumentName, scale))
        Clear(PTStdDocumentName);
}

void InvalidateStdDocumentNameForProductType(const char *const *argv)
{
    const DocumentNameRule *const rule = RuleOfJob(argv);
    if (IsUTF8Mode()) {
        if (rule)
            CutToUnits(StdDocumentName, rule->limit);
        return;
    }
    if (!rule) {
        DropInvalidPrintTypeName(docuNameValidateDataScale);
        return;
    }
    CutToWidth(StdDocumentName, rule->limit);
    if (rule->replaces)
        Clear(PTStdDocumentName);
    memcpy(PTStdDocumentName, StdDocumentName, rule->limit);
    DropInvalidPrintTypeName(rule->scale);
}

void InvalidatePrintTypeDocumentNameForProductType(const char *const *argv)
{
    const DocumentNameRule *const rule = RuleOfJob(argv);
    if (!rule) {
        DropInvalidPrintTypeName(docuNameValidateDataScale);
    } else if (IsUTF8Mode()) {
        CutToUnits(PTStdDocumentName, rule->limit);
        DropInvalidPrintTypeName(rule->scaleForUTF8);
    } else {
        CutToWidth(PTStdDocumentName, rule->limit);
        DropInvalidPrintTypeName(rule->scale);
    }
}

void InvalidateStdDocumentName()
{
    StdDocumentName[kDocumentNameLimit] = '\0';
}
