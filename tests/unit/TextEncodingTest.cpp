// Text conversion: UTF-8 to Shift-JIS, to UTF-8 and to the PPD's form.

#include "TextEncoding.h"
#include "Platform.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

using Converter = int32_t (*)(const char *, char *, int32_t);

// Converts into a buffer of exactly `size` bytes, so that a sanitizer sees any byte too many; the bytes behind the
// text must be zero and the result its length.
static std::string Converted(Converter convert, const std::string &source, int32_t size)
{
    std::vector<char> buffer(static_cast<size_t>(std::max(size, 0)), 'x');
    const int32_t length = convert(source.c_str(), buffer.data(), size);
    const std::string text(buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0'));
    EXPECT_EQ(static_cast<size_t>(length), text.size()) << source;
    EXPECT_EQ(static_cast<size_t>(std::count(buffer.begin(), buffer.end(), '\0')), buffer.size() - text.size());
    return text;
}

TEST(TextEncoding, ConvertsOrDropsEveryCharacter)
{
    const struct {
        const char *source, *legacy, *utf8;
    } cases[] = {
        {"", "", ""},
        {"a\\b~c", "a\\b~c", "a\\b~c"},
        {"\t\x7F", "\t\x7F", "\t\x7F"},
        {"日本", "\x93\xFA\x96\x7B", "日本"},
        {"かき", "\x82\xA9\x82\xAB", "かき"}, // letters that a combining mark could follow
        {"か\u309A", "\x82\xA9", "か\u309A"},
        {"ｱﾟ", "\xB1\xDF", "ｱﾟ"},
        {"　", "\x81\x40", "　"},
        {"〜", "\x81\x60", "〜"},
        {"①×", "\x87\x40\x81\x7E", "①×"},
        {"\u01DC❶", "\x84\xFA\x86\x9F", "\u01DC❶"}, // the neighbours of the letters without glyphs
        {"€\u031A", "", "€\u031A"},                 // the first and the last of them
        {"Rén\u0259", "Rn", "Rén\u0259"},
        {"한", "", "한"},
        {"a😀b𠮟c", "abc", "abc"},
        {"\uFEFFx\uFFFF", "x", "\uFEFFx\uFFFF"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Converted(ConvertUTF8ToEncoding, c.source, 64), c.legacy);
        EXPECT_EQ(Converted(ConvertUTF8ToEncodingForUTF8, c.source, 64), c.utf8);
    }
}

TEST(TextEncoding, MalformedTextIsEmpty)
{
    const char *const malformed[] = {
        "\xFF",     "a\x80",        "\xC0\xAF",         "\xC1\xBF",         "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
        "ab\xC3",   "\xE3\x81",     "\xE3\x81z",        "\xF0\x9F\x98",     "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xC3\x28", "\xE3\x28\x81", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80", "\xC3\xC3\xA9",
    };
    for (const char *text : malformed) {
        std::u16string units = u"old";
        EXPECT_FALSE(PlatformDecodeUTF8(text, units)) << text;
        EXPECT_TRUE(units.empty());
        EXPECT_EQ(Converted(ConvertUTF8ToEncoding, text, 8), "");
        EXPECT_EQ(Converted(ConvertUTF8ToEncodingForUTF8, text, 8), "");
        EXPECT_FALSE(checkIfCharacterIsMultibyte(text));
    }
    std::u16string units;
    EXPECT_TRUE(PlatformDecodeUTF8("\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF", units));
    EXPECT_EQ(units, u"\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFF");
    EXPECT_TRUE(PlatformDecodeUTF8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", units));
    EXPECT_EQ(units, u"\U00010000\U0010FFFF");
}

TEST(TextEncoding, CutsAtTheBufferAlsoInsideACharacter)
{
    const struct {
        int32_t size;
        const char *legacy, *utf8;
    } cases[] = {
        {-1, "", ""},
        {0, "", ""},
        {1, "", ""},
        {4, "\x93\xFA\x96", "日"},
        {5, "\x93\xFA\x96\x7B", "日\xE6"},
        {6, "\x93\xFA\x96\x7B", "日\xE6\x9C"},
        {7, "\x93\xFA\x96\x7B", "日本"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(Converted(ConvertUTF8ToEncoding, "日本", c.size), c.legacy);
        EXPECT_EQ(Converted(ConvertUTF8ToEncodingForUTF8, "日本", c.size), c.utf8);
    }
}

TEST(TextEncoding, PPDFormIsParenthesisedUTF8)
{
    const Converter convert = [](const char *source, char *destination, int32_t size) {
        return ConvertUTF8ToPPDEncoding(source, destination, size, kCFStringEncodingJIS_X0208_83);
    };
    EXPECT_EQ(Converted(convert, "abc", 6), "(abc)");
    EXPECT_EQ(Converted(convert, "abc", 5), "");
    EXPECT_EQ(Converted(convert, "", 3), "()");
    EXPECT_EQ(Converted(convert, "", 0), "");
    EXPECT_EQ(Converted(convert, "", -1), "");
    EXPECT_EQ(Converted(convert, "日😀", 64), "(日😀)");
    EXPECT_EQ(Converted(convert, "a\xFF", 64), "");
    EXPECT_EQ(Converted(convert, std::string(507, 'x'), 1024).size(), 509u);
    EXPECT_EQ(Converted(convert, std::string(508, 'x'), 1024), "");
}

TEST(TextEncoding, PPDLanguageEncodingNamesTheNumber)
{
    EXPECT_EQ(GetCFStringSimEncodingFromPPD(nullptr), kCFStringEncodingUTF8);
    for (const std::string value : {"JIS83-RKSJ", "ISOLatin1", "WindowsANSI", "JIS83-RKSJ2"}) {
        const std::string path = testing::TempDir() + "language" + std::to_string(getpid()) + ".ppd";
        std::ofstream(path) << "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: " << value << "\n";
        setenv("PPD", path.c_str(), 1);
        EXPECT_EQ(GetCFStringSimEncodingFromPPD(JobPPD()),
                  value == "JIS83-RKSJ" ? kCFStringEncodingJIS_X0208_83 : kCFStringEncodingUTF8);
        CloseJobPPD();
        unsetenv("PPD");
        unlink(path.c_str());
    }
}

TEST(TextEncoding, FindsWhatShiftJISCannotCarry)
{
    for (const char *text : {"", "abc\\~", "日本ｱ"})
        EXPECT_FALSE(checkIfCharacterIsMultibyte(text)) << text;
    for (const char *text : {"日本é", "😀", "\\한"})
        EXPECT_TRUE(checkIfCharacterIsMultibyte(text)) << text;
}
