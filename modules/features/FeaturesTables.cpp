// The lines of the finishing features, in output order, and the module's tickets.
#include "Features.h"

#include <iterator>

static constexpr FeaturesOptions &option = zpjlOptionFeatures;

constexpr ticketData tickets[] = {
    IntegerTicket(kTabMarginCheckBoxTicketKey, option.tabMargin),
    IntegerTicket(kTrimmerCheckBoxTicketKey, option.trimmer),
    IntegerTicket(kTrimmerPopupTicketKey, option.trimmerSelect),
    IntegerTicket(kBookletMarginCheckBoxTicketKey, option.bookletMargin),
    TextTicket(kTabMarginShiftTicketKey, option.tabMarginShift),
    TextTicket(kTrimmerCuttingSizeTicketKey, option.trimmerCuttingSize),
    TextTicket(kTrimmerWidthMMSizeTicketKey, option.trimmerWidthSize),
    TextTicket(kTrimmerHeightMMSizeTicketKey, option.trimmerHeightSize),
    TextTicket(kTrimmerAdjustMMSizeTicketKey, option.trimmerAdjustSize),
    IntegerTicket(KNumInSequenceCheckBoxTicketKey, option.numInSequence),
    TextTicket(KNumInSequenceLittleArrowTicketKey, option.numInSequenceStart),
    IntegerTicket(KOffsetStackingListTicketKey, option.offsetStacking),
    TextTicket(KOffsetStackingPagesLittleArrowTicketKey, option.offsetStackingPages),
    TextTicket(KOffsetStackingUnitsLittleArrowTicketKey, option.offsetStackingUnits),
    IntegerTicket(kSeparatorPagesListTicketKey, option.separatorPagesList),
    TextTicket(kSeparatorPagesTicketKey, option.separatorPages),
    IntegerTicket(kAutoFitCheckBoxTicketKey, option.autoFit),
    TextTicket(kBookletMarginEditTextTicketKey, option.bookletMarginShift),
    IntegerTicket(KEjectOptionsListTicketKey, option.ejectOptions),
    TextTicket(kQBPunchHoleMediaTypeSize, option.media),
    IntegerTicket(KSPWhetherMediaSizeA5Key, option.specialPagesA5),
    TextTicket(kQBPunchHoleTicketKey, option.punchHoles),
    TextTicket(KPFWhetherMediaTypeTabKey, option.mediaTab),
    TextTicket(kCoilPunchFaceTicketKey, option.coilPunchFace),
    IntegerTicket(KSPWhetherMediaTypeTabKey, option.specialPagesTab),
};
constinit const TicketTable FeaturesticketData = tickets;

// Conditions that many rows share.
constexpr ComparationItem TrimmerCuts = Equal(option.trimmerSelect, SelectTrimmer);
constexpr ComparationItem TrimmerCutsTopLower = Equal(option.trimmerSelect, SelectTrimmerTopLower);
constexpr ComparationItem OffsetByPages = Equal(option.offsetStacking, OptionOffsetStackingEndOfSetPage);
constexpr ComparationItem OffsetByCopies = Equal(option.offsetStacking, OptionOffsetStackingEndOfSetCopy);
constexpr ComparationItem EjectOff = Equal(option.ejectOptions, EjectOptionsOff);
constexpr ComparationItem CoilPunch = Contains(option.punchHoles, punchHoleCoil);
constexpr ComparationItem NoCoilPunch = Lacks(option.punchHoles, punchHoleCoil);
constexpr ComparationItem CoilFaceOn = Is(option.coilPunchFace, coilPunchFaceOn);
constexpr ComparationItem CoilFaceOff = Is(option.coilPunchFace, coilPunchFaceOff);
constexpr ComparationItem TabMedia = Is(option.mediaTab, mediaTypeIsTab);
constexpr ComparationItem NoTabMedia = Is(option.mediaTab, mediaTypeNoTab);
constexpr ComparationItem SpecialPagesTab = Equal(option.specialPagesTab, specialPagesMediaTab);
constexpr ComparationItem NoSpecialPagesTab = Equal(option.specialPagesTab, specialPagesMediaNoTab);
constexpr ComparationItem A5Media = Contains(option.media, mediaTypeA5);
constexpr ComparationItem NoA5Media = Lacks(option.media, mediaTypeA5);
constexpr ComparationItem SpecialPagesA5 = Equal(option.specialPagesA5, specialPagesMediasizeA5);
constexpr ComparationItem NoSpecialPagesA5 = Equal(option.specialPagesA5, specialPagesMediasizeNoA5);

