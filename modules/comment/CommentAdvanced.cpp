#include "Comment.h"

#include "OutputSink.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

static const char portrait[] = "@PJL COMMENT PRINTJOBINFO ORIENTATION=PORTRAIT\n";
static const char landscape[] = "@PJL COMMENT PRINTJOBINFO ORIENTATION=LANDSCAPE\n";
static const char rotatedPortrait[] = "@PJL COMMENT PRINTJOBINFO ORIENTATION=ROTATEDPORTRAIT\n";
static const char rotatedLandscape[] = "@PJL COMMENT PRINTJOBINFO ORIENTATION=ROTATEDLANDSCAPE\n";

// signature: how the sheets are folded. pages: what the number-up does to the page: nothing, keeps its orientation
// (square layouts), or turns it. The others are the lines for the four orientations.
enum class Signature { None, Left, Right, Other };
enum class Pages { One, Square, Turned, Other };
struct OrientationLines {
    Signature signature;
    Pages pages;
    const char *portrait;         // 1
    const char *landscape;        // 4
    const char *reverseLandscape; // 5
    const char *reversePortrait;  // 6
};
static const OrientationLines orientationLines[] = {
    {Signature::None, Pages::One, portrait, landscape, rotatedLandscape, rotatedPortrait},
    {Signature::None, Pages::Square, portrait, landscape, landscape, portrait},
    {Signature::None, Pages::Turned, landscape, portrait, portrait, landscape},
    {Signature::Left, Pages::One, landscape, rotatedPortrait, rotatedPortrait, landscape},
    {Signature::Left, Pages::Square, landscape, rotatedPortrait, rotatedPortrait, landscape},
    {Signature::Left, Pages::Turned, rotatedPortrait, landscape, landscape, rotatedPortrait},
    {Signature::Right, Pages::One, rotatedLandscape, portrait, portrait, rotatedLandscape},
    {Signature::Right, Pages::Square, rotatedLandscape, portrait, portrait, rotatedLandscape},
    {Signature::Right, Pages::Turned, portrait, rotatedLandscape, rotatedLandscape, portrait},
};

// The order of two pages on a sheet, and of three or more.
struct LayoutLines {
    int32_t direction;
    const char *two;
    const char *more;
};
static const LayoutLines layoutLines[] = {
    {1, "@PJL COMMENT PRINTJOBINFO NUPEX=RIGHTTODOWN\n", "@PJL COMMENT PRINTJOBINFO NUPEX=RIGHTTHENDOWN\n"},
    {3, "@PJL COMMENT PRINTJOBINFO NUPEX=LEFTTOUP\n", "@PJL COMMENT PRINTJOBINFO NUPEX=LEFTTHENDOWN\n"},
    {5, "@PJL COMMENT PRINTJOBINFO NUPEX=RIGHTTODOWN\n", "@PJL COMMENT PRINTJOBINFO NUPEX=DOWNTHENRIGHT\n"},
    {6, "@PJL COMMENT PRINTJOBINFO NUPEX=LEFTTOUP\n", "@PJL COMMENT PRINTJOBINFO NUPEX=DOWNTHENLEFT\n"},
};

// text: what the option's value holds; output: what it stands for. The first row that fits decides.
struct TextOutput {
    const char *text;
    const char *output;
};
static const TextOutput stapleLines[] = {
    {"LeftDouble", "@PJL COMMENT PRINTJOBINFO STAPLEEX=LEFTDUAL\n"},
    {"UpperLeftSingle", "@PJL COMMENT PRINTJOBINFO STAPLEEX=TOPLEFT\n"},
    {"TopDouble", "@PJL COMMENT PRINTJOBINFO STAPLEEX=TOPDUAL\n"},
    {"UpperRightSingle", "@PJL COMMENT PRINTJOBINFO STAPLEEX=TOPRIGHT\n"},
    {"RightDouble", "@PJL COMMENT PRINTJOBINFO STAPLEEX=RIGHTDUAL\n"},
    {"LowerRightSingle", "@PJL COMMENT PRINTJOBINFO STAPLEEX=BOTTOMRIGHT\n"},
    {"BottomDouble", "@PJL COMMENT PRINTJOBINFO STAPLEEX=BOTTOMDUAL\n"},
    {"LowerLeftSingle", "@PJL COMMENT PRINTJOBINFO STAPLEEX=BOTTOMLEFT\n"},
};
static const TextOutput punchLocations[] = {
    {"Left", "LEFT"},
    {"Top", "TOP"},
    {"Right", "RIGHT"},
    {"Bottom", "BOTTOM"},
};
static const TextOutput punchHoleCounts[] = {
    {"2Holes", "TWO"},
    {"3Holes", "THREE"},
    {"4Holes", "FOUR"},
    {"CoilPunch", "COIL"},
};

