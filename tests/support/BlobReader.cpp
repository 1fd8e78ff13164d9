#include "BlobReader.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

using Bytes = std::vector<unsigned char>;
using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;

// Offsets and sizes of a blob for a 2048-bit key, AES in CBC mode.
constexpr size_t kIdentifier = 16, kSalt = 48, kWrappedKey = 80, kVector = 336, kPayload = 352;

static Key PrivateKey()
{
    FILE *file = fopen(OV_TEST_DATA "/keys/development-2048.pem", "r");
    Key key(file ? PEM_read_PrivateKey(file, nullptr, nullptr, nullptr) : nullptr, EVP_PKEY_free);
    if (file)
        fclose(file);
    return key;
}

static Bytes FromBase64(std::string_view text)
{
    Bytes bytes(text.size() + 1);
    const int length = text.size() % 4
                           ? -1
                           : EVP_DecodeBlock(bytes.data(), reinterpret_cast<const unsigned char *>(text.data()),
                                             static_cast<int>(text.size()));
    if (length < 0)
        return {};
    bytes.resize(static_cast<size_t>(length));
    for (size_t end = text.size(); end > 0 && text[end - 1] == '=' && !bytes.empty(); end--)
        bytes.pop_back();
    return bytes;
}

static size_t LittleEndian(const Bytes &blob, size_t offset)
{
    return blob[offset] | static_cast<size_t>(blob[offset + 1]) << 8 | static_cast<size_t>(blob[offset + 2]) << 16 |
           static_cast<size_t>(blob[offset + 3]) << 24;
}

static Bytes IdentifierOf(EVP_PKEY *key)
{
    unsigned char *der = nullptr;
    const int derLength = i2d_PUBKEY(key, &der);
    Bytes digest(32);
    const bool done = derLength > 0 && EVP_Digest(der, static_cast<size_t>(derLength), digest.data(), nullptr,
                                                  EVP_sha256(), nullptr) == 1;
    OPENSSL_free(der);
    return done ? digest : Bytes();
}

static bool HeaderHolds(const Bytes &blob, EVP_PKEY *key)
{
    if (blob.size() < kPayload + 16)
        return false;
    const unsigned char start[] = {0x08, 0x01}, modeTypeReserved[] = {1, 0, 0, 0, 0, 0};
    return std::equal(std::begin(start), std::end(start), blob.begin()) &&
           LittleEndian(blob, 2) == blob.size() - kPayload && LittleEndian(blob, 6) == blob.size() &&
           std::equal(std::begin(modeTypeReserved), std::end(modeTypeReserved), blob.begin() + 10) &&
           Bytes(blob.begin() + kIdentifier, blob.begin() + kSalt) == IdentifierOf(key);
}

static Bytes UnwrapKey(const Bytes &blob, EVP_PKEY *key)
{
    const std::unique_ptr<EVP_PKEY_CTX, decltype(&EVP_PKEY_CTX_free)> context(EVP_PKEY_CTX_new(key, nullptr),
                                                                              EVP_PKEY_CTX_free);
    Bytes plain(256);
    size_t length = plain.size();
    if (EVP_PKEY_decrypt_init(context.get()) != 1 ||
        EVP_PKEY_CTX_set_rsa_padding(context.get(), RSA_PKCS1_OAEP_PADDING) != 1 ||
        EVP_PKEY_CTX_set_rsa_oaep_md(context.get(), EVP_sha256()) != 1 ||
        EVP_PKEY_CTX_set_rsa_mgf1_md(context.get(), EVP_sha256()) != 1 ||
        EVP_PKEY_decrypt(context.get(), plain.data(), &length, &blob[kWrappedKey], 256) != 1)
        return {};
    plain.resize(length);
    return plain;
}

bool OpenPasswordBlob(std::string_view base64, std::string &plain)
{
    plain.clear();
    const Bytes blob = FromBase64(base64);
    const Key key = PrivateKey();
    if (!key || !HeaderHolds(blob, key.get()))
        return false;
    const Bytes secret = UnwrapKey(blob, key.get());
    unsigned char aesKey[32];
    if (secret.size() != 32 || !EVP_Q_mac(nullptr, "HMAC", nullptr, "SHA256", nullptr, secret.data(), secret.size(),
                                          &blob[kSalt], 32, aesKey, sizeof aesKey, nullptr))
        return false;

    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(EVP_CIPHER_CTX_new(),
                                                                                  EVP_CIPHER_CTX_free);
    Bytes text(blob.size());
    int length = 0, rest = 0;
    if (EVP_DecryptInit_ex(context.get(), EVP_aes_256_cbc(), nullptr, aesKey, &blob[kVector]) != 1 ||
        EVP_DecryptUpdate(context.get(), text.data(), &length, &blob[kPayload],
                          static_cast<int>(blob.size() - kPayload)) != 1 ||
        EVP_DecryptFinal_ex(context.get(), text.data() + length, &rest) != 1)
        return false;
    plain.assign(text.begin(), text.begin() + length + rest);
    return true;
}
