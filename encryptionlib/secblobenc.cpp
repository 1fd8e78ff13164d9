#include "secblobenc.h"

#include "ProductConfig.h"
#include "secblobenc-internal.h"
#include "secblobenc-sender.h"
#include "secblobenc-storage.h"

constexpr int32_t kKeyType2048 = 0;
constexpr uint32_t kPublicKeyTextLength = 399;

uint32_t Encode_Storage(const unsigned char *data, uint32_t dataLen, const unsigned char *hmacKey, uint32_t hmacKeyLen,
                        const unsigned char *hmacMessage, uint32_t hmacMessageLen, const unsigned char *iv,
                        uint32_t ivLen, unsigned char *out, uint32_t *outLen)
{
    return SecBlobEnc_DataStorage_Encrypt(data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen,
                                          out, outLen);
}

uint32_t Decode_Storage(const unsigned char *data, uint32_t dataLen, const unsigned char *hmacKey, uint32_t hmacKeyLen,
                        const unsigned char *hmacMessage, uint32_t hmacMessageLen, const unsigned char *iv,
                        uint32_t ivLen, unsigned char *out, uint32_t *outLen)
{
    return SecBlobEnc_DataStorage_Decrypt(data, dataLen, hmacKey, hmacKeyLen, hmacMessage, hmacMessageLen, iv, ivLen,
                                          out, outLen);
}

uint32_t Encode_Random(const unsigned char *data, uint32_t dataLen, unsigned char *out, uint32_t *outLen)
{
    return SecBlobEnc_KT_Encrypt(kSecBlobEncAESModeCBC, kKeyType2048, data, dataLen, RSA_PUBKEY_2048_OFFICIAL,
                                 kPublicKeyTextLength, out, outLen);
}

uint32_t Generate_Random(uint32_t length, unsigned char *out)
{
    return SecBlobEncInternal_GenerateRandom(length, out);
}
