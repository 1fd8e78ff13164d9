// TicketReader: the settings among the job's options, read into plain records.
// A module lists what it reads as rows of key, destination, size and getter; an absent ticket leaves the getter's
// absent value.
#pragma once

#include <cups/cups.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// Size of the buffer in which a text is decoded, its NUL included; a longer value is cut, even inside a character,
// which makes it invalid.
constexpr size_t kTicketTextSize = 1024;

// Returns 1 when the key was present, 0 when absent, unless the getter says otherwise.
using TicketGetter = int32_t (*)(const char *key, int32_t optionCount, cups_option_t *options, void *destination,
                                 int32_t size);

// key: the option's name.
// destination: a field of a module's record or a shared buffer.
// size: the destination's size in bytes, a text's NUL included.
// getter: how the value is read.
struct ticketData {
    const char *key;
    void *destination;
    int32_t size;
    TicketGetter getter;
};

// A module's tickets, in the order in which they are read.
using TicketTable = std::span<const ticketData>;

// Ticket keys that more than one module reads.
inline constexpr char kNumberUpTicketKey[] = "number-up";
inline constexpr char kLayoutDirectionTicketKey[] = "com.apple.print.PrintSettings.PMLayoutDirection..n.";
inline constexpr char kQBPunchHoleTicketKey[] = "OVNumPunchHoles";

// The job's options (argument 5) with what the queue's PPD adds to them, parsed once a job.
// text: the argument, and after it a word for each option that was added, with "no" before it where that is false.
struct JobOptions {
    int32_t count;
    cups_option_t *list;
    const char *text;
};
JobOptions OptionsOfJob(const char *const *argv);

// Forgets them, as another job has another PPD.
void CloseOptionsOfJob();

// Reads every row, in order; returns 1.
int32_t GetTicketFromArray(const char *const *argv, const ticketData *table, int32_t count);
int32_t GetTicketFromArray(const char *const *argv, TicketTable table);

// Decodes, in place, a text that is a list of decimal byte values, each preceded by "/"; any other text is left as it
// is. `size` is the buffer's: of a number that ends there or later only the value counts, no NUL is put at its end.
void numstrtochar(char *text, int32_t size);

// The list that numstrtochar decodes to `text`, each value written with at least `digits` digits.
std::string ByteValues(std::string_view text, int digits);

// int32: atoi of the value, -1 when absent.
int32_t GetTicketInteger(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size);

// float: atof of the value, -1.0 when absent.
int32_t GetTicketFloat(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size);

// int32: 1 when the ticket is absent, 0 when present. Returns 1.
int32_t CheckTicketKey(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size);

// Text in the printer's legacy encoding, without decoding of byte values; all zero when absent.
int32_t GetTicketString(const char *key, int32_t optionCount, cups_option_t *options, void *destination, int32_t size);

// Text in the printer's legacy encoding or, ForUTF8, in UTF-8; byte values are decoded. All zero when absent.
int32_t GetTicketStringConvertedToPrtLang(const char *key, int32_t optionCount, cups_option_t *options,
                                          void *destination, int32_t size);
int32_t GetTicketStringConvertedToPrtLangForUTF8(const char *key, int32_t optionCount, cups_option_t *options,
                                                 void *destination, int32_t size);

// The same; return the length of the converted text, 0 when absent.
int32_t GetLengthOfTicketStringConvertedToPrtLang(const char *key, int32_t optionCount, cups_option_t *options,
                                                  void *destination, int32_t size);
int32_t GetLengthOfTicketStringConvertedToPrtLangForUTF8(const char *key, int32_t optionCount, cups_option_t *options,
                                                         void *destination, int32_t size);

// Text in parentheses, in the encoding of the queue's PPD.
int32_t GetTicketStringConvertedToPPDEncodingString(const char *key, int32_t optionCount, cups_option_t *options,
                                                    void *destination, int32_t size);

// Pages per sheet: the option's text or, when it is absent, the count that the layout buffers give (empty for 0, at
// most its last two digits). The first puts "N" before it, save before an absent option's 1. Return 1.
int32_t GetNumberUpTicketString(const char *key, int32_t optionCount, cups_option_t *options, void *destination,
                                int32_t size);
int32_t GetNumberUpTicketStringForComment(const char *key, int32_t optionCount, cups_option_t *options,
                                          void *destination, int32_t size);

// Makers of rows; the size is the field's.
constexpr ticketData IntegerTicket(const char *key, int32_t &field, TicketGetter getter = GetTicketInteger)
{
    return {key, &field, sizeof field, getter};
}
constexpr ticketData DecimalTicket(const char *key, float &field)
{
    return {key, &field, sizeof field, GetTicketFloat};
}
template <size_t N>
constexpr ticketData TextTicket(const char *key, char (&field)[N],
                                TicketGetter getter = GetTicketStringConvertedToPrtLang)
{
    return {key, field, N, getter};
}
