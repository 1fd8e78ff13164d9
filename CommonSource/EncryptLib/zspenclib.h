// zspenclib: the password scrambler and the base64 codec (RFC 4648).
// One calling form: input, its length, output, where the output's length goes, and the output's capacity, in bytes.
// Base64 is text on its side of the two functions (char), everything else is bytes.
#pragma once

#include <cstdint>

constexpr int32_t kZSPSuccess = 0;
constexpr int32_t kZSPNullPointer = -1;
constexpr int32_t kZSPBadLength = -2;
constexpr int32_t kZSPOutputTooSmall = -3;

// XORs the input with a repeating key; done twice it gives the input back. When the output is too small it holds the
// blocks of four bytes that fit, and `outLength` says how many bytes they are.
int32_t ZSPEncrypt(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity);

// Encodes in one line, without a NUL. When the capacity is too small nothing is written and `outLength` receives the
// size needed. An input whose text would be longer than an int32 can say has a bad length.
int32_t ZSPBinToB64(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity);

// Decodes up to the first "=", the text's NUL or `length`, whichever comes first. `length` must be a multiple of four,
// white space included; white space is skipped, and other characters outside the alphabet are not rejected. When the
// capacity is too small `outLength` receives the size that `length` and the "=" at the text's end lead one to expect.
int32_t ZSPB64ToBin(const void *input, int32_t length, void *output, int32_t *outLength, int32_t capacity);
