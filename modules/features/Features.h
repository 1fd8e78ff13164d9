// Features: finishing as PJL (tab margin, trimmer, numbering, offset stacking, eject face), separator pages and
// auto-fit as PostScript. The tickets fill one record; the command table and the fragments read it.
#pragma once

#include "CommandTable.h"
#include "TicketReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

// The tickets.
inline constexpr char kTabMarginCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.TabMarginSwitchTicket";
inline constexpr char kTrimmerCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.TrimmerSwitchTicket";
inline constexpr char kTrimmerPopupTicketKey[] = "com.orvane.dlg.printsettings.TrimmerSelectTicket";
inline constexpr char kBookletMarginCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.BookletMarginSwitchTicket";
inline constexpr char kTabMarginShiftTicketKey[] = "com.orvane.dlg.printsettings.TabMarginMMShiftTicket";
inline constexpr char kTrimmerCuttingSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerMMCuttingSizeTicket";
inline constexpr char kTrimmerWidthMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerWidthMMSizeTicket";
inline constexpr char kTrimmerHeightMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerHeightMMSizeTicket";
inline constexpr char kTrimmerAdjustMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerAdjustMMSizeTicket";
inline constexpr char KNumInSequenceCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.NumInSequenceSwitchTicket";
inline constexpr char KNumInSequenceLittleArrowTicketKey[] = "com.orvane.dlg.printsettings.NumInSequenceLArrowTicket";
inline constexpr char KOffsetStackingListTicketKey[] = "com.orvane.dlg.printsettings.OffsetStackingListTicket";
inline constexpr char KOffsetStackingPagesLittleArrowTicketKey[] =
    "com.orvane.dlg.printsettings.OffsetStackingPagesLArrowTicket";
inline constexpr char KOffsetStackingUnitsLittleArrowTicketKey[] =
    "com.orvane.dlg.printsettings.OffsetStackingUnitsLArrowTicket";
inline constexpr char kSeparatorPagesListTicketKey[] = "com.orvane.dlg.printsettings.SeparatorPageListTicket";
inline constexpr char kSeparatorPagesTicketKey[] = "com.orvane.dlg.printsettings.SeparatorPageTicket";
inline constexpr char kAutoFitCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.AutoFitSwitchTicket";
inline constexpr char kBookletMarginEditTextTicketKey[] = "com.orvane.dlg.printsettings.BookletMarginMMShiftTicket";
inline constexpr char KEjectOptionsListTicketKey[] = "com.orvane.dlg.printsettings.EjectOptionsListTicket";
inline constexpr char kQBPunchHoleMediaTypeSize[] = "media"; // the standard option: size and type words
inline constexpr char KSPWhetherMediaSizeA5Key[] = "com.orvane.dlg.printsettings.whetherMediaSizeA5Ticket";
inline constexpr char KPFWhetherMediaTypeTabKey[] = "com.orvane.dlg.printsettings.featuresMediaTypeTabTicket";
inline constexpr char kCoilPunchFaceTicketKey[] = "com.orvane.dlg.printsettings.CoilPunchFaceTicket";
inline constexpr char KSPWhetherMediaTypeTabKey[] = "com.orvane.dlg.printsettings.whetherMediaTypeTabTicket";

