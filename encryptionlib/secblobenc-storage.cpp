#include "secblobenc-storage.h"

#include "Platform.h"
#include "secblobenc-internal.h"

// One direction: the AES step, its name, and where its two steps report a failure.
struct StorageDirection {
    decltype(SecBlobEncInternal_AESEncrypt) *aes;
    const char *aesName;
    int32_t hmacLocation;
    int32_t aesLocation;
};

static const StorageDirection storageEncrypt = {SecBlobEncInternal_AESEncrypt, "AES Encrypt", 39, 52};
static const StorageDirection storageDecrypt = {SecBlobEncInternal_AESDecrypt, "AES Decrypt", 84, 97};

static uint32_t RunStorage(const StorageDirection &direction, const void *data, uint32_t dataLen, const void *hmacKey,
                           uint32_t hmacKeyLen, const void *hmacMessage, uint32_t hmacMessageLen, const void *iv,
                           uint32_t ivLen, void *out, uint32_t *outLen)
{
    unsigned char key[kPlatformHMACBytes];
    uint32_t status = SecBlobEncInternal_GenerateHMAC(hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, key);
    if (status != kSecBlobEncSuccess) {
        status = SecBlobEncInternal_ReportStep(direction.hmacLocation, "Key Derivation HMAC", status);
    } else {
        status = direction.aes(kSecBlobEncAESModeCBC, key, sizeof key, iv, ivLen, data, dataLen, *outLen, out, outLen);
        if (status != kSecBlobEncSuccess)
            status = SecBlobEncInternal_ReportStep(direction.aesLocation, direction.aesName, status);
    }
    PlatformWipe(key, sizeof key);
    return status;
}

uint32_t SecBlobEnc_DataStorage_Encrypt(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv,
                                        uint32_t ivLen, void *out, uint32_t *outLen)
{
    return RunStorage(storageEncrypt, data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen, out,
                      outLen);
}

uint32_t SecBlobEnc_DataStorage_Decrypt(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv,
                                        uint32_t ivLen, void *out, uint32_t *outLen)
{
    return RunStorage(storageDecrypt, data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen, out,
                      outLen);
}
