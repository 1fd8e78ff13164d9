// secblobenc-internal: the single cryptographic steps, each of which reports its own failure.
// Lengths and capacities are in bytes.
#pragma once

#include "secblobenc.h"

#include <cstddef>
#include <cstdint>

constexpr int32_t kSecBlobEncAESModeCBC = 1;

// Reports that a step failed with an inner status, at the place that `location` stands for. Returns
// kSecBlobEncStepFailed.
uint32_t SecBlobEncInternal_ReportStep(int32_t location, const char *step, uint32_t status);

uint32_t SecBlobEncInternal_GenerateRandom(uint32_t length, void *out);

// HMAC-SHA256 (RFC 2104) into 32 bytes. Returns kSecBlobEncStepFailed, and prints nothing, when the library fails.
uint32_t SecBlobEncInternal_GenerateHMAC(const void *key, uint32_t keyLen, const void *message, uint32_t messageLen,
                                         void *out);

// RSAES-OAEP (RFC 8017) with SHA-256. The key is base64 of a DER SubjectPublicKeyInfo, read up to its NUL or
// `publicKeyLen`.
uint32_t SecBlobEncInternal_RSAEncrypt(const char *publicKeyBase64, uint32_t publicKeyLen, const void *data,
                                       uint32_t dataLen, uint32_t capacity, void *out, uint32_t *outLen);

// AES-256 with PKCS#7 padding; CBC is the only mode.
uint32_t SecBlobEncInternal_AESEncrypt(int32_t mode, const void *key, uint32_t keyLen, const void *iv, uint32_t ivLen,
                                       const void *data, uint32_t dataLen, uint32_t capacity, void *out,
                                       uint32_t *outLen);
uint32_t SecBlobEncInternal_AESDecrypt(int32_t mode, const void *key, uint32_t keyLen, const void *iv, uint32_t ivLen,
                                       const void *data, uint32_t dataLen, uint32_t capacity, void *out,
                                       uint32_t *outLen);

// Writes bytes to a file, for debugging.
void outputData(const void *buffer, size_t length, const char *path);
