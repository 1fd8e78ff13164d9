// Watermark: a text drawn across the pages by PostScript that is put into the document at its page boundaries.
// The tickets fill one record; the text starts where its turned box has the page's centre in its middle.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

constexpr size_t kWatermarkTextSize = 256;

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
};

extern WatermarkOptions psOptionWatermark;

void WatermarkGetTicketFromPDE(const char *const *argv);

// Whether a block is still to be written at this point of the document.
bool WatermarkHasPSCommandFromFilter(int32_t event);

// Writes the block that belongs to this point of the document. The page number is not used.
void WatermarkOutputPSCommandFromFilter(int32_t event, int32_t pageNumber, FILE *stream);

// Where the text starts: the page's centre less the box's half-diagonal turned by the angle, plus the offsets; the
// offsets alone for an angle outside 0 to 360.
void GetWatermarkPostion(float &x, float &y, float horizontalOffset, float verticalOffset);
