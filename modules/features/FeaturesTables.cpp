#include "Features.h"

#include <iterator>

static constexpr FeaturesOptions &option = zpjlOptionFeatures;

// Conditions that many rows share.
static constexpr ComparationItem TrimmerCuts = Equal(option.trimmerSelect, SelectTrimmer);
static constexpr ComparationItem TrimmerCutsTopLower = Equal(option.trimmerSelect, SelectTrimmerTopLower);
static constexpr ComparationItem OffsetByPages = Equal(option.offsetStacking, OptionOffsetStackingEndOfSetPage);
static constexpr ComparationItem OffsetByCopies = Equal(option.offsetStacking, OptionOffsetStackingEndOfSetCopy);
static constexpr ComparationItem EjectOff = Equal(option.ejectOptions, EjectOptionsOff);
static constexpr ComparationItem CoilPunch = Contains(option.punchHoles, punchHoleCoil);
static constexpr ComparationItem NoCoilPunch = Lacks(option.punchHoles, punchHoleCoil);
static constexpr ComparationItem CoilFaceOn = Is(option.coilPunchFace, coilPunchFaceOn);
static constexpr ComparationItem CoilFaceOff = Is(option.coilPunchFace, coilPunchFaceOff);
static constexpr ComparationItem TabMedia = Is(option.mediaTab, mediaTypeIsTab);
static constexpr ComparationItem NoTabMedia = Is(option.mediaTab, mediaTypeNoTab);
static constexpr ComparationItem SpecialPagesTab = Equal(option.specialPagesTab, specialPagesMediaTab);
static constexpr ComparationItem NoSpecialPagesTab = Equal(option.specialPagesTab, specialPagesMediaNoTab);
static constexpr ComparationItem A5Media = Contains(option.media, mediaTypeA5);
static constexpr ComparationItem NoA5Media = Lacks(option.media, mediaTypeA5);
static constexpr ComparationItem SpecialPagesA5 = Equal(option.specialPagesA5, specialPagesMediasizeA5);
static constexpr ComparationItem NoSpecialPagesA5 = Equal(option.specialPagesA5, specialPagesMediasizeNoA5);

