#include "JobHeader.h"

#include "Booklet.h"
#include "Comment.h"
#include "ImageQuality.h"
#include "ModuleDispatch.h"
#include "PBind.h"
#include "PPDLookup.h"
#include "ProductConfig.h"
#include "SpecialPage.h"

#include <cstring>
#include <iterator>

// Universal Exit Language; the next line follows on the same line
static const char prtfmtStrZPJLHead[] = "%c%c-12345X";
static const void *const cmdParaListZPJLHead[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE};
static CmdParaTable symParaZPJLHead;

// The one header line of its own that ends with CR LF
static const char prtfmtStrZPJLJobMode[] = "@PJL JOB MODE=PRINTER%c%c";
static const void *const cmdParaListZPJLJobMode[] = {&CTRLSym_CR, &CTRLSym_LF};
static CmdParaTable symParaZPJLJobMode;

static const char prtfmtStrEnterPS[] = "@PJL ENTER LANGUAGE=POSTSCRIPT\n";

// CR and LF are declared and not used
static const char prtfmtStrZPJLTrailer[] = "%c%c-12345X@PJL EOJ\n";
static const void *const cmdParaListZPJLTrailer[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE, &CTRLSym_CR, &CTRLSym_LF};
static CmdParaTable symParaZPJLTrailer;

const FmtTableRow prtFmtTableZPJLHead[] = {{prtfmtStrZPJLHead, &symParaZPJLHead, nullptr}};
const FmtTableRow prtFmtTableZPJLJobMode[] = {{prtfmtStrZPJLJobMode, &symParaZPJLJobMode, nullptr}};
const FmtTableRow prtFmtTableEnterPS[] = {{prtfmtStrEnterPS, nullptr, nullptr}};
const FmtTableRow prtFmtTableZPJLTrailer[] = {{prtfmtStrZPJLTrailer, &symParaZPJLTrailer, nullptr}};
const int32_t numFmtTableZPJLHead = std::size(prtFmtTableZPJLHead);
const int32_t numFmtTableZPJLJobMode = std::size(prtFmtTableZPJLJobMode);
const int32_t numFmtTableEnterPS = std::size(prtFmtTableEnterPS);
const int32_t numFmtTableZPJLTrailer = std::size(prtFmtTableZPJLTrailer);

void InializeDescriptionTable()
{
    InitializeCmdParaTable(symParaZPJLHead, cmdParaListZPJLHead);
    InitializeCmdParaTable(symParaZPJLJobMode, cmdParaListZPJLJobMode);
    InitializeCmdParaTable(symParaZPJLTrailer, cmdParaListZPJLTrailer);
    InializeDescriptionTableFromFilter();
}

static bool IsModelWithComment(const char *fileName)
{
    for (const char *const *model = modelsWithComment; *model; model++)
        if (strstr(fileName, *model))
            return true;
    return false;
}

// Whether the printer takes the job information comment.
static bool IsCommentWanted()
{
    if (PPDAttributeValue(KPPDCharEncoding))
        return !PPDAttributeIs(KPPDCharEncoding, "UTF-8") || PPDAttributeIs("CommentOn", "True");
    const char *fileName = PPDAttributeValue("PCFileName");
    return fileName && (IsModelWithComment(fileName) || PPDAttributeIs("CommentOn", "True"));
}

bool IsSpooledMode()
{
    return PPDAttributeIs("OVPSDecompMode", "1");
}

void OutputZPJLCommand(const char *const *argv)
{
    OutputZPJLCommandFromArray(argv, prtFmtTableZPJLHead, numFmtTableZPJLHead);
    OutputZPJLCommandLanguageEncoding();
    OutputZPJLCommandFromArray(argv, prtFmtTableZPJLJobMode, numFmtTableZPJLJobMode);
    OutputZPJLCommandFromFilter(argv);
    OutputZPJLCommandforPerfectBind();
    OutputZPJLCommandforBooklet();
    OutputZPJLCommandForTonerSaver();
    OutputZPJLCommandOthers();
    OutputZPJLCommandForSpecialPage(argv);
    if (IsCommentWanted()) {
        OutputZPJLCommandforCommentVersionLow();
        OutputZPJLCommandforCommentBegin();
        OutputZPJLCommandforCommentBasic();
        OutputZPJLCommandforCommentEnd();
    }
    if (!IsSpooledMode())
        OutputZPJLCommandFromArray(argv, prtFmtTableEnterPS, numFmtTableEnterPS);
}