// What the whole-number fields hold; -1 is an absent ticket.
inline constexpr int32_t OptionTabMarginNone = 0;
inline constexpr int32_t OptionTabMargin = 1;
inline constexpr int32_t OptionTrimmerNone = 0;
inline constexpr int32_t OptionTrimmer = 1;
inline constexpr int32_t SelectTrimmerNone = 1;
inline constexpr int32_t SelectTrimmer = 2;
inline constexpr int32_t SelectTrimmerTopLower = 3;
inline constexpr int32_t OptionBookletMarginNone = 0;
inline constexpr int32_t OptionBookletMargin = 1;
inline constexpr int32_t OptionSepratorPagesNone = 1;
inline constexpr int32_t OptionAutoFitNone = 0;
inline constexpr int32_t OptionAutoFit = 1;
inline constexpr int32_t OptionNumInSequenceNone = 0;
inline constexpr int32_t OptionNumInSequence = 1;
inline constexpr int32_t OptionOffsetStackingNone = 1;
inline constexpr int32_t OptionOffsetStackingEndOfSet = 2;
inline constexpr int32_t OptionOffsetStackingDeviceDeactivation = 3;
inline constexpr int32_t OptionOffsetStackingEndOfSetPage = 4;
inline constexpr int32_t OptionOffsetStackingEndOfSetCopy = 5;
inline constexpr int32_t EjectOptionsOff = 1;
inline constexpr int32_t EjectOptionsDown = 2;
inline constexpr int32_t EjectOptionsUp = 3;
inline constexpr int32_t EjectOptionsDownReverse = 4;
inline constexpr int32_t EjectOptionsUpReverse = 5;
inline constexpr int32_t specialPagesMediasizeNoA5 = 0;
inline constexpr int32_t specialPagesMediasizeA5 = 1;
inline constexpr int32_t specialPagesMediaNoTab = 0;
inline constexpr int32_t specialPagesMediaTab = 1;

// What the text fields are compared with.
inline constexpr const char *mediaTypeIsTab = "true";
inline constexpr const char *mediaTypeNoTab = "false";
inline constexpr const char *punchHoleCoil = "Coil";
inline constexpr const char *coilPunchFaceOn = "true";
inline constexpr const char *coilPunchFaceOff = "false";
inline constexpr const char *mediaTypeA5 = "A5";

// Sizes with their NUL: millimetres or a start number, a count of sheets, and any other text.
constexpr size_t kFeaturesNumberSize = 5;
constexpr size_t kFeaturesSheetsSize = 6;
constexpr size_t kFeaturesTextSize = 100;

// The texts are as typed in the dialog, or an option's value; an absent one is empty.
struct FeaturesOptions {
    int32_t tabMargin;
    int32_t trimmer;       // the older dialog's switch
    int32_t trimmerSelect; // the newer dialog's list
    int32_t bookletMargin;
    char tabMarginShift[kFeaturesNumberSize];
    char trimmerCuttingSize[kFeaturesNumberSize];
    char trimmerWidthSize[kFeaturesNumberSize];
    char trimmerHeightSize[kFeaturesNumberSize];
    char trimmerAdjustSize[kFeaturesNumberSize];
    int32_t separatorPagesList;
    char separatorPages[kFeaturesTextSize];
    int32_t autoFit;
    char bookletMarginShift[kFeaturesNumberSize];
    int32_t numInSequence;
    char numInSequenceStart[kFeaturesNumberSize];
    int32_t offsetStacking;
    char offsetStackingPages[kFeaturesSheetsSize];
    char offsetStackingUnits[kFeaturesSheetsSize];
    int32_t ejectOptions;
    char media[kFeaturesTextSize];
    int32_t specialPagesA5;
    char punchHoles[kFeaturesTextSize];
    char mediaTab[kFeaturesTextSize];      // "true" or "false"
    char coilPunchFace[kFeaturesTextSize]; // likewise
    int32_t specialPagesTab;
};

extern FeaturesOptions zpjlOptionFeatures;

extern const TicketTable FeaturesticketData;

extern const FmtTableRow FeaturesFmtTable[];
extern const int32_t FeaturesFmtTableNum;

// Puts the record back to the start of a job.
void FeaturesInializeDescriptionTableFromFilter();

void FeaturesGetTicketFromPDE(const char *const *argv);

// Writes the PJL lines that the tickets ask for.
void FeaturesOutputZPJLCommandFromFilter(const char *const *argv);

// Whether fragments may belong to this point of the document. They are written only where their tickets ask for them.
bool FeaturesHasPSCommandFromFilter(int32_t event);

// Writes the fragments that belong to this point of the document: without N-up the separator pages at the end of the
// prolog and auto-fit at the end of the setup, with N-up both where the document disables setpagedevice.
void FeaturesOutputPSCommandFromFilter(int32_t event, FILE *stream);

// Write one fragment each, when its tickets ask for it.
void FeaturesOutputSeparatorPages(FILE *stream);
void FeaturesOutputAutoFit(FILE *stream);
