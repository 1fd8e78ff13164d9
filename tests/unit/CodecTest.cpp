// The scrambler and the base64 codec: what they write, their statuses, and that they stay inside their buffers.
#include "zspenclib.h"

#include "Rows.h"

#include <algorithm>

// Takes a text, its length and the capacity; answers the status, the length told (-7: none) and the bytes written.
template <auto codec> static Cells Answer(const Cells &given)
{
    const int32_t capacity = Number(given[2]);
    auto out = Buffer(std::max(capacity, 1));
    int32_t told = -7;
    const int32_t status = codec(given[0].c_str(), Number(given[1]), out.data(), &told, capacity);
    // The scrambler writes what there is room for.
    const bool written = status == kZSPSuccess || (codec == ZSPEncrypt && status == kZSPOutputTooSmall);
    return {std::to_string(status), std::to_string(told), {out.data(), static_cast<size_t>(written ? told : 0)}};
}

TEST(Codec, EncodesBase64)
{
    CheckRows("base64-encode", Answer<ZSPBinToB64>);
}

TEST(Codec, DecodesBase64)
{
    CheckRows("base64-decode", Answer<ZSPB64ToBin>);
}

TEST(Codec, Scrambles)
{
    CheckRows("scrambler", Answer<ZSPEncrypt>);
}

TEST(Codec, RefusesNullPointers)
{
    char text[8];
    int32_t length = -7;
    for (const auto codec : {ZSPBinToB64, ZSPB64ToBin, ZSPEncrypt}) {
        EXPECT_EQ(codec(nullptr, 4, text, &length, 8), kZSPNullPointer);
        EXPECT_EQ(codec("YWJj", 4, nullptr, &length, 8), kZSPNullPointer);
        EXPECT_EQ(codec("YWJj", 4, text, nullptr, 8), kZSPNullPointer);
    }
    EXPECT_EQ(length, -7);
    EXPECT_EQ(ZSPBinToB64("abc", 3, nullptr, &length, 0), kZSPOutputTooSmall); // asks for the size
    EXPECT_EQ(ZSPB64ToBin("YWJj", 4, nullptr, &length, 0), kZSPOutputTooSmall);
}
