// SpecialPage: covers, inserted sheets and page exceptions as job attributes.
// The numbers of items are tickets of the job; each item's own tickets are read while its lines are written.
#pragma once

#include "TicketReader.h"

#include <cstddef>
#include <cstdint>

// Numbers of items; below 0 counts as none.
struct SpecialPageOptions {
    int32_t coverCount;
    int32_t insertionCount;
    int32_t exceptionCount;
};

extern SpecialPageOptions psOptionSpecialPage;

extern const TicketTable SpecialPageTicketData;

// The paper selection that stands for a custom size.
extern const char CustomPapertyeSelectNumber[];

// Value maps: flat lists of (ticket value, PJL value) pairs; the counts are those of the strings.
extern const char *const CoverTypeZPJLComm[];
extern const int32_t CoverTypeZPJLCommValueCount;
extern const char *const MediaColorZPJLComm[];
extern const int32_t MediaColorZPJLCommValueCount;
extern const char *const SidesZPJLComm[];
extern const int32_t SidesZPJLCommValueCount;

// Size of the buffer of one field of an item's value, NUL included; a longer field is cut.
constexpr size_t kSpecialPageFieldSize = 50;
using SpecialPageField = char[kSpecialPageFieldSize];

// An item's value, taken apart; the fields that its kind does not have are empty.
struct SpecialPageItem {
    SpecialPageField side, tray, printType;            // of a cover
    SpecialPageField position, sheets;                 // of an insertion
    SpecialPageField unused, start, end, sides;        // of an exception
    SpecialPageField mediaType, colour, width, height; // its paper
};

// Puts the record back to the start of a job.
void SpecialPageInializeDescriptionTable();

void SpecialPageGetTicketFromPDE(const char *const *argv);

// Writes the lines of every item that has a value, covers first, then insertions and exceptions.
void OutputZPJLCommandForSpecialPage(const char *const *argv);

// Copies the first field of `source`, up to a "," or the end, into a zeroed buffer of kSpecialPageFieldSize bytes.
// Returns the offset of the next field, 0 when this is the last one, -1 when a pointer is null.
int32_t getOneValue(const char *source, char *dest);

// Copies the PJL value of `key` into a zeroed buffer of kSpecialPageFieldSize bytes. Returns 0, or -1 when the table
// has no such key.
int32_t getSpecialPageZPJLValue(const char *key, const char *const *table, int32_t count, char *dest);

// Writes where the paper of a cover or an insertion comes from: a tray, or what the paper is.
void OutputSPMediaSizeAndColor(const SpecialPageItem &item, const char *paperSelection);
