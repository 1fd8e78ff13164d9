#include "secblobenc-internal.h"

#include "Platform.h"
#include "secblobenc-key-decoder.h"

#include <cstdio>
#include <cstring>
#include <string>

using AESOperation = decltype(PlatformAESCBCEncrypt);

static uint32_t RunAES(AESOperation *operation, int32_t mode, std::span<const unsigned char> key,
                       std::span<const unsigned char> iv, std::span<const unsigned char> data,
                       std::span<unsigned char> out, uint32_t *outLen)
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

uint32_t SecBlobEncInternal_GenerateRandom(uint32_t length, unsigned char *out)
{
    if (const int32_t error = PlatformRandomBytes({out, length})) {
        printf("Generate Random Error[%d]", error);
        return kSecBlobEncStepFailed;
    }
    return kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_GenerateHMAC(const unsigned char *key, uint32_t keyLen, const unsigned char *message,
                                         uint32_t messageLen, unsigned char *out)
{
    const std::span<unsigned char, kPlatformHMACBytes> digest(out, kPlatformHMACBytes);
    return PlatformHMACSHA256({key, keyLen}, {message, messageLen}, digest) ? kSecBlobEncStepFailed
                                                                            : kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_RSAEncrypt(const char *publicKeyBase64, uint32_t publicKeyLen, const unsigned char *data,
                                       uint32_t dataLen, uint32_t capacity, unsigned char *out, uint32_t *outLen)
{
    const std::string keyText(publicKeyBase64, strnlen(publicKeyBase64, publicKeyLen));
    PlatformError error;
    size_t length = 0;
    if (PlatformRSAOAEPEncrypt(SecBlobEnc_Decode_Key(keyText.c_str()), {data, dataLen}, {out, capacity}, length,
                               error)) {
        printf("RSA Error[%d] %s", error.code, error.text);
        return kSecBlobEncStepFailed;
    }
    *outLen = static_cast<uint32_t>(length);
    return kSecBlobEncSuccess;
}

uint32_t SecBlobEncInternal_AESEncrypt(int32_t mode, const unsigned char *key, uint32_t keyLen, const unsigned char *iv,
                                       uint32_t ivLen, const unsigned char *data, uint32_t dataLen, uint32_t capacity,
                                       unsigned char *out, uint32_t *outLen)
{
    return RunAES(PlatformAESCBCEncrypt, mode, {key, keyLen}, {iv, ivLen}, {data, dataLen}, {out, capacity}, outLen);
}

uint32_t SecBlobEncInternal_AESDecrypt(int32_t mode, const unsigned char *key, uint32_t keyLen, const unsigned char *iv,
                                       uint32_t ivLen, const unsigned char *data, uint32_t dataLen, uint32_t capacity,
                                       unsigned char *out, uint32_t *outLen)
{
    return RunAES(PlatformAESCBCDecrypt, mode, {key, keyLen}, {iv, ivLen}, {data, dataLen}, {out, capacity}, outLen);
}

void outputData(const unsigned char *buffer, size_t length, const char *path)
{
    FILE *file = fopen(path, "wb");
    if (!file) {
        printf("cannot open file");
        return;
    }
    fwrite(buffer, 1, length, file);
    fclose(file);
}
