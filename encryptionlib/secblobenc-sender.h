// secblobenc-sender: key transport, the blob in which a secret goes to the printer.
// Each blob has a random AES key, derived from a secret that travels under the printer's RSA key and a salt beside it.
#pragma once

#include <cstdint>

// Encrypts at most 99500 bytes into a blob. aesMode: 1 (CBC) is the only one that works. keyType: 0 for the 2048-bit
// key, 1 for the 3072-bit one; it chooses the identifier that the blob names, the key itself is `publicKeyBase64`. The
// blob has 96 bytes, the RSA modulus's bytes and the padded data; `out` must have room for it, and `outLen` receives
// its length.
uint32_t SecBlobEnc_KT_Encrypt(int32_t aesMode, int32_t keyType, const void *data, uint32_t dataLen,
                               const char *publicKeyBase64, uint32_t publicKeyLen, void *out, uint32_t *outLen);
