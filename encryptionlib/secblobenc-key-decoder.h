// secblobenc-key-decoder: a public key from its text form to DER.
#pragma once

#include <vector>

// Decodes NUL-terminated base64, line ends allowed. Returns nothing when it is malformed.
std::vector<unsigned char> SecBlobEnc_Decode_Key(const char *base64Text);
