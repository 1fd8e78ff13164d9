#include "secblobenc-key-decoder.h"

#include "Platform.h"

std::vector<unsigned char> SecBlobEnc_Decode_Key(const char *base64Text)
{
    std::vector<unsigned char> key;
    PlatformBase64Decode(base64Text, key);
    return key;
}
