#include "Watermark.h"

#include "InjectionEvents.h"
#include "OutputSink.h"
#include "TicketReader.h"

#include <algorithm>
#include <cmath>
#include <iterator>

WatermarkOptions psOptionWatermark;

static const char kWMNameTicketKey[] = "com.orvane.dlg.printsettings.WMARKNameTicket";
static const char kWMARKOptionsTicketKey[] = "com.orvane.dlg.printsettings.WMARKOptionsTicket";
static const char kWMARKOnlyFirstTicketKey[] = "com.orvane.dlg.printsettings.WMARKOnlyFirstTicket";
static const char kWMARKTextTicketKey[] = "com.orvane.dlg.printsettings.WMARKTextTicket";
static const char KWMOrientationTicketKey[] = "com.orvane.dlg.printsettings.WMARKOrientationTicket";
static const char KWMPaperHeightTicketKey[] = "com.orvane.dlg.printsettings.WMARKPaperHeightTicket";
static const char KWMPaperWidthTicketKey[] = "com.orvane.dlg.printsettings.WMARKPaperWidthTicket";
static const char kWMARKFilePathTicketKey[] = "com.orvane.dlg.printsettings.WMARKFilePathTicket";
static const char kWMARKTypeTicketKey[] = "com.orvane.dlg.printsettings.WMARKTypeTicket";
static const char kWMARKFontTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontTicket";
static const char kWMARKFontSizeTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontSizeTicket";
static const char kWMARKFontTypeTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontTypeTicket";
static const char kWMARKColorRTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorRTicket";
static const char kWMARKColorGTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorGTicket";
static const char kWMARKColorBTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorBTicket";
static const char kWMARKColorATicketKey[] = "com.orvane.dlg.printsettings.WMARKColorATicket";
static const char kWMARKAngleTicketKey[] = "com.orvane.dlg.printsettings.WMARKAngleTicket";
static const char kWMARKDensityTicketKey[] = "com.orvane.dlg.printsettings.WMARKDensityTicket";
static const char kWMARKScaleTicketKey[] = "com.orvane.dlg.printsettings.WMARKScaleTicket";
static const char kWMARKPosHorizontalTicketKey[] = "com.orvane.dlg.printsettings.WMARKPosHorizontalTicket";
static const char kWMARKPosVerticalTicketKey[] = "com.orvane.dlg.printsettings.WMARKPosVerticalTicket";
static const char KWMARKWidthTicketKey[] = "com.orvane.dlg.printsettings.WMARKWidthTicket";
static const char KWMARKHeightTicketKey[] = "com.orvane.dlg.printsettings.WMARKHeightTicket";
static const char KWMARKhOffsetTicketKey[] = "com.orvane.dlg.printsettings.WMARKhOffsetTicket";
static const char KWMARKvOffsetTicketKey[] = "com.orvane.dlg.printsettings.WMARKvOffsetTicket";

static constexpr WatermarkOptions &option = psOptionWatermark;
static constexpr TicketGetter Integer = GetTicketInteger;
static constexpr TicketGetter Decimal = GetTicketFloat;
static constexpr TicketGetter Text = GetTicketStringConvertedToPrtLang;

static const ticketData WatermarkticketData[] = {
    {kWMNameTicketKey, option.name, sizeof option.name, GetTicketString},
    {kWMARKOptionsTicketKey, &option.options, sizeof option.options, Integer},
    {kWMARKOnlyFirstTicketKey, &option.onlyFirstPage, sizeof option.onlyFirstPage, Integer},
    {kWMARKTextTicketKey, option.text, sizeof option.text, Text},
    {KWMOrientationTicketKey, &option.orientation, sizeof option.orientation, Integer},
    {KWMPaperHeightTicketKey, &option.paperHeight, sizeof option.paperHeight, Integer},
    {KWMPaperWidthTicketKey, &option.paperWidth, sizeof option.paperWidth, Integer},
    {kWMARKFilePathTicketKey, option.filePath, sizeof option.filePath, Text},
    {kWMARKTypeTicketKey, &option.type, sizeof option.type, Integer},
    {kWMARKFontTicketKey, option.font, sizeof option.font, GetTicketString},
    {kWMARKFontSizeTicketKey, &option.fontSize, sizeof option.fontSize, Integer},
    {kWMARKFontTypeTicketKey, &option.fontType, sizeof option.fontType, Integer},
    {kWMARKColorRTicketKey, &option.red, sizeof option.red, Decimal},
    {kWMARKColorGTicketKey, &option.green, sizeof option.green, Decimal},
    {kWMARKColorBTicketKey, &option.blue, sizeof option.blue, Decimal},
    {kWMARKColorATicketKey, &option.alpha, sizeof option.alpha, Decimal},
    {kWMARKAngleTicketKey, &option.angle, sizeof option.angle, Integer},
    {kWMARKDensityTicketKey, &option.density, sizeof option.density, Integer},
    {kWMARKScaleTicketKey, &option.scale, sizeof option.scale, Decimal},
    {kWMARKPosHorizontalTicketKey, &option.horizontalPosition, sizeof option.horizontalPosition, Decimal},
    {kWMARKPosVerticalTicketKey, &option.verticalPosition, sizeof option.verticalPosition, Decimal},
    {KWMARKWidthTicketKey, &option.boxWidth, sizeof option.boxWidth, Decimal},
    {KWMARKHeightTicketKey, &option.boxHeight, sizeof option.boxHeight, Decimal},
    {KWMARKhOffsetTicketKey, &option.horizontalOffset, sizeof option.horizontalOffset, Decimal},
    {KWMARKvOffsetTicketKey, &option.verticalOffset, sizeof option.verticalOffset, Decimal},
};

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

// Lightens a colour component towards white. One operation a statement: the result is that of 32-bit floats also where
// a compiler could fuse two operations.
static float Lighten(float component, float density)
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

void GetWatermarkPostion(float &x, float &y, float horizontalOffset, float verticalOffset)
{
    const float halfPaperWidth = static_cast<float>(option.paperWidth) / 2;
    const float halfPaperHeight = static_cast<float>(option.paperHeight) / 2;
    float centreX = 0;
    float centreY = 0;
    switch (option.orientation) {
    case 1:
    case 3:
        centreX = halfPaperWidth;
        centreY = halfPaperHeight;
        break;
    case 2:
    case 4:
        centreX = halfPaperHeight;
        centreY = halfPaperWidth;
        break;
    }

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

void WatermarkGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, WatermarkticketData, static_cast<int32_t>(std::size(WatermarkticketData)));
}

static bool IsTextWatermark()
{
    return option.name[0] != '\0' && option.type == 0;
}

static bool IsDue(const TextWatermarkBlock &block, int32_t event)
{
    return block.event == event && block.bToPrint == 1;
}

bool WatermarkHasPSCommandFromFilter(int32_t event)
{
    return IsTextWatermark() && std::ranges::any_of(InjectTextWatermark, [event](const TextWatermarkBlock &block) {
               return IsDue(block, event);
           });
}

void WatermarkOutputPSCommandFromFilter(int32_t event, int32_t, FILE *stream)
{
    if (!IsTextWatermark())
        return;
    option.options = 1;

    for (TextWatermarkBlock &block : InjectTextWatermark) {
        if (!IsDue(block, event))
            continue;
        QBfprintf(stream, block.opening);
        if (block.draws)
            OutputDrawing(stream);
        block.bToPrint = !option.onlyFirstPage;
    }
}
