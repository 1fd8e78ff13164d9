#include "TicketReader.h"

#include "BoundedText.h"
#include "JobState.h"
#include "PPDLookup.h"
#include "PPDTickets.h"
#include "Platform.h"
#include "TextEncoding.h"
#include "UtilityFunctionFilter.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

// Position of the options among the filter's arguments.
constexpr int kOptionsArgument = 5;

using TextConverter = int32_t (*)(const char *source, void *destination, int32_t size);

// What the parsed options come from: the argument and, for what the PPD adds, its name, the user and the title. All of
// it may hold a password, and so may the text that they are given with.
static std::array<std::string, 4> parsedFrom;
static std::string optionText;
static JobOptions parsedOptions;

JobOptions OptionsOfJob(const char *const *argv)
{
    const char *ppd = getenv("PPD");
    const char *text = argv[kOptionsArgument] ? argv[kOptionsArgument] : "";
    const std::array<const char *, 4> from = {text, ppd ? ppd : "", argv[2], argv[3]};
    if (!parsedOptions.text || !std::ranges::equal(parsedFrom, from)) {
        CloseOptionsOfJob();
        std::ranges::copy(from, parsedFrom.begin());
        parsedOptions.count = cupsParseOptions(text, 0, &parsedOptions.list);
        const std::string words = AddPPDTickets(argv, parsedOptions);
        optionText.reserve(strlen(text) + words.size());
        optionText.append(text).append(words);
        parsedOptions.text = optionText.c_str();
    }
    return parsedOptions;
}

void CloseOptionsOfJob()
{
    cupsFreeOptions(parsedOptions.count, parsedOptions.list);
    parsedOptions = {};
    PlatformWipe(optionText.data(), optionText.size());
    optionText.clear();
    for (std::string &text : parsedFrom) {
        PlatformWipe(text.data(), text.size());
        text.clear();
    }
}

int32_t GetTicketFromArray(const char *const *argv, const ticketData *table, int32_t count)
{
    const JobOptions options = OptionsOfJob(argv);
    for (int32_t i = 0; i < count; i++)
        table[i].getter(table[i].key, options.count, options.list, table[i].destination, table[i].size);
    return 1;
}

int32_t GetTicketFromArray(const char *const *argv, TicketTable table)
{
    return GetTicketFromArray(argv, table.data(), static_cast<int32_t>(table.size()));
}

void numstrtochar(char *text, int32_t size)
{
    const size_t length = strlen(text);
    if (length < 2 || text[0] != '/')
        return;
    size_t write = 0;
    for (size_t read = 1; read < length;) {
        const size_t end = read + strcspn(text + read, "/");
        if (std::cmp_less(end, size))
            text[end] = '\0';
        const int value = atoi(text + read);
        text[write++] = value >= 256 ? '\0' : static_cast<char>(value);
        text[write] = '\0';
        read = end + 1;
    }
}

std::string ByteValues(std::string_view text, int digits)
{
    std::string list;
    for (const char byte : text) {
        char number[16];
        list.append(number,
                    FormatCut(number, "/%0*u", digits, static_cast<unsigned>(static_cast<unsigned char>(byte))));
    }
    return list;
}

int32_t GetTicketInteger(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t)
{
    const char *value = cupsGetOption(key, optionCount, options);
    *static_cast<int32_t *>(destination) = value ? atoi(value) : -1;
    return value != nullptr;
}

int32_t GetTicketFloat(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t)
{
    const char *value = cupsGetOption(key, optionCount, options);
    *static_cast<float *>(destination) = value ? static_cast<float>(atof(value)) : -1.0f;
    return value != nullptr;
}

int32_t CheckTicketKey(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t)
{
    *static_cast<int32_t *>(destination) = cupsGetOption(key, optionCount, options) == nullptr;
    return 1;
}

static void Zero(void *destination, int32_t size)
{
    if (size > 0)
        memset(destination, 0, static_cast<size_t>(size));
}

static int32_t DecodeAndConvert(const char *value, void *destination, int32_t size, TextConverter convert)
{
    char text[kTicketTextSize];
    CopyCut(text, value);
    numstrtochar(text, sizeof text);
    return convert(text, destination, size);
}

// What the text getters share: present is what they return, length that of the converted text, 0 when absent.
struct ReadText {
    int32_t present;
    int32_t length;
};

static ReadText GetText(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size,
                        TextConverter convert)
{
    Zero(destination, size);
    const char *value = cupsGetOption(key, optionCount, options);
    if (!value)
        return {0, 0};
    return {1, DecodeAndConvert(value, destination, size, convert)};
}

int32_t GetTicketString(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size)
{
    Zero(destination, size);
    const char *value = cupsGetOption(key, optionCount, options);
    if (value)
        ConvertUTF8ToEncoding(value, destination, size);
    return value != nullptr;
}

int32_t GetTicketStringConvertedToPrtLang(const char *key, int32_t optionCount, cups_option_t *options,
                                          void *destination, int32_t size)
{
    return GetText(key, optionCount, options, destination, size, ConvertUTF8ToEncoding).present;
}

int32_t GetTicketStringConvertedToPrtLangForUTF8(const char *key, int32_t optionCount, cups_option_t *options,
                                                 void *destination, int32_t size)
{
    return GetText(key, optionCount, options, destination, size, ConvertUTF8ToEncodingForUTF8).present;
}

int32_t GetLengthOfTicketStringConvertedToPrtLang(const char *key, int32_t optionCount, cups_option_t *options,
                                                  void *destination, int32_t size)
{
    return GetText(key, optionCount, options, destination, size, ConvertUTF8ToEncoding).length;
}

int32_t GetLengthOfTicketStringConvertedToPrtLangForUTF8(const char *key, int32_t optionCount, cups_option_t *options,
                                                         void *destination, int32_t size)
{
    return GetText(key, optionCount, options, destination, size, ConvertUTF8ToEncodingForUTF8).length;
}

static int32_t ConvertToQueueEncoding(const char *source, void *destination, int32_t size)
{
    return ConvertUTF8ToPPDEncoding(source, destination, size, GetCFStringSimEncodingFromPPD(JobPPD()));
}

int32_t GetTicketStringConvertedToPPDEncodingString(const char *key, int32_t optionCount, cups_option_t *options,
                                                    void *destination, int32_t size)
{
    return GetText(key, optionCount, options, destination, size, ConvertToQueueEncoding).present;
}

static int32_t NumberUp(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size,
                        const char *prefix)
{
    const char *value = cupsGetOption(key, optionCount, options);
    char digits[3];
    if (!value) {
        const int64_t count = LayoutCount();
        // Of a longer number the last two digits fit; the hundred keeps the zero before the last one.
        const int64_t shown = count < 100 ? std::max<int64_t>(count, 0) : 100 + count % 100;
        value = itoa(static_cast<int32_t>(shown), digits, sizeof digits);
        if (count == 1 || !*value)
            prefix = "";
    }
    char text[kTicketTextSize];
    FormatCut(text, "%s%s", prefix, value);
    DecodeAndConvert(text, destination, size, ConvertUTF8ToEncoding);
    return 1;
}

int32_t GetNumberUpTicketString(const char *key, int32_t optionCount, cups_option_t *options, void *destination,
                                int32_t size)
{
    return NumberUp(key, optionCount, options, destination, size, "N");
}

int32_t GetNumberUpTicketStringForComment(const char *key, int32_t optionCount, cups_option_t *options,
                                          void *destination, int32_t size)
{
    return NumberUp(key, optionCount, options, destination, size, "");
}
