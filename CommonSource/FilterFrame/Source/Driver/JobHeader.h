// JobHeader: the PJL around the document: the header's own lines, the order of its writers, and the trailer.
#pragma once

#include "CommandTable.h"

#include <cstdint>

extern const FmtTableRow prtFmtTableZPJLHead[];
extern const FmtTableRow prtFmtTableZPJLJobMode[];
extern const FmtTableRow prtFmtTableEnterPS[];
extern const FmtTableRow prtFmtTableZPJLTrailer[];
extern const int32_t numFmtTableZPJLHead;
extern const int32_t numFmtTableZPJLJobMode;
extern const int32_t numFmtTableEnterPS;
extern const int32_t numFmtTableZPJLTrailer;

// Puts what modules keep of a job back to its start. The header's own commands keep nothing.
void InializeDescriptionTable();

// Writes the whole header, up to the switch to PostScript; in spooled mode, that comes after the feature lines.
void OutputZPJLCommand(const char *const *argv);

// Whether the queue's PPD asks for the spooled mode.
bool IsSpooledMode();
