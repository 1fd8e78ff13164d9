// TextEncoding: user text from UTF-8 to what the printer takes.
// Every converter fills a caller's buffer, NUL-terminated and cut to its size; none fails loudly.
#pragma once

#include "PPDLookup.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Encoding numbers of the PPD converter.
constexpr uint32_t kCFStringEncodingUTF8 = 0x08000100;
constexpr uint32_t kCFStringEncodingJIS_X0208_83 = 0x0621;
constexpr uint32_t kCFStringEncodingShiftJIS_X0213 = 0x0628;

// Convert UTF-8 text to Shift-JIS (JIS X 0213) or, ForUTF8, to UTF-8, character by character into `size` bytes: a
// character without an encoding is dropped, the cut may split one. Return the length written; 0, with the destination
// all zero, when the source is not valid UTF-8.
int32_t ConvertUTF8ToEncoding(const char *source, void *destination, int32_t size);
int32_t ConvertUTF8ToEncodingForUTF8(const char *source, void *destination, int32_t size);

// Writes the text in parentheses, as UTF-8 whatever `encoding` says. Returns the length written; 0 when the source is
// not valid UTF-8 or the result doesn't fit.
int32_t ConvertUTF8ToPPDEncoding(const char *source, void *destination, int32_t size, uint32_t encoding);

// The encoding that the PPD's LanguageEncoding stands for; UTF-8 for null.
uint32_t GetCFStringSimEncodingFromPPD(const ppd_file_t *ppd);

// True when the text holds a character that Shift-JIS can't carry.
bool checkIfCharacterIsMultibyte(const char *text);

// The bytes as they stand in a string of PostScript (PostScript Language Reference, 3.2.2), its parentheses left out:
// what is not printable ASCII, parentheses and backslashes as \ooo.
std::string InPostScriptString(std::string_view bytes);

// The bytes that the first `units` UTF-16 units of valid UTF-8 text take; half of a surrogate pair takes none.
size_t UTF8BytesOfUnits(std::string_view text, size_t units);