// @TABS: shift of the image on tab paper
constexpr char prtfmtStrTabMarginValueNone[] = "@PJL SET JOBATTR=%c@TABS=OFF%c%c";
constexpr const void *cmdParaTabMarginValueNone[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemTabMarginValueNone[] = {Equal(option.tabMargin, OptionTabMarginNone)};
constexpr CmdParaTable symParaTabMarginValueNone = Values(cmdParaTabMarginValueNone);
constexpr ComparationTable comparationParaTabMarginValueNone = Conditions(comparationItemTabMarginValueNone);

constexpr char prtfmtStrTabMarginValue[] = "@PJL SET JOBATTR=%c@TABS=%s%c%c";
constexpr const void *cmdParaTabMarginValue[] = {Quote, option.tabMarginShift, Quote, LF};
constexpr ComparationItem comparationItemTabMarginValue[] = {Equal(option.tabMargin, OptionTabMargin)};
constexpr CmdParaTable symParaTabMarginValue = Values(cmdParaTabMarginValue);
constexpr ComparationTable comparationParaTabMarginValue = Conditions(comparationItemTabMarginValue);

// @TRMR, @TRFW, @TROP: trimmer; the older switch and the newer list each write their own lines
constexpr char prtfmtStrTrimmerValueNone[] = "@PJL SET JOBATTR=%c@TRMR=0%c%c";
constexpr const void *cmdParaTrimmerValueNone[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemTrimmerValueNone[] = {Equal(option.trimmer, OptionTrimmerNone)};
constexpr CmdParaTable symParaTrimmerValueNone = Values(cmdParaTrimmerValueNone);
constexpr ComparationTable comparationParaTrimmerValueNone = Conditions(comparationItemTrimmerValueNone);

constexpr char prtfmtStrTrimmerValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
constexpr const void *cmdParaTrimmerValue[] = {Quote, option.trimmerCuttingSize, Quote, LF};
constexpr ComparationItem comparationItemTrimmerValue[] = {Equal(option.trimmer, OptionTrimmer)};
constexpr CmdParaTable symParaTrimmerValue = Values(cmdParaTrimmerValue);
constexpr ComparationTable comparationParaTrimmerValue = Conditions(comparationItemTrimmerValue);

constexpr char prtfmtStrTrimmerLittleValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
constexpr const void *cmdParaTrimmerLittleValue[] = {Quote, option.trimmerCuttingSize, Quote, LF};
constexpr ComparationItem comparationItemTrimmerLittleValue[] = {TrimmerCuts};
constexpr CmdParaTable symParaTrimmerLittleValue = Values(cmdParaTrimmerLittleValue);
constexpr ComparationTable comparationParaTrimmerLittleValue = Conditions(comparationItemTrimmerLittleValue);

constexpr char prtfmtStrTrimmerWidthValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
constexpr const void *cmdParaTrimmerWidthValue[] = {Quote, option.trimmerWidthSize, Quote, LF};
constexpr ComparationItem comparationItemTrimmerWidthValue[] = {TrimmerCutsTopLower};
constexpr CmdParaTable symParaTrimmerWidthValue = Values(cmdParaTrimmerWidthValue);
constexpr ComparationTable comparationParaTrimmerWidthValue = Conditions(comparationItemTrimmerWidthValue);

constexpr char prtfmtStrTrimmerHeightValue[] = "@PJL SET JOBATTR=%c@TRFW=%s%c%c";
constexpr const void *cmdParaTrimmerHeightValue[] = {Quote, option.trimmerHeightSize, Quote, LF};
constexpr ComparationItem comparationItemTrimmerHeightValue[] = {TrimmerCutsTopLower};
constexpr CmdParaTable symParaTrimmerHeightValue = Values(cmdParaTrimmerHeightValue);
constexpr ComparationTable comparationParaTrimmerHeightValue = Conditions(comparationItemTrimmerHeightValue);

constexpr char prtfmtStrTrimmerHeightValueNone[] = "@PJL SET JOBATTR=%c@TRFW=0%c%c";
constexpr const void *cmdParaTrimmerHeightValueNone[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemTrimmerHeightValueNone[] = {TrimmerCuts};
constexpr CmdParaTable symParaTrimmerHeightValueNone = Values(cmdParaTrimmerHeightValueNone);
constexpr ComparationTable comparationParaTrimmerHeightValueNone = Conditions(comparationItemTrimmerHeightValueNone);

constexpr char prtfmtStrTrimmerAdjustValue[] = "@PJL SET JOBATTR=%c@TROP=%s%c%c";
constexpr const void *cmdParaTrimmerAdjustValue[] = {Quote, option.trimmerAdjustSize, Quote, LF};
constexpr ComparationItem comparationItemTrimmerAdjustValue[] = {TrimmerCutsTopLower};
constexpr CmdParaTable symParaTrimmerAdjustValue = Values(cmdParaTrimmerAdjustValue);
constexpr ComparationTable comparationParaTrimmerAdjustValue = Conditions(comparationItemTrimmerAdjustValue);

constexpr char prtfmtStrTrimmerAdjustValueNone[] = "@PJL SET JOBATTR=%c@TROP=0%c%c";
constexpr const void *cmdParaTrimmerAdjustValueNone[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemTrimmerAdjustValueNone[] = {TrimmerCuts};
constexpr CmdParaTable symParaTrimmerAdjustValueNone = Values(cmdParaTrimmerAdjustValueNone);
constexpr ComparationTable comparationParaTrimmerAdjustValueNone = Conditions(comparationItemTrimmerAdjustValueNone);

// @MDOC: numbering in sequence
constexpr char prtfmtStrNumInSeqValueNone[] = "@PJL SET JOBATTR=%c@MDOC=0%c%c";
constexpr const void *cmdParaNumInSeqValueNone[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemNumInSeqValueNone[] = {Equal(option.numInSequence, OptionNumInSequenceNone)};
constexpr CmdParaTable symParaNumInSequenceValueNone = Values(cmdParaNumInSeqValueNone);
constexpr ComparationTable comparationParaNumInSequenceValueNone = Conditions(comparationItemNumInSeqValueNone);

constexpr char prtfmtStrNumInSeqValue[] = "@PJL SET JOBATTR=%c@MDOC=%s%c%c";
constexpr const void *cmdParaNumInSeqValue[] = {Quote, option.numInSequenceStart, Quote, LF};
constexpr ComparationItem comparationItemNumInSeqValue[] = {Equal(option.numInSequence, OptionNumInSequence)};
constexpr CmdParaTable symParaNumInSequenceValue = Values(cmdParaNumInSeqValue);
constexpr ComparationTable comparationParaNumInSequenceValue = Conditions(comparationItemNumInSeqValue);

// JOBOFFSET, @OCSN: offset stacking by pages or by copies, and how many of them
constexpr char prtfmtStrOffsetStackingTypePages[] = "@PJL SET JOBOFFSET=PAGES%c";
constexpr const void *cmdParaOffsetStackingTypePages[] = {LF};
constexpr ComparationItem comparationItemOffsetStackingTypePages[] = {OffsetByPages};
constexpr CmdParaTable symParaOffsetStackingTypePages = Values(cmdParaOffsetStackingTypePages);
constexpr ComparationTable comparationParaOffsetStackingTypePages = Conditions(comparationItemOffsetStackingTypePages);

constexpr char prtfmtStrOffsetStackingTypeCopies[] = "@PJL SET JOBOFFSET=COPIES%c";
constexpr const void *cmdParaOffsetStackingTypeCopies[] = {LF};
constexpr ComparationItem comparationItemOffsetStackingTypeCopies[] = {OffsetByCopies};
constexpr CmdParaTable symParaOffsetStackingTypeCopies = Values(cmdParaOffsetStackingTypeCopies);
constexpr ComparationTable comparationParaOffsetStackingTypeCopies =
    Conditions(comparationItemOffsetStackingTypeCopies);

constexpr char prtfmtStrOffsetStackingPagesValue[] = "@PJL SET JOBATTR=%c@OCSN=%s%c%c";
constexpr const void *cmdParaOffsetStackingPagesValue[] = {Quote, option.offsetStackingPages, Quote, LF};
constexpr ComparationItem comparationItemOffsetStackingPagesValue[] = {OffsetByPages};
constexpr CmdParaTable symParaOffsetStackingPagesValue = Values(cmdParaOffsetStackingPagesValue);
constexpr ComparationTable comparationParaOffsetStackingPagesValue =
    Conditions(comparationItemOffsetStackingPagesValue);

constexpr char prtfmtStrOffsetStackingUnitsValue[] = "@PJL SET JOBATTR=%c@OCSN=%s%c%c";
constexpr const void *cmdParaOffsetStackingUnitsValue[] = {Quote, option.offsetStackingUnits, Quote, LF};
constexpr ComparationItem comparationItemOffsetStackingUnitsValue[] = {OffsetByCopies};
constexpr CmdParaTable symParaOffsetStackingUnitsValue = Values(cmdParaOffsetStackingUnitsValue);
constexpr ComparationTable comparationParaOffsetStackingUnitsValue =
    Conditions(comparationItemOffsetStackingUnitsValue);

// @FACE: output face; coil-punched output goes face up when tab or A5 media is involved
constexpr char prtfmtStrEjectOptionsOffCoilFaceOn1[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
constexpr const void *cmdParaEjectOptionsOffCoilFaceOn1[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsOffCoilFaceOn1[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, CoilFaceOn, NoA5Media, NoSpecialPagesA5};
constexpr CmdParaTable symParaEjectOptionsOffCoilFaceOn1 = Values(cmdParaEjectOptionsOffCoilFaceOn1);
constexpr ComparationTable comparationParaEjectOptionsOffCoilFaceOn1 =
    Conditions(comparationItemEjectOptionsOffCoilFaceOn1);

constexpr char prtfmtStrEjectOptionsOffCoilFaceOn2[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
constexpr const void *cmdParaEjectOptionsOffCoilFaceOn2[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsOffCoilFaceOn2[] = {EjectOff, NoCoilPunch, CoilFaceOn};
constexpr CmdParaTable symParaEjectOptionsOffCoilFaceOn2 = Values(cmdParaEjectOptionsOffCoilFaceOn2);
constexpr ComparationTable comparationParaEjectOptionsOffCoilFaceOn2 =
    Conditions(comparationItemEjectOptionsOffCoilFaceOn2);

constexpr char prtfmtStrEjectOptionsOffCoilFaceOff[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
constexpr const void *cmdParaEjectOptionsOffCoilFaceOff[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsOffCoilFaceOff[] = {EjectOff, CoilFaceOff};
constexpr CmdParaTable symParaEjectOptionsOffCoilFaceOff = Values(cmdParaEjectOptionsOffCoilFaceOff);
constexpr ComparationTable comparationParaEjectOptionsOffCoilFaceOff =
    Conditions(comparationItemEjectOptionsOffCoilFaceOff);

constexpr char prtfmtStrEjectOptionsDown[] = "@PJL SET JOBATTR=%c@FACE=DOWN%c%c";
constexpr const void *cmdParaEjectOptionsDown[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsDown[] = {Equal(option.ejectOptions, EjectOptionsDown)};
constexpr CmdParaTable symParaEjectOptionsDown = Values(cmdParaEjectOptionsDown);
constexpr ComparationTable comparationParaEjectOptionsDown = Conditions(comparationItemEjectOptionsDown);

constexpr char prtfmtStrEjectOptionsUp[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaEjectOptionsUp[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsUp[] = {Equal(option.ejectOptions, EjectOptionsUp)};
constexpr CmdParaTable symParaEjectOptionsUp = Values(cmdParaEjectOptionsUp);
constexpr ComparationTable comparationParaEjectOptionsUp = Conditions(comparationItemEjectOptionsUp);

constexpr char prtfmtStrEjectOptionsDownReverse[] = "@PJL SET JOBATTR=%c@FACE=DOWN_REVERSE%c%c";
constexpr const void *cmdParaEjectOptionsDownReverse[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsDownReverse[] = {
    Equal(option.ejectOptions, EjectOptionsDownReverse)};
constexpr CmdParaTable symParaEjectOptionsDownReverse = Values(cmdParaEjectOptionsDownReverse);
constexpr ComparationTable comparationParaEjectOptionsDownReverse = Conditions(comparationItemEjectOptionsDownReverse);

constexpr char prtfmtStrEjectOptionsUpReverse[] = "@PJL SET JOBATTR=%c@FACE=UP_REVERSE%c%c";
constexpr const void *cmdParaEjectOptionsUpReverse[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemEjectOptionsUpReverse[] = {Equal(option.ejectOptions, EjectOptionsUpReverse)};
constexpr CmdParaTable symParaEjectOptionsUpReverse = Values(cmdParaEjectOptionsUpReverse);
constexpr ComparationTable comparationParaEjectOptionsUpReverse = Conditions(comparationItemEjectOptionsUpReverse);

constexpr char prtfmtStrFaceUpMediaTypeA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpMediaTypeA5[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpMediaTypeA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, A5Media, NoSpecialPagesA5, CoilFaceOn};
constexpr CmdParaTable symParaFaceUpMediaTypeA5 = Values(cmdParaFaceUpMediaTypeA5);
constexpr ComparationTable comparationParaFaceUpMediaTypeA5 = Conditions(comparationItemFaceUpMediaTypeA5);

constexpr char prtfmtStrFaceUpSpecialpagesMediaTypeA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpSpecialpagesMediaTypeA5[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpSpecialpagesMediaTypeA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, NoA5Media, SpecialPagesA5, CoilFaceOn};
constexpr CmdParaTable symParaFaceUpSpecialpagesMediaTypeA5 = Values(cmdParaFaceUpSpecialpagesMediaTypeA5);
constexpr ComparationTable comparationParaFaceUpSpecialpagesMediaTypeA5 =
    Conditions(comparationItemFaceUpSpecialpagesMediaTypeA5);

constexpr char prtfmtStrFaceUpMediaTypeAllA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpMediaTypeAllA5[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpMediaTypeAllA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, A5Media, SpecialPagesA5, CoilFaceOn};
constexpr CmdParaTable symParaFaceUpMediaTypeAllA5 = Values(cmdParaFaceUpMediaTypeAllA5);
constexpr ComparationTable comparationParaFaceUpMediaTypeAllA5 = Conditions(comparationItemFaceUpMediaTypeAllA5);

constexpr char prtfmtStrFaceUpFeaturesMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpFeaturesMediaType[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpFeaturesMediaType[] = {EjectOff, CoilPunch, TabMedia, NoSpecialPagesTab,
                                                                      CoilFaceOn};
constexpr CmdParaTable symParaFaceUpFeaturesMediaType = Values(cmdParaFaceUpFeaturesMediaType);
constexpr ComparationTable comparationParaFaceUpFeaturesMediaType = Conditions(comparationItemFaceUpFeaturesMediaType);

constexpr char prtfmtStrFaceUpSpecialPagesMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpSpecialPagesMediaType[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpSpecialPagesMediaType[] = {EjectOff, CoilPunch, NoTabMedia,
                                                                          SpecialPagesTab, CoilFaceOn};
constexpr CmdParaTable symParaFaceUpSpecialPagesMediaType = Values(cmdParaFaceUpSpecialPagesMediaType);
constexpr ComparationTable comparationParaFaceUpSpecialPagesMediaType =
    Conditions(comparationItemFaceUpSpecialPagesMediaType);

constexpr char prtfmtStrFaceUpBothMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
constexpr const void *cmdParaFaceUpBothMediaType[] = {Quote, Quote, LF};
constexpr ComparationItem comparationItemFaceUpBothMediaType[] = {EjectOff, CoilPunch, TabMedia, SpecialPagesTab,
                                                                  CoilFaceOn};
constexpr CmdParaTable symParaFaceUpBothMediaType = Values(cmdParaFaceUpBothMediaType);
constexpr ComparationTable comparationParaFaceUpBothMediaType = Conditions(comparationItemFaceUpBothMediaType);

const FmtTableRow FeaturesFmtTable[] = {
    Command(prtfmtStrTabMarginValueNone, &symParaTabMarginValueNone, &comparationParaTabMarginValueNone),
    Command(prtfmtStrTabMarginValue, &symParaTabMarginValue, &comparationParaTabMarginValue),
    Command(prtfmtStrTrimmerValueNone, &symParaTrimmerValueNone, &comparationParaTrimmerValueNone),
    Command(prtfmtStrTrimmerValue, &symParaTrimmerValue, &comparationParaTrimmerValue),
    Command(prtfmtStrTrimmerLittleValue, &symParaTrimmerLittleValue, &comparationParaTrimmerLittleValue),
    Command(prtfmtStrTrimmerWidthValue, &symParaTrimmerWidthValue, &comparationParaTrimmerWidthValue),
    Command(prtfmtStrTrimmerHeightValue, &symParaTrimmerHeightValue, &comparationParaTrimmerHeightValue),
    Command(prtfmtStrTrimmerHeightValueNone, &symParaTrimmerHeightValueNone, &comparationParaTrimmerHeightValueNone),
    Command(prtfmtStrTrimmerAdjustValue, &symParaTrimmerAdjustValue, &comparationParaTrimmerAdjustValue),
    Command(prtfmtStrTrimmerAdjustValueNone, &symParaTrimmerAdjustValueNone, &comparationParaTrimmerAdjustValueNone),
    Command(prtfmtStrNumInSeqValueNone, &symParaNumInSequenceValueNone, &comparationParaNumInSequenceValueNone),
    Command(prtfmtStrNumInSeqValue, &symParaNumInSequenceValue, &comparationParaNumInSequenceValue),
    Command(prtfmtStrOffsetStackingTypePages, &symParaOffsetStackingTypePages, &comparationParaOffsetStackingTypePages),
    Command(prtfmtStrOffsetStackingTypeCopies, &symParaOffsetStackingTypeCopies,
            &comparationParaOffsetStackingTypeCopies),
    Command(prtfmtStrOffsetStackingPagesValue, &symParaOffsetStackingPagesValue,
            &comparationParaOffsetStackingPagesValue),
    Command(prtfmtStrOffsetStackingUnitsValue, &symParaOffsetStackingUnitsValue,
            &comparationParaOffsetStackingUnitsValue),
    Command(prtfmtStrEjectOptionsOffCoilFaceOn1, &symParaEjectOptionsOffCoilFaceOn1,
            &comparationParaEjectOptionsOffCoilFaceOn1),
    Command(prtfmtStrEjectOptionsOffCoilFaceOn2, &symParaEjectOptionsOffCoilFaceOn2,
            &comparationParaEjectOptionsOffCoilFaceOn2),
    Command(prtfmtStrEjectOptionsOffCoilFaceOff, &symParaEjectOptionsOffCoilFaceOff,
            &comparationParaEjectOptionsOffCoilFaceOff),
    Command(prtfmtStrEjectOptionsDown, &symParaEjectOptionsDown, &comparationParaEjectOptionsDown),
    Command(prtfmtStrEjectOptionsUp, &symParaEjectOptionsUp, &comparationParaEjectOptionsUp),
    Command(prtfmtStrEjectOptionsDownReverse, &symParaEjectOptionsDownReverse, &comparationParaEjectOptionsDownReverse),
    Command(prtfmtStrEjectOptionsUpReverse, &symParaEjectOptionsUpReverse, &comparationParaEjectOptionsUpReverse),
    Command(prtfmtStrFaceUpMediaTypeA5, &symParaFaceUpMediaTypeA5, &comparationParaFaceUpMediaTypeA5),
    Command(prtfmtStrFaceUpSpecialpagesMediaTypeA5, &symParaFaceUpSpecialpagesMediaTypeA5,
            &comparationParaFaceUpSpecialpagesMediaTypeA5),
    Command(prtfmtStrFaceUpMediaTypeAllA5, &symParaFaceUpMediaTypeAllA5, &comparationParaFaceUpMediaTypeAllA5),
    Command(prtfmtStrFaceUpFeaturesMediaType, &symParaFaceUpFeaturesMediaType, &comparationParaFaceUpFeaturesMediaType),
    Command(prtfmtStrFaceUpSpecialPagesMediaType, &symParaFaceUpSpecialPagesMediaType,
            &comparationParaFaceUpSpecialPagesMediaType),
    Command(prtfmtStrFaceUpBothMediaType, &symParaFaceUpBothMediaType, &comparationParaFaceUpBothMediaType),
};
const int32_t FeaturesFmtTableNum = static_cast<int32_t>(std::size(FeaturesFmtTable));
