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

// What must not stay in memory.
struct Secrets {
    unsigned char secret[kSecretBytes];
    unsigned char aesKey[kPlatformHMACBytes];
};

// What a blob carries behind its fixed fields.
struct Sealed {
    unsigned char salt[kSecretBytes];
    unsigned char wrapped[kMaxWrappedBytes];
    uint32_t wrappedLen;
    unsigned char iv[kIVBytesCBC];
    uint32_t ivLen;
    std::vector<unsigned char> payload;
    uint32_t payloadLen;
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

static uint32_t Seal(int32_t aesMode, const unsigned char *data, uint32_t dataLen, const char *publicKeyBase64,
                     uint32_t publicKeyLen, Secrets &secrets, Sealed &sealed)
{
    const auto capacity = static_cast<uint32_t>(sealed.payload.size());
    sealed.ivLen = aesMode == 0 ? kIVBytesOther : kIVBytesCBC;
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(kSecretBytes, secrets.secret))
        return SecBlobEncInternal_ReportStep(114, "generate random", status);
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(kSecretBytes, sealed.salt))
        return SecBlobEncInternal_ReportStep(122, "generate random", status);
    if (const uint32_t status =
            SecBlobEncInternal_GenerateHMAC(secrets.secret, kSecretBytes, sealed.salt, kSecretBytes, secrets.aesKey))
        return SecBlobEncInternal_ReportStep(131, "Key Derivation HMAC", status);
    if (const uint32_t status = SecBlobEncInternal_GenerateRandom(sealed.ivLen, sealed.iv))
        return SecBlobEncInternal_ReportStep(139, "generate random", status);
    if (const uint32_t status =
            SecBlobEncInternal_RSAEncrypt(publicKeyBase64, publicKeyLen, secrets.secret, kSecretBytes, kMaxWrappedBytes,
                                          sealed.wrapped, &sealed.wrappedLen))
        return SecBlobEncInternal_ReportStep(150, "RSA Encrypt", status);
    if (const uint32_t status =
            SecBlobEncInternal_AESEncrypt(aesMode, secrets.aesKey, sizeof secrets.aesKey, sealed.iv, sealed.ivLen, data,
                                          dataLen, capacity, sealed.payload.data(), &sealed.payloadLen))
        return SecBlobEncInternal_ReportStep(161, "AES Encrypt", status);
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

uint32_t SecBlobEnc_KT_Encrypt(int32_t aesMode, int32_t keyType, const unsigned char *data, uint32_t dataLen,
                               const char *publicKeyBase64, uint32_t publicKeyLen, unsigned char *out, uint32_t *outLen)
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

    Secrets secrets;
    Sealed sealed{};
    sealed.payload.resize(dataLen + kPlatformAESBlockBytes);
    const uint32_t status = Seal(aesMode, data, dataLen, publicKeyBase64, publicKeyLen, secrets, sealed);
    PlatformWipe(&secrets, sizeof secrets);
    if (status != kSecBlobEncSuccess)
        return status;

    // CBC is the only mode that comes this far, and it has no authentication tag.
    const uint32_t fixedLen = 16 + kKeyIdentifierBytes + kSecretBytes;
    const uint32_t totalLen = fixedLen + sealed.wrappedLen + sealed.ivLen + sealed.payloadLen;
    out = PutByte(out, 0x08); // format
    out = PutByte(out, 0x01); // version
    out = PutLittleEndian(out, sealed.payloadLen);
    out = PutLittleEndian(out, totalLen);
    out = PutByte(out, aesMode);
    out = PutByte(out, keyType);
    out = PutLittleEndian(out, 0); // reserved
    out = PutBytes(out, identifier, kKeyIdentifierBytes);
    out = PutBytes(out, sealed.salt, kSecretBytes);
    out = PutBytes(out, sealed.wrapped, sealed.wrappedLen);
    out = PutBytes(out, sealed.iv, sealed.ivLen);
    PutBytes(out, sealed.payload.data(), sealed.payloadLen);
    *outLen = totalLen;
    return kSecBlobEncSuccess;
}
