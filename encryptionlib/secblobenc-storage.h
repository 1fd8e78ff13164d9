// secblobenc-storage: encryption under a fixed key, for what is kept among a job's options.
// The AES key is HMAC-SHA256 of the message under the HMAC key, built for each call and never kept.
#pragma once

#include <cstdint>

// AES-256-CBC with PKCS#7 padding. `outLen` holds the output's capacity on entry and the length produced on return.
uint32_t SecBlobEnc_DataStorage_Encrypt(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv,
                                        uint32_t ivLen, void *out, uint32_t *outLen);
uint32_t SecBlobEnc_DataStorage_Decrypt(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv,
                                        uint32_t ivLen, void *out, uint32_t *outLen);
