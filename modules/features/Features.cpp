#include "Features.h"

#include "TicketReader.h"

#include <iterator>

FeaturesOptions zpjlOptionFeatures;

static const char kTabMarginCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.TabMarginSwitchTicket";
static const char kTrimmerCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.TrimmerSwitchTicket";
static const char kTrimmerPopupTicketKey[] = "com.orvane.dlg.printsettings.TrimmerSelectTicket";
static const char kBookletMarginCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.BookletMarginSwitchTicket";
static const char kTabMarginShiftTicketKey[] = "com.orvane.dlg.printsettings.TabMarginMMShiftTicket";
static const char kTrimmerCuttingSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerMMCuttingSizeTicket";
static const char kTrimmerWidthMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerWidthMMSizeTicket";
static const char kTrimmerHeightMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerHeightMMSizeTicket";
static const char kTrimmerAdjustMMSizeTicketKey[] = "com.orvane.dlg.printsettings.TrimmerAdjustMMSizeTicket";
static const char KNumInSequenceCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.NumInSequenceSwitchTicket";
static const char KNumInSequenceLittleArrowTicketKey[] = "com.orvane.dlg.printsettings.NumInSequenceLArrowTicket";
static const char KOffsetStackingListTicketKey[] = "com.orvane.dlg.printsettings.OffsetStackingListTicket";
static const char KOffsetStackingPagesLittleArrowTicketKey[] =
    "com.orvane.dlg.printsettings.OffsetStackingPagesLArrowTicket";
static const char KOffsetStackingUnitsLittleArrowTicketKey[] =
    "com.orvane.dlg.printsettings.OffsetStackingUnitsLArrowTicket";
static const char kSeparatorPagesListTicketKey[] = "com.orvane.dlg.printsettings.SeparatorPageListTicket";
static const char kSeparatorPagesTicketKey[] = "com.orvane.dlg.printsettings.SeparatorPageTicket";
static const char kAutoFitCheckBoxTicketKey[] = "com.orvane.dlg.printsettings.AutoFitSwitchTicket";
static const char kBookletMarginEditTextTicketKey[] = "com.orvane.dlg.printsettings.BookletMarginMMShiftTicket";
static const char KEjectOptionsListTicketKey[] = "com.orvane.dlg.printsettings.EjectOptionsListTicket";
static const char kQBPunchHoleMediaTypeSize[] = "media"; // the standard option: size and type words
static const char KSPWhetherMediaSizeA5Key[] = "com.orvane.dlg.printsettings.whetherMediaSizeA5Ticket";
static const char KPFWhetherMediaTypeTabKey[] = "com.orvane.dlg.printsettings.featuresMediaTypeTabTicket";
static const char kCoilPunchFaceTicketKey[] = "com.orvane.dlg.printsettings.CoilPunchFaceTicket";
static const char KSPWhetherMediaTypeTabKey[] = "com.orvane.dlg.printsettings.whetherMediaTypeTabTicket";

static constexpr FeaturesOptions &option = zpjlOptionFeatures;
static constexpr TicketGetter Integer = GetTicketInteger;
static constexpr TicketGetter Text = GetTicketStringConvertedToPrtLang;

static const ticketData FeaturesticketData[] = {
    {kTabMarginCheckBoxTicketKey, &option.tabMargin, sizeof option.tabMargin, Integer},
    {kTrimmerCheckBoxTicketKey, &option.trimmer, sizeof option.trimmer, Integer},
    {kTrimmerPopupTicketKey, &option.trimmerSelect, sizeof option.trimmerSelect, Integer},
    {kBookletMarginCheckBoxTicketKey, &option.bookletMargin, sizeof option.bookletMargin, Integer},
    {kTabMarginShiftTicketKey, option.tabMarginShift, sizeof option.tabMarginShift, Text},
    {kTrimmerCuttingSizeTicketKey, option.trimmerCuttingSize, sizeof option.trimmerCuttingSize, Text},
    {kTrimmerWidthMMSizeTicketKey, option.trimmerWidthSize, sizeof option.trimmerWidthSize, Text},
    {kTrimmerHeightMMSizeTicketKey, option.trimmerHeightSize, sizeof option.trimmerHeightSize, Text},
    {kTrimmerAdjustMMSizeTicketKey, option.trimmerAdjustSize, sizeof option.trimmerAdjustSize, Text},
    {KNumInSequenceCheckBoxTicketKey, &option.numInSequence, sizeof option.numInSequence, Integer},
    {KNumInSequenceLittleArrowTicketKey, option.numInSequenceStart, sizeof option.numInSequenceStart, Text},
    {KOffsetStackingListTicketKey, &option.offsetStacking, sizeof option.offsetStacking, Integer},
    {KOffsetStackingPagesLittleArrowTicketKey, option.offsetStackingPages, sizeof option.offsetStackingPages, Text},
    {KOffsetStackingUnitsLittleArrowTicketKey, option.offsetStackingUnits, sizeof option.offsetStackingUnits, Text},
    {kSeparatorPagesListTicketKey, &option.separatorPagesList, sizeof option.separatorPagesList, Integer},
    {kSeparatorPagesTicketKey, option.separatorPages, sizeof option.separatorPages, Text},
    {kAutoFitCheckBoxTicketKey, &option.autoFit, sizeof option.autoFit, Integer},
    {kBookletMarginEditTextTicketKey, option.bookletMarginShift, sizeof option.bookletMarginShift, Text},
    {KEjectOptionsListTicketKey, &option.ejectOptions, sizeof option.ejectOptions, Integer},
    {kQBPunchHoleMediaTypeSize, option.media, sizeof option.media, Text},
    {KSPWhetherMediaSizeA5Key, &option.specialPagesA5, sizeof option.specialPagesA5, Integer},
    {kQBPunchHoleTicketKey, option.punchHoles, sizeof option.punchHoles, Text},
    {KPFWhetherMediaTypeTabKey, option.mediaTab, sizeof option.mediaTab, Text},
    {kCoilPunchFaceTicketKey, option.coilPunchFace, sizeof option.coilPunchFace, Text},
    {KSPWhetherMediaTypeTabKey, &option.specialPagesTab, sizeof option.specialPagesTab, Integer},
};

void FeaturesInializeDescriptionTableFromFilter()
{
    FeaturesInitializeCmdParaTable();
    FeaturesInitialzieComparationTable();
}

void FeaturesGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, FeaturesticketData, static_cast<int32_t>(std::size(FeaturesticketData)));
}

void FeaturesOutputZPJLCommandFromFilter(const char *const *argv)
{
    OutputZPJLCommandFromArray(argv, FeaturesFmtTable, FeaturesFmtTableNum);
}
