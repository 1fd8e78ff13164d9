#include "PBind.h"

#include "BoundedText.h"
#include "OutputSink.h"
#include "PPDLookup.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

// A bind position of the dialog, PJL's word for it, and how it turns the sheet.
struct PBindPosition {
    const char *dialogValue;
    const char *pjlValue;
    const char *rotation;
};

static const PBindPosition bindPositions[] = {
    {"None", "OFF", ""},
    {"BindLeft", "LEFT", "ROTSEFLAND"},
    {"BindRight", "RIGHT", "ROTLEFPORT"},
    {"BindTop", "TOP", "ROTSEFLAND"},
};

static const char kMinimumCutPosition[] = "7mm";

// What becomes of the tickets' cuts.
enum class Cut { AsTicket, None, Minimum };

// A trimming of the dialog, PJL's word for it (null keeps the dialog's), and what becomes of the cuts.
// family: the row is for every other value that begins so.
struct PBindTrimming {
    const char *dialogValue;
    bool family;
    const char *pjlValue;
    Cut pageSize;
    Cut fore;
    Cut top;
};

// The first row that fits decides; the last fits every value.
static const PBindTrimming trimmings[] = {
    {"None", false, "OFF", Cut::None, Cut::None, Cut::None},
    {"1EdgeCut", false, "FACE", Cut::None, Cut::AsTicket, Cut::None},
    {"1EdgeCutMinimum", false, "FACE", Cut::None, Cut::Minimum, Cut::None},
    {"1EdgeSpecifySize", false, "FACE", Cut::AsTicket, Cut::None, Cut::None},
    {"3EdgeCutMinimum", false, "FULLBLEED", Cut::None, Cut::Minimum, Cut::Minimum},
    {"3EdgeSpecifySize", false, "FULLBLEED", Cut::AsTicket, Cut::None, Cut::None},
    {"1Edge", true, "FACE", Cut::None, Cut::AsTicket, Cut::AsTicket},
    {"3Edge", true, "FULLBLEED", Cut::None, Cut::AsTicket, Cut::AsTicket},
    {"", true, nullptr, Cut::None, Cut::AsTicket, Cut::AsTicket},
};

// In 0.1 mm.
struct PBindPageSize {
    int64_t width = 0;
    int64_t length = 0;
};

static bool IsSet(const char *text)
{
    return text[0] != '\0';
}

static bool TextIs(const char *text, const char *value)
{
    return strcmp(text, value) == 0;
}

// The number that the text begins with, else 0. It is read as a 64-bit one, and its low 32 bits count.
static int64_t Number(const char *text)
{
    return static_cast<int32_t>(strtoll(text, nullptr, 10));
}

// A cut position in its unit, which is its last two characters.
static int64_t CutPosition(const char *text)
{
    const std::string position = text;
    return position.size() < 2 ? 0 : Number(position.substr(0, position.size() - 2).c_str());
}

// Points to the unit of the lines, in whole millimetres: 60 of them are 170 points to these printers. A size that no
// paper can have is 0.
static int64_t PointsToLength(float points)
{
    constexpr float kFarBeyondPaper = 1e15F;
    if (!(std::fabs(points) < kFarBeyondPaper))
        return 0;
    return static_cast<int64_t>(points) * 60 / 170 * 10;
}

// Returns false, with both 0, when the PPD doesn't define the size.
static bool GetPageSize(const char *name, PBindPageSize &size)
{
    float width, length;
    const bool defined = PPDPageSizeInPoints(name, width, length);
    size = {PointsToLength(width), PointsToLength(length)};
    return defined;
}

static void OutputNumber(int64_t number, const char *name)
{
    QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@%s=%d\"\n", name, static_cast<int32_t>(number));
}

static void OutputMapped(const char *value, const char *name)
{
    char mapped[kPBindTextSize];
    convertPBindPPDValue(value, mapped, sizeof mapped);
    if (IsSet(mapped))
        OutputZPJLCommandforPBindNormal(mapped, name);
}

static void NormalizeBindPosition(PBindOptions &options)
{
    for (const PBindPosition &position : bindPositions) {
        if (TextIs(options.bindPosition, position.dialogValue)) {
            CopyCut(options.bindPosition, position.pjlValue);
            CopyCut(options.rotation, position.rotation);
            return;
        }
    }
}

static void NormalizeCut(char (&cut)[kPBindTextSize], Cut rule)
{
    if (rule != Cut::AsTicket)
        CopyCut(cut, rule == Cut::Minimum ? kMinimumCutPosition : "");
}

static void NormalizeTrimming(PBindOptions &options)
{
    const std::string_view trimming = options.trimming;
    const auto *row = trimmings;
    while (row->family ? !trimming.starts_with(row->dialogValue) : trimming != row->dialogValue)
        row++;
    NormalizeCut(options.cutPageSize, row->pageSize);
    NormalizeCut(options.cutPositionFore, row->fore);
    NormalizeCut(options.cutPositionTop, row->top);
    options.minimumCut = row->fore == Cut::Minimum;
    if (row->pjlValue)
        CopyCut(options.trimming, row->pjlValue);
}

