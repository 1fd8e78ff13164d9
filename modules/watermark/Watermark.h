// Watermark: a text drawn across the pages by PostScript that is put into the document at its page boundaries or, where
// the queue's PPD says so, by a procedure that is installed before the first page.
// The tickets fill one record; the text starts where its turned box has the page's centre in its middle.
#pragma once

#include "TicketReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

// The tickets.
inline constexpr char kWMNameTicketKey[] = "com.orvane.dlg.printsettings.WMARKNameTicket";
inline constexpr char kWMARKOptionsTicketKey[] = "com.orvane.dlg.printsettings.WMARKOptionsTicket";
inline constexpr char kWMARKOnlyFirstTicketKey[] = "com.orvane.dlg.printsettings.WMARKOnlyFirstTicket";
inline constexpr char kWMARKTextTicketKey[] = "com.orvane.dlg.printsettings.WMARKTextTicket";
inline constexpr char KWMOrientationTicketKey[] = "com.orvane.dlg.printsettings.WMARKOrientationTicket";
inline constexpr char KWMPaperHeightTicketKey[] = "com.orvane.dlg.printsettings.WMARKPaperHeightTicket";
inline constexpr char KWMPaperWidthTicketKey[] = "com.orvane.dlg.printsettings.WMARKPaperWidthTicket";
inline constexpr char kWMARKFilePathTicketKey[] = "com.orvane.dlg.printsettings.WMARKFilePathTicket";
inline constexpr char kWMARKTypeTicketKey[] = "com.orvane.dlg.printsettings.WMARKTypeTicket";
inline constexpr char kWMARKFontTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontTicket";
inline constexpr char kWMARKFontSizeTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontSizeTicket";
inline constexpr char kWMARKFontTypeTicketKey[] = "com.orvane.dlg.printsettings.WMARKFontTypeTicket";
inline constexpr char kWMARKColorRTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorRTicket";
inline constexpr char kWMARKColorGTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorGTicket";
inline constexpr char kWMARKColorBTicketKey[] = "com.orvane.dlg.printsettings.WMARKColorBTicket";
inline constexpr char kWMARKColorATicketKey[] = "com.orvane.dlg.printsettings.WMARKColorATicket";
inline constexpr char kWMARKAngleTicketKey[] = "com.orvane.dlg.printsettings.WMARKAngleTicket";
inline constexpr char kWMARKDensityTicketKey[] = "com.orvane.dlg.printsettings.WMARKDensityTicket";
inline constexpr char kWMARKScaleTicketKey[] = "com.orvane.dlg.printsettings.WMARKScaleTicket";
inline constexpr char kWMARKPosHorizontalTicketKey[] = "com.orvane.dlg.printsettings.WMARKPosHorizontalTicket";
inline constexpr char kWMARKPosVerticalTicketKey[] = "com.orvane.dlg.printsettings.WMARKPosVerticalTicket";
inline constexpr char KWMARKWidthTicketKey[] = "com.orvane.dlg.printsettings.WMARKWidthTicket";
inline constexpr char KWMARKHeightTicketKey[] = "com.orvane.dlg.printsettings.WMARKHeightTicket";
inline constexpr char KWMARKhOffsetTicketKey[] = "com.orvane.dlg.printsettings.WMARKhOffsetTicket";
inline constexpr char KWMARKvOffsetTicketKey[] = "com.orvane.dlg.printsettings.WMARKvOffsetTicket";

constexpr size_t kWatermarkTextSize = 256;
constexpr size_t kWatermarkUTF8TextSize = 1024;

// Lengths are in points, colours and alpha 0 to 1. An absent number is -1, an absent text empty.
struct WatermarkOptions {
    char name[kWatermarkTextSize];
    int32_t options;
    int32_t onlyFirstPage;         // 0 is every page; absent counts as on
    char text[kWatermarkTextSize]; // a PostScript string with its parentheses
    int32_t orientation;           // 1 and 3 upright, 2 and 4 on its side
    int32_t paperHeight;
    int32_t paperWidth;
    char filePath[kWatermarkTextSize];
    int32_t type; // 0 is a text watermark
    char font[kWatermarkTextSize];
    int32_t fontSize;
    int32_t fontType;
    float red;
    float green;
    float blue;
    float alpha;
    int32_t angle;   // degrees, counter-clockwise
    int32_t density; // per cent; what is missing to 100 is white
    float scale;
    float horizontalPosition;
    float verticalPosition;
    float boxWidth;
    float boxHeight;
    float horizontalOffset;
    float verticalOffset;
    char utf8Text[kWatermarkUTF8TextSize]; // the text once more
};

extern WatermarkOptions psOptionWatermark;
extern const TicketTable WatermarkticketData;

// Starts a job: reads the tickets and the method, and every block is to be printed again.
void WatermarkGetTicketFromPDE(const char *const *argv);

// Whether a block is still to be written at this point of the document.
bool WatermarkHasPSCommandFromFilter(int32_t event);

// Writes the block that belongs to this point of the document. The page number is not used.
void WatermarkOutputPSCommandFromFilter(int32_t event, int32_t pageNumber, FILE *stream);

// Lightens a colour component towards white; a density of 1 leaves it as it is.
float Lighten(float component, float density);

// The page's centre, by paper and orientation; (0, 0) for an orientation other than 1 to 4.
void GetWatermarkCentre(float &x, float &y);

// Where the text starts: the page's centre less the box's half-diagonal turned by the angle, plus the offsets; the
// offsets alone for an angle outside 0 to 360.
void GetWatermarkPostion(float &x, float &y, float horizontalOffset, float verticalOffset);
