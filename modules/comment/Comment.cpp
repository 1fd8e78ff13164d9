#include "Comment.h"

#include "BoundedText.h"
#include "OutputSink.h"
#include "PPDLookup.h"

#include <cstring>
#include <string_view>

static const char kOneSided[] = "one-sided";
static const char kTwoSidedLongEdge[] = "two-sided-long-edge";
static const char kTwoSidedShortEdge[] = "two-sided-short-edge";

CommentOptions psoptioncomment;

constexpr ticketData tickets[] = {
    TextTicket(kSidesTicketKey, psoptioncomment.sides),
    TextTicket(kColorModeTicketKey, psoptioncomment.colorMode),
    TextTicket(kNumberUpTicketKey, psoptioncomment.numberUp, GetNumberUpTicketStringForComment),
    TextTicket(kStapleTicketKey, psoptioncomment.staple),
    TextTicket(kQBPunchTicketKey, psoptioncomment.punch),
    TextTicket(kQBPunchHoleTicketKey, psoptioncomment.punchHoles),
    TextTicket(kQBSignatureTicketKey, psoptioncomment.signature),
    TextTicket(kQBSigVolTicketKey, psoptioncomment.signatureVolume),
    TextTicket(KLineWeightAdjustment, psoptioncomment.lineWeight),
    TextTicket(kTonerSaverKey, psoptioncomment.tonerSaver),
    TextTicket(kDetailedTonerSaverKey, psoptioncomment.tonerReductionRate),
    IntegerTicket(kDuplexBindingEdgeTicketKey, psoptioncomment.duplexBindingEdge),
    IntegerTicket(kCopiesTicketKey, psoptioncomment.copies),
    IntegerTicket(kOrientationTicketKey, psoptioncomment.orientation),
    IntegerTicket(kLayoutDirectionTicketKey, psoptioncomment.layoutDirection),
};
constinit const TicketTable CommentticketData = tickets;

// Either of the two settings selects the line; the first row that has one of them decides.
struct DuplexLine {
    const char *sides;
    int32_t bindingEdge;
    const char *line;
};
static const DuplexLine duplexLines[] = {
    {kTwoSidedLongEdge, 2, "@PJL COMMENT PRINTJOBINFO DUPLEXTYPE=DUPLEX\n"},
    {kTwoSidedShortEdge, 3, "@PJL COMMENT PRINTJOBINFO DUPLEXTYPE=TUMBLE\n"},
    {kOneSided, 1, "@PJL COMMENT PRINTJOBINFO DUPLEXTYPE=SIMPLEX\n"},
};

void CommentGetTicketFromPDE(const char *const *argv)
{
    psoptioncomment = {};
    GetTicketFromArray(argv, CommentticketData);

    // The dialog's collation is known by a word anywhere among the options.
    const char *options = OptionsOfJob(argv).text;
    for (const char *word : {"nocollate", "collate"}) {
        if (strstr(options, word)) {
            CopyCut(psoptioncomment.collate, word);
            break;
        }
    }

    if (!*psoptioncomment.sides || psoptioncomment.duplexBindingEdge == 0)
        CopyCut(psoptioncomment.sides, kOneSided);
    // Booklets are always tumble duplex; a job without the option counts as one.
    if (strcmp(psoptioncomment.signature, kChoiceNone) != 0)
        CopyCut(psoptioncomment.sides, kTwoSidedShortEdge);
    if (psoptioncomment.orientation == -1)
        psoptioncomment.orientation = 1;
    if (psoptioncomment.layoutDirection == -1)
        psoptioncomment.layoutDirection = 1;
}

void OutputZPJLCommandforCommentVersionLow()
{
    QBfputs("@PJL COMMENT PRINTJOBINFO VERSION=1.3.0\n", stdout);
}

void OutputZPJLCommandforCommentVersionHigh()
{
    QBfputs("@PJL COMMENT PRINTJOBINFO VERSION=1.5.0\n", stdout);
}

void OutputZPJLCommandforCommentBegin()
{
    QBfputs("@PJL COMMENT PRINTJOBINFO BEGIN\n", stdout);
    QBfputs("@PJL COMMENT PRINTJOBINFO PDLTYPE=PDL[POSTSCRIPT]:VERSION[3]\n", stdout);
    QBfputs("@PJL COMMENT PRINTJOBINFO JOBTYPE=PRINT\n", stdout);
}

