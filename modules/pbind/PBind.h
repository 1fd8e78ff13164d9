// PBind: the settings of perfect binding, from tickets to job attributes.
// Lengths are in 0.1 mm; page sizes come from the queue's PPD.
#pragma once

#include "TicketReader.h"

#include <cstddef>
#include <cstdint>

constexpr size_t kPBindTextSize = 256;

struct PBindOptions {
    char bindPosition[kPBindTextSize];
    char trimming[kPBindTextSize];
    char cutPageSize[kPBindTextSize];
    int32_t imagePosition; // not used: no option of a PPD has the name of its ticket
    char cutPositionTop[kPBindTextSize];
    char cutPositionFore[kPBindTextSize];
    char pageSize[kPBindTextSize];
    char coverPageSize[kPBindTextSize];
    char coverMediaType[kPBindTextSize];
    char coverMediaColor[kPBindTextSize];
    char coverPaperTray[kPBindTextSize];
    char rotationAdjustTop[kPBindTextSize];
    char rotationAdjustBottom[kPBindTextSize];
    char rotationAdjustFore[kPBindTextSize];
    char cutPageAdjustmentTB[kPBindTextSize];
    char cutPageAdjustmentFore[kPBindTextSize];
    char cutPositionAdjustmentTB[kPBindTextSize];
    char coverAdjustX[kPBindTextSize];
    char coverAdjustY[kPBindTextSize];
    char rotation[kPBindTextSize]; // follows from the bind position
    bool minimumCut;               // the trimming cuts as little as possible
};

extern PBindOptions psoptionpbind;

extern const TicketTable PBindticketData;

// The value of the PPD or the dialog, and that of PJL.
struct PBindParam {
    const char *ppdValue;
    const char *pjlValue;
};

// Ends with an empty pair.
extern const PBindParam PerfectBindParam[];

// Reads the tickets and puts bind position, trimming and cuts into PJL's terms.
void PBindGetTicketFromPDE(const char *const *argv);

// Writes nothing when the bind position is empty or "OFF".
void OutputZPJLCommandforPerfectBind();

void OutputZPJLCommandforPBindNormal(const char *value, const char *name);

// An empty value writes nothing; a number too large for an int32 is written as its low 32 bits.
// mode: 0 writes the number as it is, 1 negates it for the bind position "RIGHT", 2 for "TOP" and "LEFT".
void OutputZPJLCommandforPBindDigital(const char *value, int32_t multiplier, const char *name, const char *position,
                                      int32_t mode);

// Copies the PJL value of a PPD value, cut to `size` bytes with its NUL; empty when PerfectBindParam lacks it.
void convertPBindPPDValue(const char *value, char *dest, int32_t size);
