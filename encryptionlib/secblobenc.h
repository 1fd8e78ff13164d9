// secblobenc: the entry points of the credential encryption.
// Passwords are kept under a fixed storage key and sent in a blob that only the holder of the printer's key can open.
#pragma once

#include <cstdint>

// Statuses of all its functions. One that fails says so on standard output, and leaves `outLen` as it was and the
// output undefined.
constexpr uint32_t kSecBlobEncSuccess = 0;
constexpr uint32_t kSecBlobEncBadArgument = 2;
constexpr uint32_t kSecBlobEncStepFailed = 99;

// Encrypt and decrypt under the storage key, as SecBlobEnc_DataStorage_Encrypt and SecBlobEnc_DataStorage_Decrypt do.
uint32_t Encode_Storage(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv, uint32_t ivLen, void *out,
                        uint32_t *outLen);
uint32_t Decode_Storage(const void *data, uint32_t dataLen, const void *hmacKey, uint32_t hmacKeyLen,
                        const void *hmacMessage, uint32_t hmacMessageLen, const void *iv, uint32_t ivLen, void *out,
                        uint32_t *outLen);

// Encrypts for the printer under the product's 2048-bit key: a blob of 352 bytes and the padded data, different each
// time. `out` must have room for it.
uint32_t Encode_Random(const void *data, uint32_t dataLen, void *out, uint32_t *outLen);

// Fills `out` with `length` bytes of the system's cryptographic random source.
uint32_t Generate_Random(uint32_t length, void *out);
