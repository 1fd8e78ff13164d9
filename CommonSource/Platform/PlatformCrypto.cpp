#include "Platform.h"

#include <openssl/crypto.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>

template <auto Free> struct Closer {
    template <typename T> void operator()(T *object) const { Free(object); }
};
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, Closer<EVP_CIPHER_CTX_free>>;
using Base64Context = std::unique_ptr<EVP_ENCODE_CTX, Closer<EVP_ENCODE_CTX_free>>;
using KeyContext = std::unique_ptr<EVP_PKEY_CTX, Closer<EVP_PKEY_CTX_free>>;

// Before each use of the library. It neither reads openssl.cnf nor heeds OPENSSL_CONF, with which a host could take its
// algorithms away; its errors are forgotten.
static void Begin()
{
    OPENSSL_init_crypto(OPENSSL_INIT_NO_LOAD_CONFIG, nullptr);
    ERR_clear_error();
}

// Tells what the library failed with first, the cause of what followed, and forgets it. Returns its reason code.
static int32_t TakeLibraryError(PlatformError &error)
{
    const unsigned long code = ERR_get_error();
    const char *text = ERR_reason_error_string(code);
    error.code = ERR_GET_REASON(code);
    if (error.code == 0)
        error.code = kPlatformBadArgument;
    snprintf(error.text, sizeof error.text, "%s", text ? text : "unknown error");
    ERR_clear_error();
    return error.code;
}

static int32_t TakeLibraryError()
{
    PlatformError error;
    return TakeLibraryError(error);
}

static bool AESArgumentsHold(std::span<const unsigned char> key, std::span<const unsigned char> iv,
                             std::span<const unsigned char> data)
{
    return key.size() == 32 && iv.size() == kPlatformAESBlockBytes &&
           data.size() <= static_cast<size_t>(INT_MAX) - kPlatformAESBlockBytes;
}

int32_t PlatformRandomBytes(std::span<unsigned char> out)
{
    Begin();
    const bool done = RAND_bytes_ex(nullptr, out.data(), out.size(), 0) == 1;
    ERR_clear_error();
    return done ? 0 : kPlatformRandomFailed;
}

int32_t PlatformHMACSHA256(std::span<const unsigned char> key, std::span<const unsigned char> message,
                           std::span<unsigned char, kPlatformHMACBytes> out)
{
    Begin();
    size_t length = 0;
    if (!EVP_Q_mac(nullptr, "HMAC", nullptr, "SHA256", nullptr, key.data(), key.size(), message.data(), message.size(),
                   out.data(), out.size(), &length))
        return TakeLibraryError();
    return 0;
}

int32_t PlatformAESCBCEncrypt(std::span<const unsigned char> key, std::span<const unsigned char> iv,
                              std::span<const unsigned char> data, std::span<unsigned char> out, size_t &outLen)
{
    if (!AESArgumentsHold(key, iv, data))
        return kPlatformBadArgument;
    if (out.size() < (data.size() / kPlatformAESBlockBytes + 1) * kPlatformAESBlockBytes)
        return kPlatformOutputTooSmall;
    Begin();
    const CipherContext context(EVP_CIPHER_CTX_new());
    int length = 0;
    int rest = 0;
    if (!context || EVP_EncryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, key.data(), iv.data()) != 1 ||
        EVP_EncryptUpdate(context.get(), out.data(), &length, data.data(), static_cast<int>(data.size())) != 1 ||
        EVP_EncryptFinal_ex(context.get(), out.data() + length, &rest) != 1)
        return TakeLibraryError();
    outLen = static_cast<size_t>(length + rest);
    return 0;
}

