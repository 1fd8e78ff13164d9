// PSDocument: what the lines of a document mean: injections, page ends, the end of a cancelled job, page reports.
#pragma once

#include "PSLineReader.h"

#include <cstdint>
#include <string_view>

// Copies the document with the injections at its markers; `watched` is called with each watched line before the line is
// written. Returns false when the job was cancelled at a page end, whose line is then not written.
bool CopyPSDocument(PSLineReader &reader, const char *const *argv,
                    void (*watched)(std::string_view line, void *context), void *context);

// Whether a page of the document ends with this line.
bool IsPSPageEnd(std::string_view line);

// Whether the queue's PPD has pages reported by the document's comments (Adobe's Document Structuring Conventions 3.0).
bool HasPageLogByComments();

// The comments that pages are told by.
enum class PSComment { None, BeginDocument, EndDocument, Page, Trailer, Copies };

// The comment that the line begins with; None inside a document within the document, whose depth is counted.
PSComment FindPSComment(std::string_view line, int32_t &depth);

// Whether the page before the comment, if there is one, has ended.
bool IsPSPageEnd(PSComment comment);

// Reports a page to the print system, on systems that want it.
void OutputPageLogCommand(int32_t pageNumber, const char *const *argv);
