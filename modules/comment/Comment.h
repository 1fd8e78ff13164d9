// Comment: the settings that summarise the job, and the PRINTJOBINFO block that tells the printer about them.
// The booklet and image quality lines read the same record.
#pragma once

#include "TicketReader.h"

#include <cstddef>
#include <cstdint>

// The options. Colour mode, number-up, punch holes and layout direction are keys that others read as well.
inline constexpr char kSidesTicketKey[] = "sides";
inline constexpr char kStapleTicketKey[] = "OVStaple";
inline constexpr char kQBPunchTicketKey[] = "OVPunch";
inline constexpr char kQBSignatureTicketKey[] = "OVSignature";
inline constexpr char kQBSigVolTicketKey[] = "OVSigVol";
inline constexpr char KLineWeightAdjustment[] = "OVLineWeightAdjustment";
inline constexpr char kTonerSaverKey[] = "OVTonerSaver";
inline constexpr char kDetailedTonerSaverKey[] = "OVTonerReductionRate";
inline constexpr char kDuplexBindingEdgeTicketKey[] = "DuplexBindingEdge..n.";
inline constexpr char kCopiesTicketKey[] = "com.apple.print.PrintSettings.PMCopies..n.";
inline constexpr char kOrientationTicketKey[] = "orientation-requested";

constexpr size_t kCommentTextSize = 256;

// Texts are empty and integers -1 when their option is absent, but for what the reading settles.
struct CommentOptions {
    char sides[kCommentTextSize];
    char colorMode[kCommentTextSize];
    char collate[kCommentTextSize];
    char numberUp[kCommentTextSize]; // pages per sheet
    char staple[kCommentTextSize];
    char punch[kCommentTextSize];
    char punchHoles[kCommentTextSize];
    char signature[kCommentTextSize];       // how a booklet is folded
    char signatureVolume[kCommentTextSize]; // how many sheets each part of the booklet has
    char lineWeight[kCommentTextSize];
    char tonerSaver[kCommentTextSize];
    char tonerReductionRate[kCommentTextSize];
    int32_t duplexBindingEdge;
    int32_t copies;
    int32_t orientation;     // 1 upright; 4, 5 and 6 as in IPP, whose own upright, 3, has no meaning here
    int32_t layoutDirection; // order of the pages on a sheet
};
extern CommentOptions psoptioncomment;

extern const TicketTable CommentticketData;

// What "no such thing" is called among the choices of staple, punch and booklet.
inline constexpr char kChoiceNone[] = "None";

// Reads the record from the job's options; what depends on other settings is settled here. Orientation and layout
// direction are 1 when absent.
void CommentGetTicketFromPDE(const char *const *argv);

// The lines of the block. The header writes version low, begin, basic and end.
void OutputZPJLCommandforCommentVersionLow();
void OutputZPJLCommandforCommentVersionHigh();
void OutputZPJLCommandforCommentBegin();
void OutputZPJLCommandforCommentBasic();
void OutputZPJLCommandforCommentEnd();

// What printers of version 1.5.0 take in addition.
void OutputZPJLCommandforCommentAdvanced();
