// Text conversion: UTF-8 by hand, because libraries differ in what they accept, and Shift-JIS with iconv.
#include "Platform.h"

#include <algorithm>
#include <iconv.h>
#include <iterator>

static const char kShiftJIS[] = "SHIFT_JISX0213";
static const char kUTF16[] = "UTF-16BE";

// JIS X 0213 rows 9 to 11, accented Latin and phonetic letters: the printers have no glyphs for them.
constexpr unsigned kFirstCodeWithoutGlyph = 0x8540;
constexpr unsigned kLastCodeWithoutGlyph = 0x869E;

// Longest form of one Shift-JIS character in UTF-16, in bytes: a letter and its combining mark, or a surrogate pair.
constexpr size_t kMaxDecodedBytes = 4;

static bool IsSurrogate(uint32_t code)
{
    return code >= 0xD800 && code <= 0xDFFF;
}

static unsigned Byte(char c)
{
    return static_cast<unsigned char>(c);
}

bool PlatformDecodeUTF8(std::string_view text, std::u16string &units)
{
    // Forms of two, three and four bytes: the lead byte's fixed bits and the smallest value that needs the form.
    static const struct {
        unsigned mask, lead;
        uint32_t smallest;
    } forms[] = {{0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};

    units.clear();
    for (size_t i = 0; i < text.size();) {
        uint32_t code = Byte(text[i++]);
        if (code >= 0x80) {
            size_t form = 0;
            while (form < std::size(forms) && (code & forms[form].mask) != forms[form].lead)
                form++;
            bool valid = form < std::size(forms) && text.size() - i > form;
            if (valid)
                code &= ~forms[form].mask;
            for (size_t left = form + 1; valid && left > 0; left--) {
                valid = (Byte(text[i]) & 0xC0) == 0x80;
                code = code << 6 | (Byte(text[i++]) & 0x3F);
            }
            if (!valid || code < forms[form].smallest || IsSurrogate(code) || code > 0x10FFFF) {
                units.clear();
                return false;
            }
        }
        if (code >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            code = 0xDC00 + (code & 0x3FF);
        }
        units += static_cast<char16_t>(code);
    }
    return true;
}

size_t PlatformEncodeUTF8(char16_t unit, std::span<char, kPlatformMaxUnitBytes> out)
{
    if (IsSurrogate(unit))
        return 0;
    if (unit < 0x80) {
        out[0] = static_cast<char>(unit);
        return 1;
    }
    size_t length = 0;
    if (unit < 0x800) {
        out[length++] = static_cast<char>(0xC0 | unit >> 6);
    } else {
        out[length++] = static_cast<char>(0xE0 | unit >> 12);
        out[length++] = static_cast<char>(0x80 | (unit >> 6 & 0x3F));
    }
    out[length++] = static_cast<char>(0x80 | (unit & 0x3F));
    return length;
}

// Converts one character. Returns the bytes written, 0 when it does not convert.
static size_t ConvertCharacter(iconv_t converter, std::string_view character, std::span<char> out)
{
    constexpr size_t failed = static_cast<size_t>(-1);
    if (converter == reinterpret_cast<iconv_t>(-1))
        return 0;
    char in[8];
    size_t inLeft = character.copy(in, sizeof in);
    size_t outLeft = out.size();
    char *read = in;
    char *write = out.data();
    // The flush matters: a letter that could combine with the next one is held back.
    if (iconv(converter, &read, &inLeft, &write, &outLeft) == failed ||
        iconv(converter, nullptr, nullptr, &write, &outLeft) == failed) {
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        return 0;
    }
    return out.size() - outLeft;
}

size_t PlatformEncodeShiftJIS(char16_t unit, std::span<char, kPlatformMaxUnitBytes> out)
{
    if (unit < 0x80) {
        out[0] = static_cast<char>(unit);
        return 1;
    }
    if (IsSurrogate(unit))
        return 0;
    static const iconv_t converter = iconv_open(kShiftJIS, kUTF16);
    const char character[] = {static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)};
    const size_t length = ConvertCharacter(converter, {character, sizeof character}, out);
    if (length == 2) {
        const unsigned code = Byte(out[0]) << 8 | Byte(out[1]);
        if (code >= kFirstCodeWithoutGlyph && code <= kLastCodeWithoutGlyph)
            return 0;
    }
    return length;
}

static bool IsShiftJISLead(unsigned byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool PlatformDecodeShiftJIS(std::string_view text, std::u16string &units)
{
    units.clear();
    while (!text.empty()) {
        const unsigned lead = Byte(text[0]);
        const size_t length = IsShiftJISLead(lead) ? 2 : 1;
        if (lead < 0x80) {
            units += static_cast<char16_t>(lead);
        } else {
            static const iconv_t converter = iconv_open(kUTF16, kShiftJIS);
            char decoded[kMaxDecodedBytes];
            const size_t bytes = ConvertCharacter(converter, text.substr(0, length), decoded);
            if (bytes == 0) {
                units.clear();
                return false;
            }
            for (size_t i = 0; i < bytes; i += 2)
                units += static_cast<char16_t>(Byte(decoded[i]) << 8 | Byte(decoded[i + 1]));
        }
        text.remove_prefix(std::min(length, text.size()));
    }
    return true;
}
