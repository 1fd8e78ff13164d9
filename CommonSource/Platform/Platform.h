// Platform: what the filter needs of its system, in terms of bytes.
// The one room that knows iconv, libcrypto, sockets and sysctl.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Text. Units are UTF-16 code units.

// Longest encoding of one unit, in bytes.
constexpr size_t kPlatformMaxUnitBytes = 6;

// Decodes UTF-8 (RFC 3629): overlong forms, surrogates, values above U+10FFFF and truncated sequences make the whole
// text invalid. Returns false, and leaves `units` empty, when it is.
bool PlatformDecodeUTF8(std::string_view text, std::u16string &units);

// Decodes Shift-JIS with JIS X 0213. Returns false, and leaves `units` empty, when the text is not valid.
bool PlatformDecodeShiftJIS(std::string_view text, std::u16string &units);

// Encode one unit on its own. Return the number of bytes written to `out`, 0 when the encoding has none for it; a
// surrogate never has. ASCII stays ASCII, also "\" and "~", for which Shift-JIS tables have other signs; Shift-JIS
// codes 0x8540 to 0x869E count as none.
size_t PlatformEncodeUTF8(char16_t unit, std::span<char, kPlatformMaxUnitBytes> out);
size_t PlatformEncodeShiftJIS(char16_t unit, std::span<char, kPlatformMaxUnitBytes> out);

// Cryptography. Statuses are 0 for success, else one of these or, for a library error, OpenSSL's reason code.

constexpr int32_t kPlatformRandomFailed = -1;
constexpr int32_t kPlatformBadArgument = -4300;
constexpr int32_t kPlatformOutputTooSmall = -4301;
constexpr int32_t kPlatformBadLength = -4303;  // input is not whole blocks
constexpr int32_t kPlatformBadPadding = -4304; // PKCS#7 padding does not hold

constexpr size_t kPlatformHMACBytes = 32;
constexpr size_t kPlatformAESBlockBytes = 16;
constexpr size_t kPlatformErrorTextBytes = 512;

struct PlatformError {
    int32_t code;
    char text[kPlatformErrorTextBytes];
};

int32_t PlatformRandomBytes(std::span<unsigned char> out);

// HMAC-SHA256 (RFC 2104).
int32_t PlatformHMACSHA256(std::span<const unsigned char> key, std::span<const unsigned char> message,
                           std::span<unsigned char, kPlatformHMACBytes> out);

// AES-256-CBC with PKCS#7 padding; the key has 32 bytes, the initialisation vector 16. `outLen` receives the number of
// bytes written, at most out.size().
int32_t PlatformAESCBCEncrypt(std::span<const unsigned char> key, std::span<const unsigned char> iv,
                              std::span<const unsigned char> data, std::span<unsigned char> out, size_t &outLen);
int32_t PlatformAESCBCDecrypt(std::span<const unsigned char> key, std::span<const unsigned char> iv,
                              std::span<const unsigned char> data, std::span<unsigned char> out, size_t &outLen);

// RSAES-OAEP (RFC 8017) with SHA-256 for the hash and for MGF1. `publicKey` is a DER SubjectPublicKeyInfo (RFC 5280).
// Returns the status, which `error` repeats with its text.
int32_t PlatformRSAOAEPEncrypt(std::span<const unsigned char> publicKey, std::span<const unsigned char> data,
                               std::span<unsigned char> out, size_t &outLen, PlatformError &error);

// Base64 (RFC 4648), line ends allowed. Returns false when the text is malformed or decodes to nothing.
bool PlatformBase64Decode(std::string_view text, std::vector<unsigned char> &data);

// Overwrites memory that held a secret; never optimised away.
void PlatformWipe(void *memory, size_t size);

// System

// Keeps the process's memory to itself: no core file and, where the system can forbid it (Linux), no look by other
// processes of the same user.
void PlatformKeepMemoryPrivate();

// The kernel's release text ("19.6.0"), NUL-terminated. Returns false when it can't be read or doesn't fit.
bool PlatformKernelRelease(std::span<char> out);

// One address of a host: the bytes of its sockaddr.
using PlatformAddress = std::vector<unsigned char>;

// Longest numeric address, its NUL included (INET6_ADDRSTRLEN).
constexpr size_t kPlatformAddressText = 46;

// What came of a lookup. None is started for a name that no host can have (empty, or longer than 255 bytes), nor where
// the system lacks the means.
enum class PlatformLookup { Found, NoAddress, NotStarted };

// Looks the host up and answers at once.
PlatformLookup PlatformResolveHost(const char *name, std::vector<PlatformAddress> &addresses);

// Formats an address numerically. Returns false, with `out` empty, when it can't.
bool PlatformNumericAddress(const PlatformAddress &address, std::span<char, kPlatformAddressText> out);

// The bytes of a numeric address in network order: 4, or 16 without its zone; 4 also for an IPv4-mapped one (RFC 4291).
// None for a text that is not an address.
std::vector<unsigned char> PlatformAddressBytes(std::string_view text);
