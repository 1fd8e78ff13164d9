#include "PasswordBlob.h"

#include "Platform.h"
#include "ProductConfig.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <span>
#include <vector>

using Bytes = std::span<const unsigned char>;

// The places of a blob's fields; integers are little-endian.
static constexpr size_t kPayloadLengthAt = 2;
static constexpr size_t kTotalLengthAt = 6;
static constexpr size_t kModeAt = 10;
static constexpr size_t kKeyTypeAt = 11;
static constexpr size_t kReservedAt = 12;
static constexpr size_t kIdentifierAt = 16;
static constexpr size_t kSaltAt = 48;
static constexpr size_t kSecretAt = 80;
static constexpr size_t kIdentifierBytes = 32;
static constexpr size_t kModeCBC = 1;

// The secret's length for each key type.
static constexpr size_t kSecretBytes[] = {256, 384};

void PrivateKeyCloser::operator()(evp_pkey_st *key) const
{
    EVP_PKEY_free(key);
}

PrivateKey ReadPrivateKey(const char *path)
{
    FILE *file = fopen(path, "rb");
    if (!file)
        return nullptr;
    PrivateKey key(PEM_read_PrivateKey(file, nullptr, nullptr, nullptr));
    fclose(file);
    return key && EVP_PKEY_is_a(key.get(), "RSA") ? std::move(key) : nullptr;
}

static uint32_t LittleEndian(Bytes bytes, size_t at)
{
    return bytes[at] | uint32_t{bytes[at + 1]} << 8 | uint32_t{bytes[at + 2]} << 16 | uint32_t{bytes[at + 3]} << 24;
}

// Fields of a blob that is whole.
struct Blob {
    Bytes identifier, salt, secret, vector, payload;
};

static bool TakeApart(Bytes bytes, Blob &blob)
{
    if (bytes.size() < kSecretAt || bytes[kModeAt] != kModeCBC || LittleEndian(bytes, kReservedAt) != 0 ||
        bytes[kKeyTypeAt] >= std::size(kSecretBytes))
        return false;
    const size_t secret = kSecretBytes[bytes[kKeyTypeAt]];
    const uint32_t payload = LittleEndian(bytes, kPayloadLengthAt);
    const uint64_t total = uint64_t{kSecretAt} + secret + kPlatformAESBlockBytes + payload;
    if (total != bytes.size() || total != LittleEndian(bytes, kTotalLengthAt) || payload == 0 ||
        payload % kPlatformAESBlockBytes != 0)
        return false;
    blob = {bytes.subspan(kIdentifierAt, kIdentifierBytes), bytes.subspan(kSaltAt, kSecretAt - kSaltAt),
            bytes.subspan(kSecretAt, secret), bytes.subspan(kSecretAt + secret, kPlatformAESBlockBytes),
            bytes.last(payload)};
    return true;
}

// The random secret of which the AES key is made; empty when the key is not its.
static std::vector<unsigned char> OpenSecret(Bytes secret, EVP_PKEY *key)
{
    const std::unique_ptr<EVP_PKEY_CTX, decltype(&EVP_PKEY_CTX_free)> context(EVP_PKEY_CTX_new(key, nullptr),
                                                                              EVP_PKEY_CTX_free);
    std::vector<unsigned char> out(static_cast<size_t>(std::max(EVP_PKEY_get_size(key), 0)));
    size_t length = out.size();
    if (!context || EVP_PKEY_decrypt_init(context.get()) <= 0 ||
        EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_OAEP_PADDING) <= 0 ||
        EVP_PKEY_CTX_set_rsa_oaep_md(context.get(), EVP_sha256()) <= 0 ||
        EVP_PKEY_CTX_set_rsa_mgf1_md(context.get(), EVP_sha256()) <= 0 ||
        EVP_PKEY_decrypt(context.get(), out.data(), &length, secret.data(), secret.size()) <= 0)
        length = 0;
    out.resize(length);
    return out;
}

static bool Open(const Blob &blob, EVP_PKEY *key, std::string &text)
{
    const std::vector<unsigned char> secret = OpenSecret(blob.secret, key);
    unsigned char aesKey[kPlatformHMACBytes];
    std::vector<unsigned char> plain(blob.payload.size());
    size_t length = 0;
    if (secret.empty() || PlatformHMACSHA256(secret, blob.salt, aesKey) != 0 ||
        PlatformAESCBCDecrypt(aesKey, blob.vector, blob.payload, plain, length) != 0)
        return false;
    text.assign(plain.begin(), plain.begin() + static_cast<ptrdiff_t>(length));
    return true;
}

// The format and version bytes, 8 and 1, as base64; two bits of its third character belong to the length after them.
static bool BeginsBlob(std::string_view value)
{
    return value.size() > 2 && value.starts_with("CA") && value[2] >= 'E' && value[2] <= 'H';
}

Password ReadPassword(std::string_view value, evp_pkey_st *key)
{
    std::vector<unsigned char> bytes;
    Blob blob;
    if (!BeginsBlob(value))
        return {.text = std::string(value)};
    if (!PlatformBase64Decode(value, bytes) || !TakeApart(bytes, blob))
        return {.state = PasswordState::Damaged};
    const unsigned char *ours = bytes[kKeyTypeAt] == 0 ? pubkey2048_OFFICIAL_SHA256 : pubkey3072_OFFICIAL_SHA256;
    Password password{.state = PasswordState::Blob,
                      .bytes = static_cast<uint32_t>(blob.payload.size()),
                      .isForThisBuild = std::ranges::equal(blob.identifier, Bytes(ours, kIdentifierBytes))};
    if (key)
        password.state = Open(blob, key, password.text) ? PasswordState::Opened : PasswordState::WrongKey;
    return password;
}