static Signature SignatureOfJob()
{
    const std::string_view signature = psoptioncomment.signature;
    if (signature.empty() || signature == kChoiceNone)
        return Signature::None;
    if (signature == "LeftSig" || signature == "LeftSigCenterStaple" || signature == "LeftSigFold")
        return Signature::Left;
    if (signature == "RightSig" || signature == "RightSigCenterStaple" || signature == "RightSigFold")
        return Signature::Right;
    return Signature::Other;
}

static Pages PagesOfJob()
{
    if (!*psoptioncomment.numberUp)
        return Pages::One;
    switch (atoi(psoptioncomment.numberUp)) {
    case 1:
        return Pages::One;
    case 4:
    case 9:
    case 16:
        return Pages::Square;
    case 2:
    case 6:
        return Pages::Turned;
    default:
        return Pages::Other;
    }
}

static const char *OrientationLine(const OrientationLines &row)
{
    switch (psoptioncomment.orientation) {
    case 1:
        return row.portrait;
    case 4:
        return row.landscape;
    case 5:
        return row.reverseLandscape;
    case 6:
        return row.reversePortrait;
    default:
        return "";
    }
}

static void OutputOrientation()
{
    const Signature signature = SignatureOfJob();
    const Pages pages = PagesOfJob();
    for (const OrientationLines &row : orientationLines)
        if (row.signature == signature && row.pages == pages)
            QBfputs(OrientationLine(row), stdout);
}

static void OutputLayoutOrder()
{
    const int pages = atoi(psoptioncomment.numberUp);
    if (pages < 2)
        return;
    for (const LayoutLines &row : layoutLines)
        if (row.direction == psoptioncomment.layoutDirection)
            QBfputs(pages == 2 ? row.two : row.more, stdout);
}

static void OutputSaddleStaple()
{
    const std::string_view signature = psoptioncomment.signature;
    if (signature.empty())
        return;
    const bool on = signature == "LeftSigCenterStaple" || signature == "RightSigCenterStaple";
    QBfputs(on ? "@PJL COMMENT PRINTJOBINFO SADDLESTAPLE=ON\n" : "@PJL COMMENT PRINTJOBINFO SADDLESTAPLE=OFF\n",
            stdout);
}

static void OutputStaplePosition()
{
    for (const TextOutput &row : stapleLines) {
        if (strstr(psoptioncomment.staple, row.text)) {
            QBfputs(row.output, stdout);
            return;
        }
    }
}

static void OutputPunchPosition()
{
    for (const TextOutput &location : punchLocations) {
        if (!strstr(psoptioncomment.punch, location.text))
            continue;
        for (const TextOutput &holes : punchHoleCounts)
            if (strcmp(psoptioncomment.punchHoles, holes.text) == 0)
                QBfprintfCut(stdout, kDirectLineSize, "@PJL COMMENT PRINTJOBINFO PUNCHEX=HOLES[%s]:LOCATION[%s]\n",
                             holes.output, location.output);
        return;
    }
}

void OutputZPJLCommandforCommentAdvanced()
{
    OutputOrientation();
    OutputLayoutOrder();
    OutputSaddleStaple();
    OutputStaplePosition();
    OutputPunchPosition();
    QBfputs("@PJL COMMENT PRINTJOBINFO MIXEDSIZETYPE=NONE\n", stdout);
    QBfputs("@PJL COMMENT PRINTJOBINFO CUD=OFF\n", stdout);
}
