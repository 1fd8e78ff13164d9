#include "zspenclib.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <string_view>

static const char zspkey[] = "tmbr";
constexpr int32_t kBlockBytes = sizeof zspkey - 1;

static constexpr char B64CHR[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The value of each alphabet character by its code; 255 for every other code.
static constexpr std::array<unsigned char, 128> B64TBL = [] {
    std::array<unsigned char, 128> table{};
    table.fill(255);
    for (unsigned char value = 0; value < 64; value++)
        table[static_cast<size_t>(B64CHR[value])] = value;
    return table;
}();

static uint32_t ValueOf(unsigned char character)
{
    return character < B64TBL.size() ? B64TBL[character] : 255;
}

// Takes the next character that is no white space off the text; "=" at its end.
static unsigned char TakeCharacter(std::string_view &text)
{
    while (!text.empty()) {
        const auto character = static_cast<unsigned char>(text.front());
        text.remove_prefix(1);
        if (!isspace(character))
            return character;
    }
    return '=';
}

int32_t ZSPEncrypt(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity)
{
    if (!input || !output || !outLength)
        return kZSPNullPointer;
    if (length <= 0 || capacity <= 0)
        return kZSPBadLength;
    const auto *const plain = static_cast<const unsigned char *>(input);
    auto *const scrambled = static_cast<unsigned char *>(output);
    *outLength = 0;
    while (*outLength < length) {
        const int32_t count = std::min(length - *outLength, kBlockBytes);
        if (count > capacity - *outLength)
            return kZSPOutputTooSmall;
        for (int32_t i = 0; i < count; i++)
            scrambled[*outLength + i] = static_cast<unsigned char>(plain[*outLength + i] ^ zspkey[i]);
        *outLength += count;
    }
    return kZSPSuccess;
}

int32_t ZSPBinToB64(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity)
{
    if (!input || !outLength || (capacity != 0 && !output))
        return kZSPNullPointer;
    const int64_t needed = (int64_t{length} + 2) / 3 * 4;
    if (length <= 0 || capacity < 0 || needed > INT32_MAX)
        return kZSPBadLength;
    *outLength = static_cast<int32_t>(needed);
    if (capacity < needed)
        return kZSPOutputTooSmall;
    const auto *const bytes = static_cast<const unsigned char *>(input);
    auto *text = static_cast<char *>(output);
    for (int32_t i = 0; i < length; i += 3) {
        const int32_t count = std::min(length - i, 3);
        const uint32_t group = static_cast<uint32_t>(bytes[i]) << 16 |
                               (count > 1 ? static_cast<uint32_t>(bytes[i + 1]) << 8 : 0) |
                               (count > 2 ? static_cast<uint32_t>(bytes[i + 2]) : 0);
        *text++ = B64CHR[group >> 18];
        *text++ = B64CHR[group >> 12 & 63];
        *text++ = count > 1 ? B64CHR[group >> 6 & 63] : '=';
        *text++ = count > 2 ? B64CHR[group & 63] : '=';
    }
    return kZSPSuccess;
}

int32_t ZSPB64ToBin(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity)
{
    if (!input || !outLength || (capacity != 0 && !output))
        return kZSPNullPointer;
    if (length <= 0 || capacity < 0 || length % 4 != 0)
        return kZSPBadLength;
    const auto *const characters = static_cast<const char *>(input);
    std::string_view text(characters, strnlen(characters, static_cast<size_t>(length)));
    const size_t padding = text.size() - (text.find_last_not_of('=') + 1);
    *outLength = std::max(length / 4 * 3 - static_cast<int32_t>(padding), 0);
    if (capacity == 0 || capacity < *outLength)
        return kZSPOutputTooSmall;

    int32_t written = 0;
    for (bool more = true; more;) {
        uint32_t value[4] = {};
        int32_t count = 0;
        for (unsigned char character; count < 4 && (character = TakeCharacter(text)) != '='; count++)
            value[count] = ValueOf(character);
        more = count == 4;
        const uint32_t bytes[] = {value[0] << 2 | value[1] >> 4, value[1] << 4 | value[2] >> 2,
                                  value[2] << 6 | value[3]};
        for (int32_t i = 0; i < count - 1; i++) {
            if (written == capacity)
                return kZSPOutputTooSmall;
            static_cast<unsigned char *>(output)[written++] = static_cast<unsigned char>(bytes[i]);
        }
    }
    *outLength = written;
    return kZSPSuccess;
}
