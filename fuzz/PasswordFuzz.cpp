// Stored passwords and base64: the getter of password tickets, and what it stands on.
// Input: the capacity that the codec is given (one byte), then the text.

#include "InProcess.h"
#include "PasswordTicket.h"
#include "ProductConfig.h"
#include "secblobenc.h"
#include "zspenclib.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

// Buffers of exactly the size that is told, so that a byte too far is seen.
static void Get(const std::string &value)
{
    cups_option_t *options = nullptr;
    const int count = cupsAddOption("password", value.c_str(), 0, &options);
    for (const int32_t size : {kEncryptedPasswordSize, 1, 300}) {
        const std::unique_ptr<char[]> sent(new char[static_cast<size_t>(size)]);
        memset(sent.get(), 'x', static_cast<size_t>(size));
        const int32_t present =
            GetTicketPasswordStringConvertedToEncryption("password", count, options, sent.get(), size);
        Require(memchr(sent.get(), '\0', static_cast<size_t>(size)) && (present || sent[0] == '\0'));
    }
    cupsFreeOptions(count, options);
}

static void Decode(const std::string &text, int32_t capacity)
{
    std::vector<unsigned char> out(static_cast<size_t>(capacity));
    int32_t length = 0;
    if (ZSPB64ToBin(text.c_str(), static_cast<int32_t>(text.size()), out.data(), &length, capacity) == kZSPSuccess)
        Require(length <= capacity);
}

static void GoRound(const std::string &text, int32_t capacity)
{
    const auto size = static_cast<int32_t>(text.size());
    int32_t length = 0;
    std::string base64((text.size() + 2) / 3 * 4, '\0');
    Require(ZSPBinToB64(text.data(), size, base64.data(), &length, static_cast<int32_t>(base64.size())) == kZSPSuccess);
    std::vector<unsigned char> back(text.size());
    Require(ZSPB64ToBin(base64.c_str(), length, back.data(), &length, size) == kZSPSuccess && length == size);
    Require(memcmp(back.data(), text.data(), back.size()) == 0);

    std::vector<unsigned char> scrambled(static_cast<size_t>(capacity));
    const int32_t status = ZSPEncrypt(text.data(), size, scrambled.data(), &length, capacity);
    Require(status != kZSPSuccess || length == size);
}

// What the dialog would store, as the ticket's value.
static std::string Stored(const std::string &password)
{
    std::vector<unsigned char> cipher(password.size() + 16);
    auto length = static_cast<uint32_t>(cipher.size());
    Require(Encode_Storage(password.data(), static_cast<uint32_t>(password.size()), seed1, sizeof seed1, seed2,
                           sizeof seed2, seed3, sizeof seed3, cipher.data(), &length) == kSecBlobEncSuccess);
    std::string value((length + 2) / 3 * 4, '\0');
    int32_t textLength = 0;
    ZSPBinToB64(cipher.data(), static_cast<int32_t>(length), value.data(), &textLength,
                static_cast<int32_t>(value.size()));
    return value;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const int32_t capacity = data[0];
    const std::string text(reinterpret_cast<const char *>(data) + 1, size - 1);
    Get(text);
    Decode(text, capacity);
    GoRound(text, capacity);
    if (capacity % 8 == 0) // slow: a public key operation
        Get(Stored(text));
    return 0;
}
