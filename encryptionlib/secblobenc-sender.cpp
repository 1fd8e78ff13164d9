#include "secblobenc-sender.h"

#include "Platform.h"
#include "ProductConfig.h"
#include "secblobenc-internal.h"

#include <cstdio>
#include <cstring>
#include <vector>

constexpr uint32_t kFirstTooLong = 99501;
constexpr uint32_t kKeyIdentifierBytes = 32;
constexpr uint32_t kSecretBytes = 32;
constexpr uint32_t kMaxWrappedBytes = 512;
constexpr uint32_t kIVBytesCBC = 16;
constexpr uint32_t kIVBytesOther = 12;

// What a blob is made of. None of it stays in memory.
struct BlobParts {
    unsigned char secret[kSecretBytes];
    unsigned char aesKey[kPlatformHMACBytes];
    unsigned char salt[kSecretBytes];
    unsigned char wrapped[kMaxWrappedBytes];
    uint32_t wrappedLen;
    unsigned char iv[kIVBytesCBC];
    uint32_t ivLen;
};

static const unsigned char *KeyIdentifier(int32_t keyType)
{
    switch (keyType) {
    case 0:
        return pubkey2048_OFFICIAL_SHA256;
    case 1:
        return pubkey3072_OFFICIAL_SHA256;
    default:
        return nullptr;
    }
}

// Fills the parts and replaces the payload, which has room for it, by the encrypted data.
static uint32_t Seal(int32_t aesMode, const void *data, uint32_t dataLen, const char *publicKeyBase64,
                     uint32_t publicKeyLen, BlobParts &parts, std::vector<unsigned char> &payload)
{
    parts.ivLen = aesMode == 0 ? kIVBytesOther : kIVBytesCBC;
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(kSecretBytes, parts.secret))
        return SecBlobEncInternal_ReportStep(114, "generate random", status);
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(kSecretBytes, parts.salt))
        return SecBlobEncInternal_ReportStep(122, "generate random", status);
    if (const uint32_t status =
            SecBlobEncInternal_GenerateHMAC(parts.secret, kSecretBytes, parts.salt, kSecretBytes, parts.aesKey))
        return SecBlobEncInternal_ReportStep(131, "Key Derivation HMAC", status);
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(parts.ivLen, parts.iv))
        return SecBlobEncInternal_ReportStep(139, "generate random", status);
    if (const uint32_t status = SecBlobEncInternal_RSAEncrypt(publicKeyBase64, publicKeyLen, parts.secret, kSecretBytes,
                                                              kMaxWrappedBytes, parts.wrapped, &parts.wrappedLen))
        return SecBlobEncInternal_ReportStep(150, "RSA Encrypt", status);
    auto payloadLen = static_cast<uint32_t>(payload.size());
    if (const uint32_t status =
            SecBlobEncInternal_AESEncrypt(aesMode, parts.aesKey, sizeof parts.aesKey, parts.iv, parts.ivLen, data,
                                          dataLen, payloadLen, payload.data(), &payloadLen))
        return SecBlobEncInternal_ReportStep(161, "AES Encrypt", status);
    payload.resize(payloadLen);
    return kSecBlobEncSuccess;
}

static unsigned char *PutByte(unsigned char *out, int32_t value)
{
    *out = static_cast<unsigned char>(value);
    return out + 1;
}

static unsigned char *PutLittleEndian(unsigned char *out, uint32_t value)
{
    for (int32_t shift = 0; shift < 32; shift += 8)
        out = PutByte(out, static_cast<int32_t>(value >> shift & 0xFF));
    return out;
}

static unsigned char *PutBytes(unsigned char *out, const unsigned char *bytes, uint32_t count)
{
    memcpy(out, bytes, count);
    return out + count;
}

// Writes the blob and returns its length. CBC is the only mode that comes this far, and it has no authentication tag.
static uint32_t PutBlob(int32_t aesMode, int32_t keyType, const unsigned char *identifier, const BlobParts &parts,
                        const std::vector<unsigned char> &payload, unsigned char *out)
{
    const auto payloadLen = static_cast<uint32_t>(payload.size());
    const uint32_t fixedLen = 16 + kKeyIdentifierBytes + kSecretBytes;
    const uint32_t totalLen = fixedLen + parts.wrappedLen + parts.ivLen + payloadLen;
    out = PutByte(out, 0x08); // format
    out = PutByte(out, 0x01); // version
    out = PutLittleEndian(out, payloadLen);
    out = PutLittleEndian(out, totalLen);
    out = PutByte(out, aesMode);
    out = PutByte(out, keyType);
    out = PutLittleEndian(out, 0); // reserved
    out = PutBytes(out, identifier, kKeyIdentifierBytes);
    out = PutBytes(out, parts.salt, kSecretBytes);
    out = PutBytes(out, parts.wrapped, parts.wrappedLen);
    out = PutBytes(out, parts.iv, parts.ivLen);
    PutBytes(out, payload.data(), payloadLen);
    return totalLen;
}

uint32_t SecBlobEnc_KT_Encrypt(int32_t aesMode, int32_t keyType, const void *data, uint32_t dataLen,
                               const char *publicKeyBase64, uint32_t publicKeyLen, void *out, uint32_t *outLen)
{
    if (dataLen >= kFirstTooLong) {
        printf("ERROR[%d]: too long bufLen [%d].\n", 88, static_cast<int32_t>(dataLen));
        return kSecBlobEncBadArgument;
    }
    const unsigned char *identifier = KeyIdentifier(keyType);
    if (!identifier) {
        printf("ERROR[%d]: invalid key type[%d].\n", 106, keyType);
        return kSecBlobEncBadArgument;
    }

    BlobParts parts{};
    std::vector<unsigned char> payload(dataLen + kPlatformAESBlockBytes);
    const uint32_t status = Seal(aesMode, data, dataLen, publicKeyBase64, publicKeyLen, parts, payload);
    if (status == kSecBlobEncSuccess)
        *outLen = PutBlob(aesMode, keyType, identifier, parts, payload, static_cast<unsigned char *>(out));
    PlatformWipe(&parts, sizeof parts);
    return status;
}
