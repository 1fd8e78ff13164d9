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
constexpr char prtfmtStrZPJLHead[] = "%c%c-12345X";
constexpr const void *cmdParaListZPJLHead[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE};
constexpr CmdParaTable symParaZPJLHead = Values(cmdParaListZPJLHead);

// The one header line of its own that ends with CR LF
constexpr char prtfmtStrZPJLJobMode[] = "@PJL JOB MODE=PRINTER%c%c";
constexpr const void *cmdParaListZPJLJobMode[] = {CR, LF};
constexpr CmdParaTable symParaZPJLJobMode = Values(cmdParaListZPJLJobMode);

constexpr char prtfmtStrEnterPS[] = "@PJL ENTER LANGUAGE=POSTSCRIPT\n";

// CR and LF are declared and not used
constexpr char prtfmtStrZPJLTrailer[] = "%c%c-12345X@PJL EOJ\n";
constexpr const void *cmdParaListZPJLTrailer[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE, CR, LF};
constexpr CmdParaTable symParaZPJLTrailer = Values(cmdParaListZPJLTrailer);

const FmtTableRow prtFmtTableZPJLHead[] = {Command(prtfmtStrZPJLHead, &symParaZPJLHead, nullptr)};
const FmtTableRow prtFmtTableZPJLJobMode[] = {Command(prtfmtStrZPJLJobMode, &symParaZPJLJobMode, nullptr)};
const FmtTableRow prtFmtTableEnterPS[] = {Command(prtfmtStrEnterPS, nullptr, nullptr)};
const FmtTableRow prtFmtTableZPJLTrailer[] = {{prtfmtStrZPJLTrailer, &symParaZPJLTrailer, nullptr}};
const int32_t numFmtTableZPJLHead = std::size(prtFmtTableZPJLHead);
const int32_t numFmtTableZPJLJobMode = std::size(prtFmtTableZPJLJobMode);
const int32_t numFmtTableEnterPS = std::size(prtFmtTableEnterPS);
const int32_t numFmtTableZPJLTrailer = std::size(prtFmtTableZPJLTrailer);

void InializeDescriptionTable()
{
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
