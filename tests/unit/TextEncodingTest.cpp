// Text conversion: UTF-8 to Shift-JIS, to UTF-8 and to the PPD's form; and the bounded copies.
#include "TextEncoding.h"

#include "BoundedText.h"
#include "Rows.h"

#include <algorithm>

// The bytes after the text must be zero and the result its length.
static std::string Converted(int32_t (*convert)(const char *, void *, int32_t), const Cells &given)
{
    auto buffer = Buffer(Number(given[1]));
    const int32_t length = convert(given[0].c_str(), buffer.data(), Number(given[1]));
    const std::string text = TextOf(buffer);
    EXPECT_EQ(static_cast<size_t>(length), text.size()) << given[0];
    EXPECT_EQ(static_cast<size_t>(std::ranges::count(buffer, '\0')), buffer.size() - text.size()) << given[0];
    return text;
}

TEST(TextEncoding, ConvertsCutsAndDrops)
{
    CheckRows("text-encodings", [](const Cells &given) -> Cells {
        return {Converted(ConvertUTF8ToEncoding, given), Converted(ConvertUTF8ToEncodingForUTF8, given),
                checkIfCharacterIsMultibyte(given[0].c_str()) ? "yes" : "no"};
    });
}

TEST(TextEncoding, PPDFormIsParenthesisedUTF8)
{
    CheckRows("text-parentheses", [](const Cells &given) -> Cells {
        const auto convert = [](const char *source, void *destination, int32_t size) {
            return ConvertUTF8ToPPDEncoding(source, destination, size, kCFStringEncodingJIS_X0208_83);
        };
        return {Converted(convert, given)};
    });
}

TEST(BoundedText, TellsWhatStayed)
{
    char text[] = "old text";
    EXPECT_EQ(CopyCut({text, 4}, "abcdef"), 3u);
    EXPECT_EQ(std::string(text, 8), std::string("abc\0text", 8));
    EXPECT_EQ(FormatCut({text, 4}, "%s", "xyzdef"), 3u);
    EXPECT_EQ(std::string(text, 8), std::string("xyz\0text", 8));
    EXPECT_EQ(CopyCut({text, 8}, {"ab\0cd", 5}), 2u);
    EXPECT_EQ(CopyCut({text, size_t{0}}, "a") + FormatCut({text, size_t{0}}, "a"), 0u);
}
