// NameValidation: cuts the job's user and document names to the device's limits and clears those it would refuse.
// Works on the shared name buffers, right after they were converted.
#pragma once

#include <cstdint>

constexpr int kMaxDataRanges = 10;

// An inclusive range of values.
struct DataRange {
    int32_t low;
    int32_t high;
};

// Up to ten ranges; those beyond the count are zero.
struct DataRangeTable {
    int32_t count;
    DataRange ranges[kMaxDataRanges];
};

// The characters that a name may hold: single bytes, and pairs read big-endian.
struct ValidateDataScale {
    DataRangeTable bytes;
    DataRangeTable words;
};

extern const ValidateDataScale userNameValidateDataScale;
extern const ValidateDataScale userNameValidateDataScaleForUTF8;
extern const ValidateDataScale docuNameValidateDataScale;
extern const ValidateDataScale docuNameValidateDataScaleForProduct02;
extern const ValidateDataScale docuNameValidateDataScaleForProduct03;
extern const ValidateDataScale docuNameValidateDataScaleForProduct03UTF8;

// Integer ticket that selects the limits of a document name.
extern const char kPrintTypeProductType[];

bool ISByteValid(const char *text, const DataRangeTable &bytes);
bool ISWordValid(const char *text, const DataRangeTable &words);
bool ISByteSpace(const char *text, const DataRangeTable &bytes);
bool ISWordSpace(const char *text, const DataRangeTable &words);

// 1 when the whole text is made of allowed characters, else 0. A pair is tried before a single byte, also the pair of
// the last byte and the NUL.
int32_t ValidateDada(const char *text, const ValidateDataScale &scale);

// 1 when the text is empty or only spaces (ASCII, or the ideographic space in Shift-JIS), else 0.
int32_t IsAllSpace(const char *text);

// Cuts and checks StdUserName and, with it, StdJBAUserName; a rejected name becomes "UnknownUser".
void InvalidateStdUserName();

// Cut and check StdDocumentName and PTStdDocumentName by the product type; a rejected name becomes empty.
void InvalidateStdDocumentNameForProductType(const char *const *argv);
void InvalidatePrintTypeDocumentNameForProductType(const char *const *argv);

// Cuts StdDocumentName to 24 bytes.
void InvalidateStdDocumentName();