void OutputZPJLCommandforCommentEnd()
{
    QBfputs("@PJL COMMENT PRINTJOBINFO END\n", stdout);
}

static void OutputCopies()
{
    const std::string_view collate = psoptioncomment.collate;
    if (collate.empty())
        return;
    if (collate == "collate") {
        QBfprintfCut(stdout, kDirectLineSize, "@PJL COMMENT PRINTJOBINFO JOBCOPIES=%d\n", psoptioncomment.copies);
        QBfputs("@PJL COMMENT PRINTJOBINFO PAGECOPIES=1\n", stdout);
    } else {
        QBfprintfCut(stdout, kDirectLineSize, "@PJL COMMENT PRINTJOBINFO PAGECOPIES=%d\n", psoptioncomment.copies);
        QBfputs("@PJL COMMENT PRINTJOBINFO JOBCOPIES=1\n", stdout);
    }
}

static void OutputDuplex()
{
    const std::string_view sides = psoptioncomment.sides;
    if (sides.empty())
        return;
    for (const DuplexLine &row : duplexLines) {
        if (sides == row.sides || psoptioncomment.duplexBindingEdge == row.bindingEdge) {
            QBfputs(row.line, stdout);
            return;
        }
    }
}

static void OutputColorMode()
{
    switch (ColorOfJob(psoptioncomment.colorMode)) {
    case JobColor::Color:
        QBfputs("@PJL COMMENT PRINTJOBINFO COLORMODE=COLOR\n", stdout);
        break;
    case JobColor::Grayscale:
        QBfputs("@PJL COMMENT PRINTJOBINFO COLORMODE=GRAYSCALE\n", stdout);
        break;
    case JobColor::Unstated:
        break;
    }
}

static void OutputNumberUp()
{
    if (*psoptioncomment.numberUp)
        QBfprintfCut(stdout, kDirectLineSize, "@PJL COMMENT PRINTJOBINFO NUP=%s\n", psoptioncomment.numberUp);
}

static void OutputStaple()
{
    const std::string_view staple = psoptioncomment.staple;
    if (staple.empty())
        return;
    // A saddle staple belongs to the booklet.
    const bool off = staple == kChoiceNone || staple == "SaddleStaple";
    QBfputs(off ? "@PJL COMMENT PRINTJOBINFO STAPLE=OFF\n" : "@PJL COMMENT PRINTJOBINFO STAPLE=ON\n", stdout);
}

static void OutputPunch()
{
    const std::string_view punch = psoptioncomment.punch;
    if (punch.empty())
        return;
    const bool off = punch == kChoiceNone;
    QBfputs(off ? "@PJL COMMENT PRINTJOBINFO PUNCH=OFF\n" : "@PJL COMMENT PRINTJOBINFO PUNCH=ON\n", stdout);
}

static void OutputBookletType()
{
    const std::string_view signature = psoptioncomment.signature;
    const std::string_view volume = psoptioncomment.signatureVolume;
    if (signature.empty())
        return;
    if (signature == kChoiceNone || volume.empty()) {
        QBfputs("@PJL COMMENT PRINTJOBINFO BOOKLETTYPE=TYPE[NOBOOKLET]\n", stdout);
    } else if (volume == kChoiceNone) {
        QBfputs("@PJL COMMENT PRINTJOBINFO BOOKLETTYPE=TYPE[NONEDIVIDE]\n", stdout);
    } else {
        // "5Sheets" becomes "5", also in the record
        if (char *unit = strstr(psoptioncomment.signatureVolume, "Sheet"))
            *unit = '\0';
        QBfprintfCut(stdout, kDirectLineSize,
                     "@PJL COMMENT PRINTJOBINFO BOOKLETTYPE=TYPE[MANUALDIVIDE]:THRESHOLD[%s]\n",
                     psoptioncomment.signatureVolume);
    }
}

void OutputZPJLCommandforCommentBasic()
{
    OutputCopies();
    OutputDuplex();
    OutputColorMode();
    OutputNumberUp();
    OutputStaple();
    OutputPunch();
    OutputBookletType();
}
