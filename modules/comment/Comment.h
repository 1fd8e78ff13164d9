// Comment: the settings that summarise the job, and the PRINTJOBINFO block that tells the printer about them.
// The booklet and image quality lines read the same record.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr size_t kCommentTextSize = 256;

// Texts are empty and integers -1 when their option is absent.
struct CommentOptions {
    char sides[kCommentTextSize];
    char colorMode[kCommentTextSize];
    char collate[kCommentTextSize];
    char numberUp[kCommentTextSize]; // pages per sheet
    char staple[kCommentTextSize];
    char punch[kCommentTextSize];
    char punchHoles[kCommentTextSize];
    char signature[kCommentTextSize];       // booklet
    char signatureVolume[kCommentTextSize]; // sheets of one part of it
    char lineWeight[kCommentTextSize];
    char tonerSaver[kCommentTextSize];
    char tonerReductionRate[kCommentTextSize];
    int32_t duplexBindingEdge;
    int32_t copies;
    int32_t orientation;     // IPP orientation-requested
    int32_t layoutDirection; // order of the pages on a sheet
};
extern CommentOptions psoptioncomment;

// What "no such thing" is called among the choices of staple, punch and booklet.
extern const char kChoiceNone[];

// Reads the record from the job's options; what depends on other settings is settled here. Orientation and layout
// direction are 1 when absent.
void CommentGetTicketFromPDE(const char *const *argv);

// How the job is rendered: by its colour mode or, without one, by the queue's PPD. Unstated: the PPD's own choice, for
// which no line is written.
enum class JobColor { Unstated, Color, Grayscale };
JobColor CommentJobColor();

// The lines of the block. The header writes version low, begin, basic and end.
void OutputZPJLCommandforCommentVersionLow();
void OutputZPJLCommandforCommentVersionHigh();
void OutputZPJLCommandforCommentBegin();
void OutputZPJLCommandforCommentBasic();
void OutputZPJLCommandforCommentEnd();

// What printers of version 1.5.0 take in addition.
void OutputZPJLCommandforCommentAdvanced();
