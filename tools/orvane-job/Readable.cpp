#include "Readable.h"

#include "Platform.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <vector>

static constexpr size_t kLongestCharacter = 4;

static bool Decode(std::string_view bytes, bool isUTF8, std::u16string &units)
{
    return isUTF8 ? PlatformDecodeUTF8(bytes, units) : PlatformDecodeShiftJIS(bytes, units);
}

// How many bytes at the end must go for the rest to be valid: 0 for a valid text, npos for one that no cut explains.
static size_t BytesOfCutCharacter(std::string_view bytes, bool isUTF8, std::u16string &units)
{
    for (size_t cut = 0; cut < kLongestCharacter && cut <= bytes.size(); cut++)
        if (Decode(bytes.substr(0, bytes.size() - cut), isUTF8, units))
            return cut;
    return bytes.npos;
}

static std::string Named(const char *form, unsigned code)
{
    char text[16];
    snprintf(text, sizeof text, form, code);
    return text;
}

// Controls, and what turns the direction of a line, breaks it or takes no room.
static bool IsInvisible(char16_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x61C || (unit >= 0x200B && unit <= 0x200F) ||
           (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2060 && unit <= 0x206F) || unit == 0xFEFF ||
           (unit >= 0xFFF0 && unit <= 0xFFFB);
}

static std::string Shown(char16_t unit)
{
    if (IsInvisible(unit))
        return Named(unit < 0x100 ? "<%02X>" : "<U+%04X>", unit);
    std::array<char, kPlatformMaxUnitBytes> bytes;
    const size_t length = PlatformEncodeUTF8(unit, bytes);
    return length ? std::string(bytes.data(), length) : Named("<U+%04X>", unit);
}

std::string Readable(std::string_view bytes, bool isUTF8)
{
    std::u16string units;
    const size_t cut = BytesOfCutCharacter(bytes, isUTF8, units);
    std::string text;
    if (cut == bytes.npos) {
        for (const char byte : bytes) {
            const unsigned char code = static_cast<unsigned char>(byte);
            text += code < 0x80 ? Shown(code) : Named("<%02X>", code);
        }
        return text;
    }
    for (const char16_t unit : units)
        text += Shown(unit);
    for (const char byte : bytes.substr(bytes.size() - cut))
        text += Named("<%02X>", static_cast<unsigned char>(byte));
    return text;
}

bool EndsInsideCharacter(std::string_view bytes, bool isUTF8)
{
    std::u16string units;
    const size_t cut = BytesOfCutCharacter(bytes, isUTF8, units);
    return cut != 0 && cut != bytes.npos;
}

bool HasControlCharacter(std::string_view bytes)
{
    return std::ranges::any_of(bytes,
                               [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; });
}

std::string JSONString(std::string_view readable)
{
    std::string text = "\"";
    for (const char character : readable) {
        if (character == '"' || character == '\\')
            text += '\\';
        text += character;
    }
    return text + '"';
}

size_t EditDistance(std::string_view one, std::string_view other)
{
    std::vector<size_t> row(other.size() + 1);
    for (size_t k = 0; k <= other.size(); k++)
        row[k] = k;
    for (size_t i = 0; i < one.size(); i++) {
        size_t diagonal = row[0];
        row[0] = i + 1;
        for (size_t k = 0; k < other.size(); k++) {
            const bool same =
                tolower(static_cast<unsigned char>(one[i])) == tolower(static_cast<unsigned char>(other[k]));
            const size_t replaced = diagonal + !same;
            diagonal = row[k + 1];
            row[k + 1] = std::min({replaced, row[k] + 1, diagonal + 1});
        }
    }
    return row.back();
}