// The size after the cut, and how far the image moves for it.
static void OutputCut(const PBindOptions &options, const PBindPageSize &page, const PBindPageSize &cut, int64_t shift)
{
    const bool foreSet = IsSet(options.cutPositionFore);
    if (foreSet) {
        const int64_t fore = CutPosition(options.cutPositionFore);
        shift = 5 * fore;
        OutputNumber(page.width - 10 * fore, "PBTW");
    }
    if (IsSet(options.cutPositionTop)) {
        OutputNumber(page.length - 20 * CutPosition(options.cutPositionTop), "PBTH");
    } else if (foreSet) {
        OutputNumber(page.length, "PBTH");
    } else {
        OutputNumber(cut.width, "PBTW");
        OutputNumber(cut.length, "PBTH");
    }
    if (!options.minimumCut) {
        const bool right = TextIs(options.bindPosition, "RIGHT");
        OutputNumber(right ? shift : -shift, "ISXO");
        OutputNumber(right ? -shift : shift, "ISXT");
    }
}

static void OutputPages(const PBindOptions &options)
{
    const bool trimmed = !TextIs(options.trimming, "OFF");
    PBindPageSize page, cut;
    int64_t shift = 0;
    char cutPageSize[kPBindTextSize];

    if (IsSet(options.pageSize)) {
        GetPageSize(options.pageSize, page);
        OutputMapped(options.pageSize, "PBBP");
    }
    if (IsSet(options.cutPageSize)) {
        if (GetPageSize(options.cutPageSize, cut))
            shift = (page.width - cut.width) / 2;
        convertPBindPPDValue(options.cutPageSize, cutPageSize, sizeof cutPageSize);
    } else {
        CopyCut(cutPageSize, trimmed ? "CUSTOM" : options.pageSize);
    }
    OutputZPJLCommandforPBindNormal(cutPageSize, "PBTP");
    if (trimmed)
        OutputCut(options, page, cut, shift);
}

static void OutputAdjustments(const PBindOptions &options)
{
    const char *position = options.bindPosition;
    const bool right = TextIs(position, "RIGHT");
    OutputZPJLCommandforPBindDigital(options.cutPageAdjustmentFore, 1, "PBAW", position, 0);
    OutputZPJLCommandforPBindDigital(options.cutPageAdjustmentTB, 1, "PBAH", position, 0);
    OutputZPJLCommandforPBindDigital(options.rotationAdjustTop, 1, right ? "PBAB" : "PBAT", position, 0);
    OutputZPJLCommandforPBindDigital(options.rotationAdjustBottom, 1, right ? "PBAT" : "PBAB", position, 0);
    OutputZPJLCommandforPBindDigital(options.rotationAdjustFore, 1, "PBAF", position, 1);
    OutputZPJLCommandforPBindDigital(options.coverAdjustX, 1, "PBAX", position, 1);
    OutputZPJLCommandforPBindDigital(options.coverAdjustY, 1, "PBAY", position, 2);
    OutputZPJLCommandforPBindDigital(options.cutPositionAdjustmentTB, 1, "PBAV", position, 1);
}

static void OutputCover(const PBindOptions &options)
{
    // A DL cover goes out as ledger.
    OutputMapped(TextIs(options.coverPageSize, "DL") ? "Tabloid" : options.coverPageSize, "PBCP");
    OutputMapped(options.coverMediaType, "PBCQ");
    OutputMapped(options.coverMediaColor, "PBCC");
    // The colour, not the tray, tells whether the tray goes out.
    if (IsSet(options.coverMediaColor))
        OutputMapped(options.coverPaperTray, "PBCT");
}

void PBindGetTicketFromPDE(const char *const *argv)
{
    psoptionpbind = {};
    GetTicketFromArray(argv, PBindticketData);
    NormalizeBindPosition(psoptionpbind);
    NormalizeTrimming(psoptionpbind);
}

void OutputZPJLCommandforPerfectBind()
{
    const PBindOptions &options = psoptionpbind;
    if (!IsSet(options.bindPosition) || TextIs(options.bindPosition, "OFF"))
        return;
    OutputZPJLCommandforPBindNormal(options.bindPosition, "PBRE");
    OutputZPJLCommandforPBindNormal(options.rotation, "MSDA");
    OutputZPJLCommandforPBindNormal(options.trimming, "PBTC");
    OutputPages(options);
    OutputAdjustments(options);
    OutputCover(options);
    OutputZPJLCommandforPBindNormal("OFF", "PBCI");
}

void OutputZPJLCommandforPBindNormal(const char *value, const char *name)
{
    QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@%s=%s\"\n", name, value);
}

void OutputZPJLCommandforPBindDigital(const char *value, int32_t multiplier, const char *name, const char *position,
                                      int32_t mode)
{
    if (!IsSet(value))
        return;
    const bool negated = (mode == 1 && TextIs(position, "RIGHT")) ||
                         (mode == 2 && (TextIs(position, "TOP") || TextIs(position, "LEFT")));
    const int64_t number = Number(value) * multiplier;
    OutputNumber(negated ? -number : number, name);
}

void convertPBindPPDValue(const char *value, char *dest, int32_t size)
{
    const PBindParam *row = PerfectBindParam;
    while (IsSet(row->ppdValue) && !TextIs(row->ppdValue, value))
        row++;
    CopyCut({dest, static_cast<size_t>(size)}, row->pjlValue);
}
