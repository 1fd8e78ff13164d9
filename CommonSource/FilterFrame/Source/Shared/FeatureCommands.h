// FeatureCommands: the PJL line that stands for a choice of a PPD option.
// In spooled mode these lines replace what the option's feature code would tell the PostScript interpreter.
#pragma once

#include "PPDLookup.h"

#include <cstdint>
#include <span>

// Main keywords that the spooled mode looks at itself, save the frame mode's, which no step of it reads.
extern const char KPPDOutputModeKey[];
extern const char KPPDFrameModeKey[];
extern const char KPPDHalfToneKey[];

// Room for the longest line, its NUL included.
constexpr size_t kFeatureCommandSize = 40;

// keyword: PPD main keyword without "*"; value: the choice; command: the line with its end.
struct FeatureCommand {
    const char *keyword;
    const char *value;
    char command[kFeatureCommandSize];
};

extern const std::span<const FeatureCommand> FeaturePPDKeyNameandMarkedValuetoPJLCommand;

// Settings that take their neutral value when the queue's PPD doesn't offer them; ends with null.
extern const char *const PPDKeyArray[];

// The line for a keyword, with its "*", and a choice; null when there is none.
const char *GetThePJLCommandfromKeywordsandMarkedValue(const char *keyword, const char *value);

// Writes the neutral line of each keyword of the null-terminated list that the PPD doesn't define as an option.
void OutputPJLCommandForPPDKeyArray(const char *const *keywords, ppd_file_t *ppd);

// Writes one job attribute per name of the null-terminated list, with the value at the same place.
void outputZPJLCommandFromArray(const char *const *names, const int32_t *values);
