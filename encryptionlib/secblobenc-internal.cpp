#include "secblobenc-internal.h"

#include "Platform.h"
#include "secblobenc-key-decoder.h"

#include <cstdio>
#include <cstring>
#include <string>

using AESOperation = decltype(PlatformAESCBCEncrypt);
using Input = std::span<const unsigned char>;
using Output = std::span<unsigned char>;

static Input Bytes(const void *data, uint32_t length)
{
    return {static_cast<const unsigned char *>(data), length};
}

static Output Bytes(void *data, uint32_t length)
{
    return {static_cast<unsigned char *>(data), length};
}

static uint32_t RunAES(AESOperation *operation, int32_t mode, Input key, Input iv, Input data, Output out,
                       uint32_t *outLen)
{
    if (mode != kSecBlobEncAESModeCBC) {
        printf("AES Error. Unsupported AES Mode.");
        return kSecBlobEncBadArgument;
    }
    size_t length = 0;
    if (const int32_t error = operation(key, iv, data, out, length)) {
        printf("AES Error[%d]\n", error);
        return kSecBlobEncStepFailed;
    }
    *outLen = static_cast<uint32_t>(length);
    return kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_ReportStep(int32_t location, const char *step, uint32_t status)
{
    printf("ERROR[%d]: %s failed[%d].\n", location, step, static_cast<int32_t>(status));
    return kSecBlobEncStepFailed;
}

uint32_t SecBlobEncInternal_GenerateRandom(uint32_t length, void *out)
{
    if (const int32_t error = PlatformRandomBytes(Bytes(out, length))) {
        printf("Generate Random Error[%d]", error);
        return kSecBlobEncStepFailed;
    }
    return kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_GenerateHMAC(const void *key, uint32_t keyLen, const void *message, uint32_t messageLen,
                                         void *out)
{
    const auto digest = Bytes(out, kPlatformHMACBytes).first<kPlatformHMACBytes>();
    return PlatformHMACSHA256(Bytes(key, keyLen), Bytes(message, messageLen), digest) ? kSecBlobEncStepFailed
                                                                                      : kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_RSAEncrypt(const char *publicKeyBase64, uint32_t publicKeyLen, const void *data,
                                       uint32_t dataLen, uint32_t capacity, void *out, uint32_t *outLen)
{
    const std::string keyText(publicKeyBase64, strnlen(publicKeyBase64, publicKeyLen));
    PlatformError error;
    size_t length = 0;
    if (PlatformRSAOAEPEncrypt(SecBlobEnc_Decode_Key(keyText.c_str()), Bytes(data, dataLen), Bytes(out, capacity),
                               length, error)) {
        printf("RSA Error[%d] %s", error.code, error.text);
        return kSecBlobEncStepFailed;
    }
    *outLen = static_cast<uint32_t>(length);
    return kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_AESEncrypt(int32_t mode, const void *key, uint32_t keyLen, const void *iv, uint32_t ivLen,
                                       const void *data, uint32_t dataLen, uint32_t capacity, void *out,
                                       uint32_t *outLen)
{
    return RunAES(PlatformAESCBCEncrypt, mode, Bytes(key, keyLen), Bytes(iv, ivLen), Bytes(data, dataLen),
                  Bytes(out, capacity), outLen);
}

uint32_t SecBlobEncInternal_AESDecrypt(int32_t mode, const void *key, uint32_t keyLen, const void *iv, uint32_t ivLen,
                                       const void *data, uint32_t dataLen, uint32_t capacity, void *out,
                                       uint32_t *outLen)
{
    return RunAES(PlatformAESCBCDecrypt, mode, Bytes(key, keyLen), Bytes(iv, ivLen), Bytes(data, dataLen),
                  Bytes(out, capacity), outLen);
}

void outputData(const void *buffer, size_t length, const char *path)
{
    FILE *file = fopen(path, "wb");
    if (!file) {
        printf("cannot open file");
        return;
    }
    fwrite(buffer, 1, length, file);
    fclose(file);
}
