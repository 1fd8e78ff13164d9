#include "WatermarkEndPage.h"

#include "OutputSink.h"
#include "Platform.h"
#include "TextEncoding.h"
#include "Watermark.h"

#include <algorithm>
#include <cstdarg>
#include <vector>

// In place of what the job doesn't say.
constexpr char kAbsentFont[] = "Helvetica-Bold";
constexpr int32_t kAbsentFontSize = 72;
constexpr double kCapHeight = 0.7; // of a font of size 1

// Names are those of systemdict throughout, whatever the document made of them. The procedure's operands are a
// dictionary of its own in global memory, which restore leaves alone, and the procedure that was there before; both are
// the first elements of the array that becomes EndPage, so that they need no names. setpagedevice puts the graphics
// state back to its defaults: what the document's setup made of it is kept around it.
constexpr char kInstall[] =
    "systemdict begin currentglobal mark{\n"
    "currentcolorspace[currentcolor][currentdash]currentmiterlimit currentlinejoin\n"
    "currentlinecap currentlinewidth matrix currentmatrix\n"
    "true setglobal 2 dict dup/wqwDue true put dup/wqwFiller false put false setglobal\n"
    "currentpagedevice/EndPage 2 copy known{get}{pop pop{exch pop 2 ne}}ifelse\n"
    "{3 index 3 index 3 -1 roll exec\n"
    "dup 3 index 2 ne and{1 index/wqwFiller get{1 index/wqwFiller false put}{\n"
    "1 index/wqwDue get{countdictstack currentglobal save mark{systemdict begin false setglobal initgraphics\n";

// The font's copy and all else goes with the restore.
constexpr char kFontOfTwo[] = "dup/FontType get 0 eq{exch pop}{3 -1 roll pop}ifelse\n";
constexpr char kLatinFont[] = "dup/Encoding get StandardEncoding eq{dup length dict exch\n"
                              "{1 index/FID eq{pop pop}{2 index 3 1 roll put}ifelse}forall\n"
                              "dup/Encoding ISOLatin1Encoding put/wqwFont exch definefont}if\n";

constexpr char kDrawn[] = "}stopped cleartomark 3 -1 roll countdictstack exch sub{end}repeat restore setglobal\n"
                          "1 index/wqwDue ";
constexpr char kEnd[] = " put}if}ifelse}if\n"
                        "4 1 roll pop pop pop}bind/exec load 4 array astore cvx\n"
                        "1 dict dup/EndPage 4 -1 roll put setpagedevice\n"
                        "setmatrix setlinewidth setlinecap setlinejoin setmiterlimit aload pop setdash\n"
                        "exch setcolorspace aload pop setcolor\n"
                        "}stopped cleartomark setglobal end\n";

constexpr char kUnmarked[] = "systemdict begin mark{currentpagedevice/EndPage get 0 get\n"
                             "dup/wqwFiller known{/wqwFiller true put}if}stopped cleartomark end\n";

// The bytes of a PostScript string literal, escapes undone; `isText` says which of them are text of the job's.
static void ReadLiteral(std::string_view literal, std::string &bytes, std::vector<bool> &isText)
{
    constexpr std::string_view letters = "nrtbf", meanings = "\n\r\t\b\f";
    const auto take = [&](char byte, bool text) {
        bytes += byte;
        isText.push_back(text);
    };
    int depth = 0;
    for (size_t i = 0; i < literal.size(); i++) {
        const char byte = literal[i];
        if (byte == '(' && depth++ == 0)
            continue;
        if (byte == ')' && --depth == 0)
            return;
        if (byte != '\\') {
            take(byte, true);
            continue;
        }
        if (++i == literal.size())
            return;
        if (const size_t letter = letters.find(literal[i]); letter != letters.npos) {
            take(meanings[letter], true);
        } else if (literal[i] >= '0' && literal[i] <= '7') {
            int code = 0;
            const size_t end = std::min(i + 3, literal.size());
            for (; i < end && literal[i] >= '0' && literal[i] <= '7'; i++)
                code = code * 8 + (literal[i] - '0');
            i--;
            take(static_cast<char>(code), false);
        } else {
            take(literal[i], true);
        }
    }
}

