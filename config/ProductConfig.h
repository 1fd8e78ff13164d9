// ProductConfig: the key material and the model list that a product is built with.
// The code only knows these names; -DOV_PRODUCT_CONFIG chooses the file that defines them.
#pragma once

extern const char RSA_PUBKEY_2048_OFFICIAL[];              // base64 in lines of 64, each ended by '\n', 399 characters
extern const unsigned char pubkey2048_OFFICIAL_SHA256[32]; // SHA-256 of the key's DER SubjectPublicKeyInfo
extern const unsigned char pubkey3072_OFFICIAL_SHA256[32]; // the same for the 3072-bit key
extern const unsigned char seed1[32];                      // HMAC key of the storage layer
extern const unsigned char seed2[32];                      // HMAC message of the storage layer
extern const unsigned char seed3[16];                      // AES initialisation vector of the storage layer
extern const char *const modelsWithComment[];              // device-model codes; ends with nullptr