// @TABS: shift of the image on tab paper
static const char prtfmtStrTabMarginValueNone[] = "@PJL SET JOBATTR=%c@TABS=OFF%c%c";
static const void *const cmdParaTabMarginValueNone[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemTabMarginValueNone[] = {Equal(option.tabMargin, OptionTabMarginNone)};
static CmdParaTable symParaTabMarginValueNone;
static ComparationTable comparationParaTabMarginValueNone;

static const char prtfmtStrTabMarginValue[] = "@PJL SET JOBATTR=%c@TABS=%s%c%c";
static const void *const cmdParaTabMarginValue[] = {&CTRLSym_DOUBLE, option.tabMarginShift, &CTRLSym_DOUBLE,
                                                    &CTRLSym_LF};
static const ComparationItem comparationItemTabMarginValue[] = {Equal(option.tabMargin, OptionTabMargin)};
static CmdParaTable symParaTabMarginValue;
static ComparationTable comparationParaTabMarginValue;

// @TRMR, @TRFW, @TROP: trimmer; the older switch and the newer list each write their own lines
static const char prtfmtStrTrimmerValueNone[] = "@PJL SET JOBATTR=%c@TRMR=0%c%c";
static const void *const cmdParaTrimmerValueNone[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerValueNone[] = {Equal(option.trimmer, OptionTrimmerNone)};
static CmdParaTable symParaTrimmerValueNone;
static ComparationTable comparationParaTrimmerValueNone;

static const char prtfmtStrTrimmerValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
static const void *const cmdParaTrimmerValue[] = {&CTRLSym_DOUBLE, option.trimmerCuttingSize, &CTRLSym_DOUBLE,
                                                  &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerValue[] = {Equal(option.trimmer, OptionTrimmer)};
static CmdParaTable symParaTrimmerValue;
static ComparationTable comparationParaTrimmerValue;

static const char prtfmtStrTrimmerLittleValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
static const void *const cmdParaTrimmerLittleValue[] = {&CTRLSym_DOUBLE, option.trimmerCuttingSize, &CTRLSym_DOUBLE,
                                                        &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerLittleValue[] = {TrimmerCuts};
static CmdParaTable symParaTrimmerLittleValue;
static ComparationTable comparationParaTrimmerLittleValue;

static const char prtfmtStrTrimmerWidthValue[] = "@PJL SET JOBATTR=%c@TRMR=%s%c%c";
static const void *const cmdParaTrimmerWidthValue[] = {&CTRLSym_DOUBLE, option.trimmerWidthSize, &CTRLSym_DOUBLE,
                                                       &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerWidthValue[] = {TrimmerCutsTopLower};
static CmdParaTable symParaTrimmerWidthValue;
static ComparationTable comparationParaTrimmerWidthValue;

static const char prtfmtStrTrimmerHeightValue[] = "@PJL SET JOBATTR=%c@TRFW=%s%c%c";
static const void *const cmdParaTrimmerHeightValue[] = {&CTRLSym_DOUBLE, option.trimmerHeightSize, &CTRLSym_DOUBLE,
                                                        &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerHeightValue[] = {TrimmerCutsTopLower};
static CmdParaTable symParaTrimmerHeightValue;
static ComparationTable comparationParaTrimmerHeightValue;

static const char prtfmtStrTrimmerHeightValueNone[] = "@PJL SET JOBATTR=%c@TRFW=0%c%c";
static const void *const cmdParaTrimmerHeightValueNone[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerHeightValueNone[] = {TrimmerCuts};
static CmdParaTable symParaTrimmerHeightValueNone;
static ComparationTable comparationParaTrimmerHeightValueNone;

static const char prtfmtStrTrimmerAdjustValue[] = "@PJL SET JOBATTR=%c@TROP=%s%c%c";
static const void *const cmdParaTrimmerAdjustValue[] = {&CTRLSym_DOUBLE, option.trimmerAdjustSize, &CTRLSym_DOUBLE,
                                                        &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerAdjustValue[] = {TrimmerCutsTopLower};
static CmdParaTable symParaTrimmerAdjustValue;
static ComparationTable comparationParaTrimmerAdjustValue;

static const char prtfmtStrTrimmerAdjustValueNone[] = "@PJL SET JOBATTR=%c@TROP=0%c%c";
static const void *const cmdParaTrimmerAdjustValueNone[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemTrimmerAdjustValueNone[] = {TrimmerCuts};
static CmdParaTable symParaTrimmerAdjustValueNone;
static ComparationTable comparationParaTrimmerAdjustValueNone;

// @MDOC: numbering in sequence
static const char prtfmtStrNumInSeqValueNone[] = "@PJL SET JOBATTR=%c@MDOC=0%c%c";
static const void *const cmdParaNumInSeqValueNone[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemNumInSeqValueNone[] = {
    Equal(option.numInSequence, OptionNumInSequenceNone)};
static CmdParaTable symParaNumInSequenceValueNone;
static ComparationTable comparationParaNumInSequenceValueNone;

static const char prtfmtStrNumInSeqValue[] = "@PJL SET JOBATTR=%c@MDOC=%s%c%c";
static const void *const cmdParaNumInSeqValue[] = {&CTRLSym_DOUBLE, option.numInSequenceStart, &CTRLSym_DOUBLE,
                                                   &CTRLSym_LF};
static const ComparationItem comparationItemNumInSeqValue[] = {Equal(option.numInSequence, OptionNumInSequence)};
static CmdParaTable symParaNumInSequenceValue;
static ComparationTable comparationParaNumInSequenceValue;

// JOBOFFSET, @OCSN: offset stacking by pages or by copies, and how many of them
static const char prtfmtStrOffsetStackingTypePages[] = "@PJL SET JOBOFFSET=PAGES%c";
static const void *const cmdParaOffsetStackingTypePages[] = {&CTRLSym_LF};
static const ComparationItem comparationItemOffsetStackingTypePages[] = {OffsetByPages};
static CmdParaTable symParaOffsetStackingTypePages;
static ComparationTable comparationParaOffsetStackingTypePages;

static const char prtfmtStrOffsetStackingTypeCopies[] = "@PJL SET JOBOFFSET=COPIES%c";
static const void *const cmdParaOffsetStackingTypeCopies[] = {&CTRLSym_LF};
static const ComparationItem comparationItemOffsetStackingTypeCopies[] = {OffsetByCopies};
static CmdParaTable symParaOffsetStackingTypeCopies;
static ComparationTable comparationParaOffsetStackingTypeCopies;

static const char prtfmtStrOffsetStackingPagesValue[] = "@PJL SET JOBATTR=%c@OCSN=%s%c%c";
static const void *const cmdParaOffsetStackingPagesValue[] = {&CTRLSym_DOUBLE, option.offsetStackingPages,
                                                              &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemOffsetStackingPagesValue[] = {OffsetByPages};
static CmdParaTable symParaOffsetStackingPagesValue;
static ComparationTable comparationParaOffsetStackingPagesValue;

static const char prtfmtStrOffsetStackingUnitsValue[] = "@PJL SET JOBATTR=%c@OCSN=%s%c%c";
static const void *const cmdParaOffsetStackingUnitsValue[] = {&CTRLSym_DOUBLE, option.offsetStackingUnits,
                                                              &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemOffsetStackingUnitsValue[] = {OffsetByCopies};
static CmdParaTable symParaOffsetStackingUnitsValue;
static ComparationTable comparationParaOffsetStackingUnitsValue;

// @FACE: output face; coil-punched output goes face up when tab or A5 media is involved
static const char prtfmtStrEjectOptionsOffCoilFaceOn1[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
static const void *const cmdParaEjectOptionsOffCoilFaceOn1[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsOffCoilFaceOn1[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, CoilFaceOn, NoA5Media, NoSpecialPagesA5};
static CmdParaTable symParaEjectOptionsOffCoilFaceOn1;
static ComparationTable comparationParaEjectOptionsOffCoilFaceOn1;

static const char prtfmtStrEjectOptionsOffCoilFaceOn2[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
static const void *const cmdParaEjectOptionsOffCoilFaceOn2[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsOffCoilFaceOn2[] = {EjectOff, NoCoilPunch, CoilFaceOn};
static CmdParaTable symParaEjectOptionsOffCoilFaceOn2;
static ComparationTable comparationParaEjectOptionsOffCoilFaceOn2;

static const char prtfmtStrEjectOptionsOffCoilFaceOff[] = "@PJL SET JOBATTR=%c@FACE=OFF%c%c";
static const void *const cmdParaEjectOptionsOffCoilFaceOff[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsOffCoilFaceOff[] = {EjectOff, CoilFaceOff};
static CmdParaTable symParaEjectOptionsOffCoilFaceOff;
static ComparationTable comparationParaEjectOptionsOffCoilFaceOff;

static const char prtfmtStrEjectOptionsDown[] = "@PJL SET JOBATTR=%c@FACE=DOWN%c%c";
static const void *const cmdParaEjectOptionsDown[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsDown[] = {Equal(option.ejectOptions, EjectOptionsDown)};
static CmdParaTable symParaEjectOptionsDown;
static ComparationTable comparationParaEjectOptionsDown;

static const char prtfmtStrEjectOptionsUp[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaEjectOptionsUp[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsUp[] = {Equal(option.ejectOptions, EjectOptionsUp)};
static CmdParaTable symParaEjectOptionsUp;
static ComparationTable comparationParaEjectOptionsUp;

static const char prtfmtStrEjectOptionsDownReverse[] = "@PJL SET JOBATTR=%c@FACE=DOWN_REVERSE%c%c";
static const void *const cmdParaEjectOptionsDownReverse[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsDownReverse[] = {
    Equal(option.ejectOptions, EjectOptionsDownReverse)};
static CmdParaTable symParaEjectOptionsDownReverse;
static ComparationTable comparationParaEjectOptionsDownReverse;

static const char prtfmtStrEjectOptionsUpReverse[] = "@PJL SET JOBATTR=%c@FACE=UP_REVERSE%c%c";
static const void *const cmdParaEjectOptionsUpReverse[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemEjectOptionsUpReverse[] = {
    Equal(option.ejectOptions, EjectOptionsUpReverse)};
static CmdParaTable symParaEjectOptionsUpReverse;
static ComparationTable comparationParaEjectOptionsUpReverse;

static const char prtfmtStrFaceUpMediaTypeA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpMediaTypeA5[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpMediaTypeA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, A5Media, NoSpecialPagesA5, CoilFaceOn};
static CmdParaTable symParaFaceUpMediaTypeA5;
static ComparationTable comparationParaFaceUpMediaTypeA5;

static const char prtfmtStrFaceUpSpecialpagesMediaTypeA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpSpecialpagesMediaTypeA5[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpSpecialpagesMediaTypeA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, NoA5Media, SpecialPagesA5, CoilFaceOn};
static CmdParaTable symParaFaceUpSpecialpagesMediaTypeA5;
static ComparationTable comparationParaFaceUpSpecialpagesMediaTypeA5;

static const char prtfmtStrFaceUpMediaTypeAllA5[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpMediaTypeAllA5[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpMediaTypeAllA5[] = {
    EjectOff, CoilPunch, NoTabMedia, NoSpecialPagesTab, A5Media, SpecialPagesA5, CoilFaceOn};
static CmdParaTable symParaFaceUpMediaTypeAllA5;
static ComparationTable comparationParaFaceUpMediaTypeAllA5;

static const char prtfmtStrFaceUpFeaturesMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpFeaturesMediaType[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpFeaturesMediaType[] = {EjectOff, CoilPunch, TabMedia,
                                                                         NoSpecialPagesTab, CoilFaceOn};
static CmdParaTable symParaFaceUpFeaturesMediaType;
static ComparationTable comparationParaFaceUpFeaturesMediaType;

static const char prtfmtStrFaceUpSpecialPagesMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpSpecialPagesMediaType[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpSpecialPagesMediaType[] = {EjectOff, CoilPunch, NoTabMedia,
                                                                             SpecialPagesTab, CoilFaceOn};
static CmdParaTable symParaFaceUpSpecialPagesMediaType;
static ComparationTable comparationParaFaceUpSpecialPagesMediaType;

static const char prtfmtStrFaceUpBothMediaType[] = "@PJL SET JOBATTR=%c@FACE=UP%c%c";
static const void *const cmdParaFaceUpBothMediaType[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_LF};
static const ComparationItem comparationItemFaceUpBothMediaType[] = {EjectOff, CoilPunch, TabMedia, SpecialPagesTab,
                                                                     CoilFaceOn};
static CmdParaTable symParaFaceUpBothMediaType;
static ComparationTable comparationParaFaceUpBothMediaType;

const FmtTableRow FeaturesFmtTable[] = {
    {prtfmtStrTabMarginValueNone, &symParaTabMarginValueNone, &comparationParaTabMarginValueNone},
    {prtfmtStrTabMarginValue, &symParaTabMarginValue, &comparationParaTabMarginValue},
    {prtfmtStrTrimmerValueNone, &symParaTrimmerValueNone, &comparationParaTrimmerValueNone},
    {prtfmtStrTrimmerValue, &symParaTrimmerValue, &comparationParaTrimmerValue},
    {prtfmtStrTrimmerLittleValue, &symParaTrimmerLittleValue, &comparationParaTrimmerLittleValue},
    {prtfmtStrTrimmerWidthValue, &symParaTrimmerWidthValue, &comparationParaTrimmerWidthValue},
    {prtfmtStrTrimmerHeightValue, &symParaTrimmerHeightValue, &comparationParaTrimmerHeightValue},
    {prtfmtStrTrimmerHeightValueNone, &symParaTrimmerHeightValueNone, &comparationParaTrimmerHeightValueNone},
    {prtfmtStrTrimmerAdjustValue, &symParaTrimmerAdjustValue, &comparationParaTrimmerAdjustValue},
    {prtfmtStrTrimmerAdjustValueNone, &symParaTrimmerAdjustValueNone, &comparationParaTrimmerAdjustValueNone},
    {prtfmtStrNumInSeqValueNone, &symParaNumInSequenceValueNone, &comparationParaNumInSequenceValueNone},
    {prtfmtStrNumInSeqValue, &symParaNumInSequenceValue, &comparationParaNumInSequenceValue},
    {prtfmtStrOffsetStackingTypePages, &symParaOffsetStackingTypePages, &comparationParaOffsetStackingTypePages},
    {prtfmtStrOffsetStackingTypeCopies, &symParaOffsetStackingTypeCopies, &comparationParaOffsetStackingTypeCopies},
    {prtfmtStrOffsetStackingPagesValue, &symParaOffsetStackingPagesValue, &comparationParaOffsetStackingPagesValue},
    {prtfmtStrOffsetStackingUnitsValue, &symParaOffsetStackingUnitsValue, &comparationParaOffsetStackingUnitsValue},
    {prtfmtStrEjectOptionsOffCoilFaceOn1, &symParaEjectOptionsOffCoilFaceOn1,
     &comparationParaEjectOptionsOffCoilFaceOn1},
    {prtfmtStrEjectOptionsOffCoilFaceOn2, &symParaEjectOptionsOffCoilFaceOn2,
     &comparationParaEjectOptionsOffCoilFaceOn2},
    {prtfmtStrEjectOptionsOffCoilFaceOff, &symParaEjectOptionsOffCoilFaceOff,
     &comparationParaEjectOptionsOffCoilFaceOff},
    {prtfmtStrEjectOptionsDown, &symParaEjectOptionsDown, &comparationParaEjectOptionsDown},
    {prtfmtStrEjectOptionsUp, &symParaEjectOptionsUp, &comparationParaEjectOptionsUp},
    {prtfmtStrEjectOptionsDownReverse, &symParaEjectOptionsDownReverse, &comparationParaEjectOptionsDownReverse},
    {prtfmtStrEjectOptionsUpReverse, &symParaEjectOptionsUpReverse, &comparationParaEjectOptionsUpReverse},
    {prtfmtStrFaceUpMediaTypeA5, &symParaFaceUpMediaTypeA5, &comparationParaFaceUpMediaTypeA5},
    {prtfmtStrFaceUpSpecialpagesMediaTypeA5, &symParaFaceUpSpecialpagesMediaTypeA5,
     &comparationParaFaceUpSpecialpagesMediaTypeA5},
    {prtfmtStrFaceUpMediaTypeAllA5, &symParaFaceUpMediaTypeAllA5, &comparationParaFaceUpMediaTypeAllA5},
    {prtfmtStrFaceUpFeaturesMediaType, &symParaFaceUpFeaturesMediaType, &comparationParaFaceUpFeaturesMediaType},
    {prtfmtStrFaceUpSpecialPagesMediaType, &symParaFaceUpSpecialPagesMediaType,
     &comparationParaFaceUpSpecialPagesMediaType},
    {prtfmtStrFaceUpBothMediaType, &symParaFaceUpBothMediaType, &comparationParaFaceUpBothMediaType},
};
const int32_t FeaturesFmtTableNum = static_cast<int32_t>(std::size(FeaturesFmtTable));

void FeaturesInitializeCmdParaTable()
{
    InitializeCmdParaTable(symParaTabMarginValueNone, cmdParaTabMarginValueNone);
    InitializeCmdParaTable(symParaTabMarginValue, cmdParaTabMarginValue);
    InitializeCmdParaTable(symParaTrimmerValueNone, cmdParaTrimmerValueNone);
    InitializeCmdParaTable(symParaTrimmerValue, cmdParaTrimmerValue);
    InitializeCmdParaTable(symParaTrimmerLittleValue, cmdParaTrimmerLittleValue);
    InitializeCmdParaTable(symParaTrimmerWidthValue, cmdParaTrimmerWidthValue);
    InitializeCmdParaTable(symParaTrimmerHeightValue, cmdParaTrimmerHeightValue);
    InitializeCmdParaTable(symParaTrimmerHeightValueNone, cmdParaTrimmerHeightValueNone);
    InitializeCmdParaTable(symParaTrimmerAdjustValue, cmdParaTrimmerAdjustValue);
    InitializeCmdParaTable(symParaTrimmerAdjustValueNone, cmdParaTrimmerAdjustValueNone);
    InitializeCmdParaTable(symParaNumInSequenceValueNone, cmdParaNumInSeqValueNone);
    InitializeCmdParaTable(symParaNumInSequenceValue, cmdParaNumInSeqValue);
    InitializeCmdParaTable(symParaOffsetStackingTypePages, cmdParaOffsetStackingTypePages);
    InitializeCmdParaTable(symParaOffsetStackingTypeCopies, cmdParaOffsetStackingTypeCopies);
    InitializeCmdParaTable(symParaOffsetStackingPagesValue, cmdParaOffsetStackingPagesValue);
    InitializeCmdParaTable(symParaOffsetStackingUnitsValue, cmdParaOffsetStackingUnitsValue);
    InitializeCmdParaTable(symParaEjectOptionsOffCoilFaceOn1, cmdParaEjectOptionsOffCoilFaceOn1);
    InitializeCmdParaTable(symParaEjectOptionsOffCoilFaceOn2, cmdParaEjectOptionsOffCoilFaceOn2);
    InitializeCmdParaTable(symParaEjectOptionsOffCoilFaceOff, cmdParaEjectOptionsOffCoilFaceOff);
    InitializeCmdParaTable(symParaEjectOptionsDown, cmdParaEjectOptionsDown);
    InitializeCmdParaTable(symParaEjectOptionsUp, cmdParaEjectOptionsUp);
    InitializeCmdParaTable(symParaEjectOptionsDownReverse, cmdParaEjectOptionsDownReverse);
    InitializeCmdParaTable(symParaEjectOptionsUpReverse, cmdParaEjectOptionsUpReverse);
    InitializeCmdParaTable(symParaFaceUpMediaTypeA5, cmdParaFaceUpMediaTypeA5);
    InitializeCmdParaTable(symParaFaceUpSpecialpagesMediaTypeA5, cmdParaFaceUpSpecialpagesMediaTypeA5);
    InitializeCmdParaTable(symParaFaceUpMediaTypeAllA5, cmdParaFaceUpMediaTypeAllA5);
    InitializeCmdParaTable(symParaFaceUpFeaturesMediaType, cmdParaFaceUpFeaturesMediaType);
    InitializeCmdParaTable(symParaFaceUpSpecialPagesMediaType, cmdParaFaceUpSpecialPagesMediaType);
    InitializeCmdParaTable(symParaFaceUpBothMediaType, cmdParaFaceUpBothMediaType);
}

void FeaturesInitialzieComparationTable()
{
    InitializeComparationTable(comparationParaTabMarginValueNone, comparationItemTabMarginValueNone);
    InitializeComparationTable(comparationParaTabMarginValue, comparationItemTabMarginValue);
    InitializeComparationTable(comparationParaTrimmerValueNone, comparationItemTrimmerValueNone);
    InitializeComparationTable(comparationParaTrimmerValue, comparationItemTrimmerValue);
    InitializeComparationTable(comparationParaTrimmerLittleValue, comparationItemTrimmerLittleValue);
    InitializeComparationTable(comparationParaTrimmerWidthValue, comparationItemTrimmerWidthValue);
    InitializeComparationTable(comparationParaTrimmerHeightValue, comparationItemTrimmerHeightValue);
    InitializeComparationTable(comparationParaTrimmerHeightValueNone, comparationItemTrimmerHeightValueNone);
    InitializeComparationTable(comparationParaTrimmerAdjustValue, comparationItemTrimmerAdjustValue);
    InitializeComparationTable(comparationParaTrimmerAdjustValueNone, comparationItemTrimmerAdjustValueNone);
    InitializeComparationTable(comparationParaNumInSequenceValueNone, comparationItemNumInSeqValueNone);
    InitializeComparationTable(comparationParaNumInSequenceValue, comparationItemNumInSeqValue);
    InitializeComparationTable(comparationParaOffsetStackingTypePages, comparationItemOffsetStackingTypePages);
    InitializeComparationTable(comparationParaOffsetStackingTypeCopies, comparationItemOffsetStackingTypeCopies);
    InitializeComparationTable(comparationParaOffsetStackingPagesValue, comparationItemOffsetStackingPagesValue);
    InitializeComparationTable(comparationParaOffsetStackingUnitsValue, comparationItemOffsetStackingUnitsValue);
    InitializeComparationTable(comparationParaEjectOptionsOffCoilFaceOn1, comparationItemEjectOptionsOffCoilFaceOn1);
    InitializeComparationTable(comparationParaEjectOptionsOffCoilFaceOn2, comparationItemEjectOptionsOffCoilFaceOn2);
    InitializeComparationTable(comparationParaEjectOptionsOffCoilFaceOff, comparationItemEjectOptionsOffCoilFaceOff);
    InitializeComparationTable(comparationParaEjectOptionsDown, comparationItemEjectOptionsDown);
    InitializeComparationTable(comparationParaEjectOptionsUp, comparationItemEjectOptionsUp);
    InitializeComparationTable(comparationParaEjectOptionsDownReverse, comparationItemEjectOptionsDownReverse);
    InitializeComparationTable(comparationParaEjectOptionsUpReverse, comparationItemEjectOptionsUpReverse);
    InitializeComparationTable(comparationParaFaceUpMediaTypeA5, comparationItemFaceUpMediaTypeA5);
    InitializeComparationTable(comparationParaFaceUpSpecialpagesMediaTypeA5,
                               comparationItemFaceUpSpecialpagesMediaTypeA5);
    InitializeComparationTable(comparationParaFaceUpMediaTypeAllA5, comparationItemFaceUpMediaTypeAllA5);
    InitializeComparationTable(comparationParaFaceUpFeaturesMediaType, comparationItemFaceUpFeaturesMediaType);
    InitializeComparationTable(comparationParaFaceUpSpecialPagesMediaType, comparationItemFaceUpSpecialPagesMediaType);
    InitializeComparationTable(comparationParaFaceUpBothMediaType, comparationItemFaceUpBothMediaType);
}
