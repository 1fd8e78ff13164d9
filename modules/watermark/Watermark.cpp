#include "Watermark.h"

#include "InjectionEvents.h"
#include "OutputSink.h"
#include "PPDLookup.h"
#include "WatermarkEndPage.h"

#include <algorithm>
#include <cmath>

WatermarkOptions psOptionWatermark;

static constexpr WatermarkOptions &option = psOptionWatermark;

constexpr ticketData tickets[] = {
    TextTicket(kWMNameTicketKey, option.name, GetTicketString),
    IntegerTicket(kWMARKOptionsTicketKey, option.options),
    IntegerTicket(kWMARKOnlyFirstTicketKey, option.onlyFirstPage),
    TextTicket(kWMARKTextTicketKey, option.text),
    IntegerTicket(KWMOrientationTicketKey, option.orientation),
    IntegerTicket(KWMPaperHeightTicketKey, option.paperHeight),
    IntegerTicket(KWMPaperWidthTicketKey, option.paperWidth),
    TextTicket(kWMARKFilePathTicketKey, option.filePath),
    IntegerTicket(kWMARKTypeTicketKey, option.type),
    TextTicket(kWMARKFontTicketKey, option.font, GetTicketString),
    IntegerTicket(kWMARKFontSizeTicketKey, option.fontSize),
    IntegerTicket(kWMARKFontTypeTicketKey, option.fontType),
    DecimalTicket(kWMARKColorRTicketKey, option.red),
    DecimalTicket(kWMARKColorGTicketKey, option.green),
    DecimalTicket(kWMARKColorBTicketKey, option.blue),
    DecimalTicket(kWMARKColorATicketKey, option.alpha),
    IntegerTicket(kWMARKAngleTicketKey, option.angle),
    IntegerTicket(kWMARKDensityTicketKey, option.density),
    DecimalTicket(kWMARKScaleTicketKey, option.scale),
    DecimalTicket(kWMARKPosHorizontalTicketKey, option.horizontalPosition),
    DecimalTicket(kWMARKPosVerticalTicketKey, option.verticalPosition),
    DecimalTicket(KWMARKWidthTicketKey, option.boxWidth),
    DecimalTicket(KWMARKHeightTicketKey, option.boxHeight),
    DecimalTicket(KWMARKhOffsetTicketKey, option.horizontalOffset),
    DecimalTicket(KWMARKvOffsetTicketKey, option.verticalOffset),
};
constinit const TicketTable WatermarkticketData = tickets;

// A block of a text watermark.
// event: where it stands.
// opening: its text, or its first line when `draws` says that the drawing follows.
// bToPrint: 1 while it is to be written at its event, 0 once the first page was the only one.
struct TextWatermarkBlock {
    int32_t event;
    const char *opening;
    bool draws;
    int32_t bToPrint = 1;
};

// pgsave, pm and the save that they hold belong to the document, whose page procedures keep it there. The dictionary
// stays open on purpose: the names in it must be found on every page. Each wqwbp leaves a name on the operand stack.
static TextWatermarkBlock InjectTextWatermark[] = {
    {kEventBeginProlog,
     "userdict/wqwInfo 2 dict dup begin\n"
     "/wqwpgsave 0 def\n"
     "/wqwbp{/wqwpgsave save restore} bind def\n",
     false},
    {kEventEndPageSetup, "wqwbp\n", false},
    {kEventEndPage, "pgsave restore /pgsave save store gsave\n", true},
    {kEventEndPageOfPM, "pm restore /pm save store gsave\n", true},
    {kEventEndPageOfFilter, "wqwpgsave restore /wqwpgsave save store gsave\n", true},
};

// Each operation rounds to a 32-bit float; the build keeps compilers from fusing two into one (-ffp-contract=off).
float Lighten(float component, float density)
{
    const float distance = 1 - component;
    const float scaled = distance * density;
    return 1 - scaled;
}

// Half the text box's diagonal, turned by `radians`.
struct HalfDiagonal {
    float along;
    float across;
};

static HalfDiagonal TurnedHalfDiagonal(double radians)
{
    const double halfWidth = 0.5 * option.boxWidth;
    const double halfHeight = 0.5 * option.boxHeight;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    return {static_cast<float>(cosine * halfWidth - sine * halfHeight),
            static_cast<float>(cosine * halfHeight + sine * halfWidth)};
}

