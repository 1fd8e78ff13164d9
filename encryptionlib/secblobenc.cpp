#include "secblobenc.h"

#include "ProductConfig.h"
#include "secblobenc-internal.h"
#include "secblobenc-sender.h"
#include "secblobenc-storage.h"

constexpr int32_t kKeyType2048 = 0;
constexpr uint32_t kPublicKeyTextLength = 399;

uint32_t Encode_Storage(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv, uint32_t ivLen, void *out,
                        uint32_t *outLen)
{
    return SecBlobEnc_DataStorage_Encrypt(data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen,
                                          out, outLen);
}

uint32_t Decode_Storage(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv, uint32_t ivLen, void *out,
                        uint32_t *outLen)
{
    return SecBlobEnc_DataStorage_Decrypt(data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen,
                                          out, outLen);
}

uint32_t Encode_Random(const void *data, uint32_t dataLen, void *out, uint32_t *outLen)
{
    return SecBlobEnc_KT_Encrypt(kSecBlobEncAESModeCBC, kKeyType2048, data, dataLen, RSA_PUBKEY_2048_OFFICIAL,
                                 kPublicKeyTextLength, out, outLen);
}

uint32_t Generate_Random(uint32_t length, void *out)
{
    return SecBlobEncInternal_GenerateRandom(length, out);
}
