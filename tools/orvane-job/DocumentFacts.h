// DocumentFacts: what the PostScript of a job tells about itself, and what the filter has put into it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Texts as the document has them, in bytes; empty and 0 for what it does not say.
struct DocumentFacts {
    uint64_t bytes = 0;  // without the byte 4 at its end
    uint64_t digest = 0; // FNV-1a of them
    bool isPostScript = false;
    bool ends = false; // with a byte 4
    std::string title, creator, pagesDeclared;
    uint64_t pageComments = 0;
    uint64_t pagesEnded = 0;                                   // lines "ep", which are the pages of the page log
    std::vector<std::pair<std::string, std::string>> features; // keyword and choice, each pair once
    std::string duplexCode;                                    // of a document that sets duplex on its own
    std::string watermark, separatorPages, imageShift, autoScale;
    uint64_t watermarksDrawn = 0;
    std::string watermarkPages;           // of a watermark that the printer draws
    std::vector<std::string> screenLines; // of code that sets screens and curves, the first of them

    bool inWatermark = false, inEndPage = false; // the code that draws it, while it is read
};

// Takes note of a line, without its end.
void LookAtLine(DocumentFacts &facts, std::string_view line);

// Whether the document has feature code for the keyword and, when one is named, the choice.
bool HasFeature(const DocumentFacts &facts, std::string_view keyword, std::string_view choice = {});

// The facts as a reader wants them, in words: name and text, one a line.
std::vector<std::pair<std::string, std::string>> FactsInWords(const DocumentFacts &facts);
