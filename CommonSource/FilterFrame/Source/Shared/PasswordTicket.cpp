#include "PasswordTicket.h"

#include "BoundedText.h"
#include "Platform.h"
#include "ProductConfig.h"
#include "TextEncoding.h"
#include "TicketReader.h"
#include "secblobenc.h"
#include "zspenclib.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

constexpr int32_t kStoredPasswordSize = 255;
constexpr int32_t kBase64Capacity = 2000;

// Working buffers, any of which may hold a password.
struct PasswordWork {
    char text[1024];
    unsigned char binary[2000];
    unsigned char plain[255];
};

// Puts the value's text into the destination and what its base64 stands for into work.binary.
static bool DecodeValue(const char *value, char *destination, int32_t size, PasswordWork &work, int32_t &storedLength)
{
    CopyCut(work.text, value);
    numstrtochar(work.text, sizeof work.text);
    ConvertUTF8ToEncoding(work.text, destination, size);

    // The length is that of the value as it came; the decoder stops at the text's NUL.
    return ZSPB64ToBin(destination, static_cast<int32_t>(strlen(value)), work.binary, &storedLength,
                       kStoredPasswordSize) == kZSPSuccess;
}

static bool DecryptStored(PasswordWork &work, int32_t storedLength, uint32_t &plainLength)
{
    plainLength = sizeof work.plain;
    return Decode_Storage(work.binary, static_cast<uint32_t>(storedLength), seed1, sizeof seed1, seed2, sizeof seed2,
                          seed3, sizeof seed3, work.plain, &plainLength) == kSecBlobEncSuccess;
}

// Fills the destination, of which nothing is left when 0 is returned.
static int32_t ConvertPassword(const char *value, char *destination, int32_t size, PasswordWork &work)
{
    int32_t storedLength = 0;
    uint32_t plainLength = 0;
    if (!DecodeValue(value, destination, size, work, storedLength))
        return 0;
    if (!DecryptStored(work, storedLength, plainLength))
        return 1;

    uint32_t blobLength = sizeof work.binary;
    memset(work.binary, 0, sizeof work.binary);
    const uint32_t status = Encode_Random(work.plain, plainLength, work.binary, &blobLength);
    if (status != kSecBlobEncSuccess)
        fprintf(stderr, "##filter debug## final encode failed encodeResult : %d \n", static_cast<int32_t>(status));

    // After a failure the length is still that of the buffer, whose text doesn't fit.
    int32_t textLength = 0;
    memset(destination, 0, static_cast<size_t>(size));
    return ZSPBinToB64(work.binary, static_cast<int32_t>(blobLength), destination, &textLength,
                       std::min(size - 1, kBase64Capacity)) == kZSPSuccess;
}

int32_t GetTicketPasswordStringConvertedToEncryption(const char *key, int32_t optionCount, cups_option_t *options,
                                                     void *destination, int32_t size)
{
    if (size <= 0)
        return 0;
    memset(destination, 0, static_cast<size_t>(size));
    const char *value = cupsGetOption(key, optionCount, options);
    if (!value)
        return 0;

    PasswordWork work{};
    const int32_t present = ConvertPassword(value, static_cast<char *>(destination), size, work);
    PlatformWipe(&work, sizeof work);
    if (!present)
        memset(destination, 0, static_cast<size_t>(size));
    return present;
}

// Whether the getter finds the password again: as byte values a long one does not fit.
static bool IsReadAgain(const std::string &value)
{
    PasswordWork work{};
    char text[sizeof work.text];
    int32_t storedLength = 0;
    uint32_t plainLength = 0;
    const bool read = DecodeValue(value.c_str(), text, sizeof text, work, storedLength) &&
                      DecryptStored(work, storedLength, plainLength);
    PlatformWipe(&work, sizeof work);
    return read;
}

std::string StorePassword(std::string_view password)
{
    unsigned char stored[kStoredPasswordSize];
    uint32_t storedLength = sizeof stored;
    if (password.empty() || password.size() > kStoredPasswordMaxLength ||
        Encode_Storage(password.data(), static_cast<uint32_t>(password.size()), seed1, sizeof seed1, seed2,
                       sizeof seed2, seed3, sizeof seed3, stored, &storedLength) != kSecBlobEncSuccess)
        return {};

    char base64[(sizeof stored + 2) / 3 * 4];
    int32_t base64Length = 0;
    ZSPBinToB64(stored, static_cast<int32_t>(storedLength), base64, &base64Length, sizeof base64);
    std::string value(base64, static_cast<size_t>(base64Length));
    // Three digits for each character keep the value's length a multiple of four, which the getter asks of base64.
    if (value.starts_with('/'))
        value = ByteValues(value, 3);
    return IsReadAgain(value) ? value : std::string();
}
