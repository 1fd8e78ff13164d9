// The scrambler and the base64 codec: what they write, their statuses, and that they stay inside their buffers.

#include "zspenclib.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;
using Bytes = std::vector<unsigned char>;

static Bytes BytesOf(const std::string &text)
{
    return {text.begin(), text.end()};
}

TEST(Codec, VectorsOfTheStandard)
{
    const struct {
        std::string plain, base64;
    } cases[] = {{"f", "Zg=="},        {"fo", "Zm8="},          {"foo", "Zm9v"},
                 {"foob", "Zm9vYg=="}, {"fooba", "Zm9vYmE="},   {"foobar", "Zm9vYmFy"},
                 {"\xFB\xFF", "+/8="}, {"\0\x10\x83"s, "ABCD"}, {"\xFF\xFF\xFF", "////"}};
    for (const auto &c : cases) {
        std::vector<char> text(c.base64.size());
        Bytes plain(c.plain.size());
        int32_t length = -1;
        EXPECT_EQ(ZSPBinToB64(BytesOf(c.plain).data(), static_cast<int32_t>(c.plain.size()), text.data(), &length,
                              static_cast<int32_t>(text.size())),
                  0);
        EXPECT_EQ(std::string(text.begin(), text.end()), c.base64);
        EXPECT_EQ(length, static_cast<int32_t>(c.base64.size()));
        EXPECT_EQ(ZSPB64ToBin(text.data(), length, plain.data(), &length, static_cast<int32_t>(plain.size())), 0);
        EXPECT_EQ(plain, BytesOf(c.plain));
        EXPECT_EQ(length, static_cast<int32_t>(c.plain.size()));
    }
}

TEST(Codec, DecodesWhatIsNotQuiteBase64)
{
    const struct {
        std::string text;
        int32_t length, capacity, status, outLength;
        std::string bytes;
    } cases[] = {
        {"YWJj", 4, 3, 0, 3, "abc"},
        {"YWJ", 3, 9, -2, -7, ""},
        {"YWJj", 0, 9, -2, -7, ""},
        {"YWJj", -4, 9, -2, -7, ""},
        {"YWJj", 4, -1, -2, -7, ""},
        {"YWJj", 4, 2, -3, 3, ""},
        {"YWJj", 4, 0, -3, 3, ""},
        {"====", 4, 9, 0, 0, ""},
        {"====", 4, 0, -3, 0, ""},
        {"========", 8, 1, 0, 0, ""},
        {"AAAA====", 8, 2, -3, 2, ""},
        {"AAAA====", 8, 3, 0, 3, "\0\0\0"s},
        {"YWJj\0===="s, 12, 9, 0, 3, "abc"}, // the text ends at its NUL
        {"YW==", 8, 3, -3, 4, ""},           // two "=" of the text, none past it
        {"YW==", 8, 4, 0, 1, "a"},
        {"", 4, 3, 0, 0, ""},
        {" YW\nJ\tj ", 8, 6, 0, 3, "abc"},
        {" YW\nJ\tj ", 8, 5, -3, 6, ""},
        {"YW  ", 4, 3, 0, 1, "a"},
        {"Y   ", 4, 3, 0, 0, ""},
        {"Y=Jj", 4, 3, 0, 0, ""},
        {"YQ==YWJj", 8, 6, 0, 1, "a"},
        {"!!!!", 4, 3, 0, 3, "\xFF\xFF\xFF"},
        {"\x80\xFF"
         "AA",
         4, 3, 0, 3, "\xFF\xF0\0"s},
        {"AA\x7F\xC3", 4, 3, 0, 3, "\x00\x3F\xFF"s},
    };
    for (const auto &c : cases) {
        std::vector<char> text(c.text.c_str(), c.text.c_str() + c.text.size() + 1);
        Bytes out(static_cast<size_t>(std::max(c.capacity, 1)));
        int32_t length = -7;
        EXPECT_EQ(ZSPB64ToBin(text.data(), c.length, out.data(), &length, c.capacity), c.status) << c.text;
        EXPECT_EQ(length, c.outLength) << c.text;
        const auto end = out.begin() + (c.status == 0 ? c.outLength : 0);
        EXPECT_EQ(std::string(out.begin(), end), c.bytes) << c.text;
    }
}

TEST(Codec, RefusesBadArguments)
{
    const unsigned char input[] = "abc";
    unsigned char bytes[8];
    char text[8] = "old";
    int32_t length = -7;
    EXPECT_EQ(ZSPBinToB64(nullptr, 3, text, &length, 8), -1);
    EXPECT_EQ(ZSPBinToB64(input, 3, nullptr, &length, 8), -1);
    EXPECT_EQ(ZSPBinToB64(input, 0, text, &length, 8), -2);
    EXPECT_EQ(ZSPBinToB64(input, 3, text, &length, -1), -2);
    EXPECT_EQ(ZSPBinToB64(input, INT32_MAX, text, &length, 8), -2);
    EXPECT_EQ(length, -7);
    EXPECT_EQ(ZSPBinToB64(input, 1, text, &length, 3), -3);
    EXPECT_EQ(length, 4);
    EXPECT_EQ(ZSPBinToB64(input, 4, nullptr, &length, 0), -3);
    EXPECT_EQ(length, 8);
    EXPECT_STREQ(text, "old");
    EXPECT_EQ(ZSPB64ToBin(nullptr, 4, bytes, &length, 8), -1);
    EXPECT_EQ(ZSPB64ToBin("YWJj", 4, nullptr, &length, 8), -1);
    EXPECT_EQ(ZSPEncrypt(input, 3, nullptr, &length, 8), -1);
    EXPECT_EQ(ZSPEncrypt(input, 0, bytes, &length, 8), -2);
    EXPECT_EQ(ZSPEncrypt(input, 3, bytes, &length, 0), -2);
}

TEST(Codec, Scrambles)
{
    // "abcde" and the key "tmbr", byte by byte
    const Bytes scrambled = {0x15, 0x0F, 0x01, 0x16, 0x11};
    const struct {
        int32_t length, capacity, status, outLength;
    } cases[] = {{5, 5, 0, 5}, {5, 4, -3, 4}, {4, 4, 0, 4}, {3, 3, 0, 3}, {3, 2, -3, 0}, {4, 3, -3, 0}};
    const Bytes plain = BytesOf("abcde");
    for (const auto &c : cases) {
        Bytes out(static_cast<size_t>(c.capacity));
        int32_t length = -7;
        EXPECT_EQ(ZSPEncrypt(plain.data(), c.length, out.data(), &length, c.capacity), c.status);
        ASSERT_EQ(length, c.outLength);
        EXPECT_TRUE(std::equal(out.begin(), out.begin() + length, scrambled.begin()));
    }
}
