// WatermarkEndPage: the text watermark as an EndPage procedure of the page device, which the printer calls for each
// page. It marks the pages of any document, whatever it calls the end of a page.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

// Installs the procedure. Nothing stays behind but itself, and an error in it costs the mark, not the page.
void OutputEndPageWatermark(FILE *stream);

// Keeps the mark off the next page, once the procedure is installed.
void OutputUnmarkedPage(FILE *stream);

// The text of a watermark in the bytes of the two kinds of font: Shift-JIS for a composite one, else ISO Latin-1.
struct WatermarkText {
    std::string composite;
    std::string simple;
};

// `text` is UTF-8, a PostScript string in parentheses (PostScript Language Reference, 3.2.2) or a text that stands for
// itself. The bytes of escapes are taken as they are; a character that an encoding lacks is dropped.
WatermarkText ReadWatermarkText(std::string_view text);
