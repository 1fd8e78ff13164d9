// storepassword: reads a password and prints the ticket value that stores it, for tests and support.
// The value is good for a filter built with the same key material.

#include "PasswordTicket.h"
#include "Platform.h"
#include "ProductConfig.h"
#include "secblobenc.h"
#include "zspenclib.h"

#include <cups/cups.h>

#include <cstdio>
#include <string>

// More than any form can carry; what is longer is refused, not cut.
constexpr size_t kInputSize = 512;
constexpr size_t kStoredSize = kInputSize + kPlatformAESBlockBytes;

static std::string Base64(const unsigned char *data, uint32_t length)
{
    char text[(kStoredSize + 2) / 3 * 4];
    int32_t textLength = 0;
    ZSPBinToB64(data, static_cast<int32_t>(length), text, &textLength, sizeof text);
    return {text, static_cast<size_t>(textLength)};
}

// Three digits for each character keep the value's length a multiple of four, which the filter asks of base64.
static std::string Escaped(const std::string &text)
{
    std::string escaped;
    for (const char character : text) {
        char number[5];
        snprintf(number, sizeof number, "/%03u", static_cast<unsigned>(static_cast<unsigned char>(character)));
        escaped += number;
    }
    return escaped;
}

// Asks the filter itself: a value that it can't decrypt it drops or sends as it is.
static bool FilterDecrypts(const std::string &value, const std::string &base64)
{
    cups_option_t *options = nullptr;
    const int count = cupsAddOption("password", value.c_str(), 0, &options);
    char sent[kEncryptedPasswordSize];
    const bool present = GetTicketPasswordStringConvertedToEncryption("password", count, options, sent, sizeof sent);
    cupsFreeOptions(count, options);
    return present && sent != base64;
}

int main()
{
    unsigned char password[kInputSize];
    size_t length = fread(password, 1, sizeof password, stdin);
    if (length > 0 && password[length - 1] == '\n')
        length--;

    unsigned char stored[kStoredSize];
    uint32_t storedLength = sizeof stored;
    const uint32_t status = Encode_Storage(password, static_cast<uint32_t>(length), seed1, sizeof seed1, seed2,
                                           sizeof seed2, seed3, sizeof seed3, stored, &storedLength);
    PlatformWipe(password, sizeof password);
    if (length == 0 || status != kSecBlobEncSuccess) {
        fprintf(stderr, "storepassword: %s\n", length == 0 ? "no password" : "cannot encrypt the password");
        return 1;
    }

    const std::string base64 = Base64(stored, storedLength);
    // The filter takes a value that begins with "/" for a list of byte values.
    const std::string value = base64.starts_with('/') ? Escaped(base64) : base64;
    if (!FilterDecrypts(value, base64)) {
        fprintf(stderr, "storepassword: no ticket value can carry this password; choose a shorter one\n");
        return 1;
    }
    puts(value.c_str());
    return 0;
}