void GetWatermarkCentre(float &x, float &y)
{
    const float halfPaperWidth = static_cast<float>(option.paperWidth) / 2;
    const float halfPaperHeight = static_cast<float>(option.paperHeight) / 2;
    x = y = 0;
    switch (option.orientation) {
    case 1:
    case 3:
        x = halfPaperWidth;
        y = halfPaperHeight;
        break;
    case 2:
    case 4:
        x = halfPaperHeight;
        y = halfPaperWidth;
        break;
    }
}

void GetWatermarkPostion(float &x, float &y, float horizontalOffset, float verticalOffset)
{
    float centreX;
    float centreY;
    GetWatermarkCentre(centreX, centreY);

    // Each quadrant is turned back to the first; the digits of the constants are part of the result.
    const uint32_t angle = static_cast<uint32_t>(option.angle);
    const double radians = option.angle * 3.1415926 / 180.0;
    if (angle <= 90) {
        const auto [along, across] = TurnedHalfDiagonal(radians);
        x = centreX - along;
        y = centreY - across;
    } else if (angle <= 180) {
        const auto [along, across] = TurnedHalfDiagonal(radians - 1.5707963);
        x = centreX + across;
        y = centreY - along;
    } else if (angle <= 270) {
        const auto [along, across] = TurnedHalfDiagonal(radians - 3.1415926);
        x = centreX + along;
        y = centreY + across;
    } else if (angle <= 360) {
        const auto [along, across] = TurnedHalfDiagonal(radians - 4.7123889);
        x = centreX - across;
        y = centreY + along;
    } else {
        x = 0;
        y = 0;
    }
    x += horizontalOffset;
    y += verticalOffset;
}

// Font and text go out as they stand.
static void OutputDrawing(FILE *stream)
{
    const float density = static_cast<float>(option.density) / 100;
    float x;
    float y;
    GetWatermarkPostion(x, y, option.horizontalOffset, option.verticalOffset);

    QBfprintfCut(stream, kDirectLineSize, "%.2f %.2f %.2f setrgbcolor\n", Lighten(option.red, density),
                 Lighten(option.green, density), Lighten(option.blue, density));
    QBfprintfCut(stream, kDirectLineSize, "/%s %d selectfont\n", option.font, option.fontSize);
    QBfprintfCut(stream, kDirectLineSize, "%.2f %.2f moveto\n", x, y);
    QBfprintfCut(stream, kDirectLineSize, "%d rotate\n", option.angle);
    QBfprintfCut(stream, kDirectLineSize, "%s show\n", option.text);
    QBfprintf(stream, "grestore\n");
}

// Whether the pages are marked by an EndPage procedure, not by the blocks.
static bool byEndPage = false;

void WatermarkGetTicketFromPDE(const char *const *argv)
{
    psOptionWatermark = {};
    byEndPage = PPDAttributeIs("OVWatermarkMethod", "EndPage");
    for (TextWatermarkBlock &block : InjectTextWatermark)
        block.bToPrint = 1;
    GetTicketFromArray(argv, WatermarkticketData);
    const JobOptions options = OptionsOfJob(argv);
    GetTicketStringConvertedToPrtLangForUTF8(kWMARKTextTicketKey, options.count, options.list, option.utf8Text,
                                             sizeof option.utf8Text);
}

static bool IsTextWatermark()
{
    return option.name[0] != '\0' && option.type == 0;
}

static bool IsDue(const TextWatermarkBlock &block, int32_t event)
{
    return !byEndPage && block.event == event && block.bToPrint == 1;
}

// What the events of the EndPage procedure write.
static constexpr struct {
    int32_t event;
    void (*output)(FILE *stream);
} endPageBlocks[] = {
    {kEventBeforePages, OutputEndPageWatermark},
    {kEventFillerPage, OutputUnmarkedPage},
};

bool WatermarkHasPSCommandFromFilter(int32_t event)
{
    if (!IsTextWatermark())
        return false;
    return (byEndPage &&
            std::ranges::any_of(endPageBlocks, [event](const auto &block) { return block.event == event; })) ||
           std::ranges::any_of(InjectTextWatermark, [event](const auto &block) { return IsDue(block, event); });
}

void WatermarkOutputPSCommandFromFilter(int32_t event, int32_t, FILE *stream)
{
    if (!IsTextWatermark())
        return;
    option.options = 1;

    for (const auto &block : endPageBlocks)
        if (byEndPage && block.event == event)
            block.output(stream);
    for (TextWatermarkBlock &block : InjectTextWatermark) {
        if (!IsDue(block, event))
            continue;
        QBfprintf(stream, block.opening);
        if (block.draws)
            OutputDrawing(stream);
        block.bToPrint = !option.onlyFirstPage;
    }
}
