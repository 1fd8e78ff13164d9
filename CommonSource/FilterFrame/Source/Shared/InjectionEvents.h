// InjectionEvents: the points of a document at which modules put PostScript of their own.
// Most are marker lines of the document.
#pragma once

#include <cstdint>

enum InjectionEvent : int32_t {
    kEventBeginProlog = 13,     // after "%%BeginProlog"
    kEventEndProlog = 14,       // before the first "%%EndProlog"
    kEventEndSetup = 16,        // before "%%EndSetup"
    kEventNoPageDevice = 21,    // before the line that disables setpagedevice, which only N-up documents hold
    kEventBeginPage = 23,       // after "bp"
    kEventEndPageSetup = 24,    // after "%%EndPageSetup"
    kEventEndPage = 27,         // before "ep"
    kEventEndPageOfPM = 28,     // before "endp"
    kEventEndPageOfFilter = 29, // a page between this filter's own save and restore
    kEventBeforePages = 30,     // once, where the page device can be set up before the first page
    kEventFillerPage = 31,      // after "%%Page: (filler)", with which pstops begins the blank side of a sheet
};