static void AppendText(WatermarkText &text, const std::string &utf8)
{
    std::string shiftJIS(utf8.size() * kPlatformMaxUnitBytes + 1, '\0');
    const int32_t length = ConvertUTF8ToEncoding(utf8.c_str(), shiftJIS.data(), static_cast<int32_t>(shiftJIS.size()));
    text.composite.append(shiftJIS, 0, static_cast<size_t>(length));
    std::u16string units;
    PlatformDecodeUTF8(utf8, units);
    for (const char16_t unit : units)
        if (unit <= 0xFF)
            text.simple += static_cast<char>(unit);
}

WatermarkText ReadWatermarkText(std::string_view text)
{
    std::string bytes(text);
    std::vector<bool> isText(text.size(), true);
    if (text.starts_with('(')) {
        bytes.clear();
        isText.clear();
        ReadLiteral(text, bytes, isText);
    }
    WatermarkText read;
    for (size_t i = 0; i < bytes.size();) {
        const size_t begin = i;
        while (i < bytes.size() && isText[i] == isText[begin])
            i++;
        const std::string run = bytes.substr(begin, i - begin);
        if (isText[begin]) {
            AppendText(read, run);
        } else {
            read.composite += run;
            read.simple += run;
        }
    }
    return read;
}

static bool IsAbsent(auto number)
{
    return number == -1;
}

static auto Or(auto number, decltype(number) whenAbsent)
{
    return IsAbsent(number) ? whenAbsent : number;
}

static std::string Literal(std::string_view bytes)
{
    return std::string("(").append(InPostScriptString(bytes)).append(")");
}

[[gnu::format(printf, 1, 2)]] static std::string Formatted(const char *format, ...)
{
    char text[256]; // three numbers of 39 digits and their words
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

// Leaves the text's operands where the font is to show them.
static std::string Font()
{
    const WatermarkText text = ReadWatermarkText(psOptionWatermark.utf8Text);
    const char *const font = psOptionWatermark.font;
    const bool two = text.composite != text.simple;
    return (two ? Literal(text.composite) + "\n" : "") + Literal(text.simple) + "\n" +
           Literal(font[0] ? font : kAbsentFont) + "cvn findfont\n" + (two ? kFontOfTwo : "") + kLatinFont +
           Formatted("%d scalefont setfont\n", Or(psOptionWatermark.fontSize, kAbsentFontSize));
}

static std::string Colour()
{
    const WatermarkOptions &option = psOptionWatermark;
    const float density = static_cast<float>(Or(option.density, 100)) / 100;
    return Formatted("%.2f %.2f %.2f setrgbcolor\n", Lighten(Or(option.red, 0), density),
                     Lighten(Or(option.green, 0), density), Lighten(Or(option.blue, 0), density));
}

// What the job doesn't give of paper and text box, the page and the text do.
static std::string Place()
{
    const WatermarkOptions &option = psOptionWatermark;
    const float right = Or(option.horizontalOffset, 0), up = Or(option.verticalOffset, 0);
    const int32_t angle = Or(option.angle, 0);
    const bool paper = !IsAbsent(option.paperWidth) && !IsAbsent(option.paperHeight) && !IsAbsent(option.orientation);
    const bool box = !IsAbsent(option.boxWidth) && !IsAbsent(option.boxHeight);
    float x, y;
    if (paper && box) {
        GetWatermarkPostion(x, y, right, up);
        return Formatted("%.2f %.2f moveto %d rotate\n", x, y, angle);
    }
    GetWatermarkCentre(x, y);
    const double height = Or(option.boxHeight, static_cast<float>(kCapHeight * Or(option.fontSize, kAbsentFontSize)));
    return (paper ? Formatted("%.2f %.2f\n", x, y)
                  : "currentpagedevice/PageSize get aload pop 2 div exch 2 div exch\n") +
           Formatted("%.2f add exch %.2f add exch translate %d rotate\n", up, right, angle) +
           (IsAbsent(option.boxWidth) ? "dup stringwidth pop -2 div" : Formatted("%.2f", -option.boxWidth / 2)) +
           Formatted(" %.2f moveto\n", -height / 2);
}

void OutputEndPageWatermark(FILE *stream)
{
    const char *const always = psOptionWatermark.onlyFirstPage == 0 ? "true" : "false";
    QBfputs((kInstall + Font() + Colour() + Place() + "show\n" + kDrawn + always + kEnd).c_str(), stream);
}

void OutputUnmarkedPage(FILE *stream)
{
    QBfputs(kUnmarked, stream);
}
