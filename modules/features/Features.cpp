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

static constexpr ticketData Number(const char *key, int32_t &field)
{
    return {key, &field, sizeof field, GetTicketInteger};
}

template <int32_t N> static constexpr ticketData Text(const char *key, char (&field)[N])
{
    return {key, field, N, GetTicketStringConvertedToPrtLang};
}

static const ticketData FeaturesticketData[] = {
    Number(kTabMarginCheckBoxTicketKey, zpjlOptionFeatures.tabMargin),
    Number(kTrimmerCheckBoxTicketKey, zpjlOptionFeatures.trimmer),
    Number(kTrimmerPopupTicketKey, zpjlOptionFeatures.trimmerSelect),
    Number(kBookletMarginCheckBoxTicketKey, zpjlOptionFeatures.bookletMargin),
    Text(kTabMarginShiftTicketKey, zpjlOptionFeatures.tabMarginShift),
    Text(kTrimmerCuttingSizeTicketKey, zpjlOptionFeatures.trimmerCuttingSize),
    Text(kTrimmerWidthMMSizeTicketKey, zpjlOptionFeatures.trimmerWidthSize),
    Text(kTrimmerHeightMMSizeTicketKey, zpjlOptionFeatures.trimmerHeightSize),
    Text(kTrimmerAdjustMMSizeTicketKey, zpjlOptionFeatures.trimmerAdjustSize),
    Number(KNumInSequenceCheckBoxTicketKey, zpjlOptionFeatures.numInSequence),
    Text(KNumInSequenceLittleArrowTicketKey, zpjlOptionFeatures.numInSequenceStart),
    Number(KOffsetStackingListTicketKey, zpjlOptionFeatures.offsetStacking),
    Text(KOffsetStackingPagesLittleArrowTicketKey, zpjlOptionFeatures.offsetStackingPages),
    Text(KOffsetStackingUnitsLittleArrowTicketKey, zpjlOptionFeatures.offsetStackingUnits),
    Number(kSeparatorPagesListTicketKey, zpjlOptionFeatures.separatorPagesList),
    Text(kSeparatorPagesTicketKey, zpjlOptionFeatures.separatorPages),
    Number(kAutoFitCheckBoxTicketKey, zpjlOptionFeatures.autoFit),
    Text(kBookletMarginEditTextTicketKey, zpjlOptionFeatures.bookletMarginShift),
    Number(KEjectOptionsListTicketKey, zpjlOptionFeatures.ejectOptions),
    Text(kQBPunchHoleMediaTypeSize, zpjlOptionFeatures.media),
    Number(KSPWhetherMediaSizeA5Key, zpjlOptionFeatures.specialPagesA5),
    Text(kQBPunchHoleTicketKey, zpjlOptionFeatures.punchHoles),
    Text(KPFWhetherMediaTypeTabKey, zpjlOptionFeatures.mediaTab),
    Text(kCoilPunchFaceTicketKey, zpjlOptionFeatures.coilPunchFace),
    Number(KSPWhetherMediaTypeTabKey, zpjlOptionFeatures.specialPagesTab),
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