int32_t PlatformAESCBCDecrypt(std::span<const unsigned char> key, std::span<const unsigned char> iv,
                              std::span<const unsigned char> data, std::span<unsigned char> out, size_t &outLen)
{
    if (!AESArgumentsHold(key, iv, data))
        return kPlatformBadArgument;
    if (data.size() % kPlatformAESBlockBytes != 0)
        return kPlatformBadLength;
    Begin();
    const CipherContext context(EVP_CIPHER_CTX_new());
    if (!context || EVP_DecryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, key.data(), iv.data()) != 1)
        return TakeLibraryError();

    // The library writes whole blocks, more than the caller may have room for.
    std::vector<unsigned char> plain(data.size() + kPlatformAESBlockBytes);
    int32_t status = 0;
    int length = 0;
    int rest = 0;
    if (EVP_DecryptUpdate(context.get(), plain.data(), &length, data.data(), static_cast<int>(data.size())) != 1) {
        status = TakeLibraryError();
    } else if (EVP_DecryptFinal_ex(context.get(), plain.data() + length, &rest) != 1) {
        ERR_clear_error();
        status = kPlatformBadPadding; // the only fault that whole blocks can have
    } else if (static_cast<size_t>(length + rest) > out.size()) {
        status = kPlatformOutputTooSmall;
    } else {
        outLen = static_cast<size_t>(length + rest);
        if (outLen > 0)
            memcpy(out.data(), plain.data(), outLen);
    }
    PlatformWipe(plain.data(), plain.size());
    return status;
}

// The parsed key, kept to the end of the process: a job's passwords go to one key, and parsing it costs more than
// encrypting for it. Null when it can't be parsed or something follows it.
static EVP_PKEY *ParsePublicKey(std::span<const unsigned char> der)
{
    static std::vector<unsigned char> parsed;
    static EVP_PKEY *key = nullptr;
    if (!key || !std::ranges::equal(der, parsed)) {
        EVP_PKEY_free(key);
        const unsigned char *next = der.data();
        key = d2i_PUBKEY(nullptr, &next, static_cast<long>(der.size()));
        if (key && next != der.data() + der.size()) {
            EVP_PKEY_free(key);
            key = nullptr;
        }
        parsed.assign(der.begin(), der.end());
    }
    return key;
}

int32_t PlatformRSAOAEPEncrypt(std::span<const unsigned char> publicKey, std::span<const unsigned char> data,
                               std::span<unsigned char> out, size_t &outLen, PlatformError &error)
{
    error = {};
    Begin();
    EVP_PKEY *const key = ParsePublicKey(publicKey);
    const KeyContext context(key ? EVP_PKEY_CTX_new(key, nullptr) : nullptr);
    size_t needed = 0;
    if (!context || EVP_PKEY_encrypt_init(context.get()) != 1 ||
        EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_OAEP_PADDING) != 1 ||
        EVP_PKEY_CTX_set_rsa_oaep_md(context.get(), EVP_sha256()) != 1 ||
        EVP_PKEY_CTX_set_rsa_mgf1_md(context.get(), EVP_sha256()) != 1 ||
        EVP_PKEY_encrypt(context.get(), nullptr, &needed, data.data(), data.size()) != 1)
        return TakeLibraryError(error);
    if (needed > out.size()) {
        error = {kPlatformOutputTooSmall, "output too small"};
        return error.code;
    }
    if (EVP_PKEY_encrypt(context.get(), out.data(), &needed, data.data(), data.size()) != 1)
        return TakeLibraryError(error);
    outLen = needed;
    return 0;
}

bool PlatformBase64Decode(std::string_view text, std::vector<unsigned char> &data)
{
    data.clear();
    // To the library a "-" is where the text ends; to us it is no base64.
    if (text.size() > INT_MAX || text.find('-') != std::string_view::npos)
        return false;
    Begin();
    const Base64Context context(EVP_ENCODE_CTX_new());
    if (!context)
        return false;
    data.resize(text.size() + 3);
    int length = 0;
    int rest = 0;
    EVP_DecodeInit(context.get());
    const bool done =
        EVP_DecodeUpdate(context.get(), data.data(), &length, reinterpret_cast<const unsigned char *>(text.data()),
                         static_cast<int>(text.size())) >= 0 &&
        EVP_DecodeFinal(context.get(), data.data() + length, &rest) == 1;
    ERR_clear_error();
    data.resize(done ? static_cast<size_t>(length + rest) : 0);
    return !data.empty();
}

void PlatformWipe(void *memory, size_t size)
{
    OPENSSL_cleanse(memory, size);
}
