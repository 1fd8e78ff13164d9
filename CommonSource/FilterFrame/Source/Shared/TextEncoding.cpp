#include "TextEncoding.h"

#include "BoundedText.h"
#include "Platform.h"

#include <algorithm>
#include <cstring>

// Size of the composed text in parentheses, its NUL included.
constexpr size_t kParenthesisedTextSize = 510;

using UnitEncoder = size_t (*)(char16_t unit, std::span<char, kPlatformMaxUnitBytes> out);

static int32_t Convert(const char *source, void *destination, int32_t size, UnitEncoder encode)
{
    if (size <= 0)
        return 0;
    memset(destination, 0, static_cast<size_t>(size));
    const size_t room = static_cast<size_t>(size) - 1;
    size_t length = 0;
    std::u16string units;
    PlatformDecodeUTF8(source, units);
    for (const char16_t unit : units) {
        char bytes[kPlatformMaxUnitBytes];
        const size_t count = std::min(encode(unit, std::span(bytes)), room - length);
        memcpy(static_cast<char *>(destination) + length, bytes, count);
        length += count;
    }
    return static_cast<int32_t>(length);
}

int32_t ConvertUTF8ToEncoding(const char *source, void *destination, int32_t size)
{
    return Convert(source, destination, size, PlatformEncodeShiftJIS);
}

int32_t ConvertUTF8ToEncodingForUTF8(const char *source, void *destination, int32_t size)
{
    return Convert(source, destination, size, PlatformEncodeUTF8);
}

int32_t ConvertUTF8ToPPDEncoding(const char *source, void *destination, int32_t size, uint32_t)
{
    if (size <= 0)
        return 0;
    memset(destination, 0, static_cast<size_t>(size));
    std::u16string units;
    const size_t length = strlen(source) + strlen("()");
    if (length >= static_cast<size_t>(size) || length >= kParenthesisedTextSize || !PlatformDecodeUTF8(source, units))
        return 0;
    FormatCut({static_cast<char *>(destination), static_cast<size_t>(size)}, "(%s)", source);
    return static_cast<int32_t>(length);
}

uint32_t GetCFStringSimEncodingFromPPD(const ppd_file_t *ppd)
{
    const ppd_attr_t *language = ppdFindAttr_ALT(ppd, "LanguageEncoding");
    if (language && language->value && strcmp(language->value, "JIS83-RKSJ") == 0)
        return kCFStringEncodingJIS_X0208_83;
    return kCFStringEncodingUTF8;
}

bool checkIfCharacterIsMultibyte(const char *text)
{
    std::u16string units;
    PlatformDecodeUTF8(text, units);
    for (const char16_t unit : units) {
        char bytes[kPlatformMaxUnitBytes];
        if (PlatformEncodeShiftJIS(unit, bytes) == 0)
            return true;
    }
    return false;
}

std::string InPostScriptString(std::string_view bytes)
{
    std::string characters;
    for (const char byte : bytes) {
        char code[sizeof "\\ooo"];
        if (byte < ' ' || byte > '~' || byte == '(' || byte == ')' || byte == '\\')
            characters.append(code, FormatCut(code, "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(byte))));
        else
            characters += byte;
    }
    return characters;
}

size_t UTF8BytesOfUnits(std::string_view text, size_t units)
{
    for (size_t i = 0; i < text.size(); i++) {
        const unsigned byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) == 0x80)
            continue;
        const size_t needed = byte >= 0xF0 ? 2 : 1;
        if (needed > units)
            return i;
        units -= needed;
    }
    return text.size();
}
