#include "Features.h"

#include "BoundedText.h"
#include "InjectionEvents.h"
#include "JobState.h"
#include "OutputSink.h"

#include <algorithm>

static const char autoScaleOff[] =
    "/Custom/ProcSet findresource/setsignatureautoscale 2 copy known {get false exch exec} {pop pop} ifelse\n";
static const char autoScaleOn[] =
    "/Custom/ProcSet findresource/setsignatureautoscale 2 copy known {get true exch exec} {pop pop} ifelse\n";

// Wraps the body so that a printer without the procedures that it asks for goes on undisturbed.
static void OutputFragment(const char *body, FILE *stream)
{
    QBfprintf(stream, "[{\n");
    QBfprintf(stream, "%%BeginNonPPDFeatures\n");
    QBfprintf(stream, body);
    QBfprintf(stream, "%%EndNonPPDFeatures\n");
    QBfprintf(stream, "} stopped cleartomark\n");
}

// A long page list cuts the body, its line end included.
void FeaturesOutputSeparatorPages(FILE *stream)
{
    const int32_t list = zpjlOptionFeatures.separatorPagesList;
    if (list == -1 || list == OptionSepratorPagesNone)
        return;
    char body[kDirectLineSize];
    FormatCut(body, "1 dict dup/SeparatorPages[%s]put/Custom/ProcSet findresource/setcoverseparator get exec\n",
              zpjlOptionFeatures.separatorPages);
    OutputFragment(body, stream);
}

void FeaturesOutputAutoFit(FILE *stream)
{
    const int32_t margin = zpjlOptionFeatures.bookletMargin;
    if (margin == -1 || margin == OptionBookletMarginNone)
        return;
    char body[kDirectLineSize];
    FormatCut(body, "%s.000/Custom/ProcSet findresource/setsignatureimageshift get exec\n",
              zpjlOptionFeatures.bookletMarginShift);
    OutputFragment(body, stream);

    const int32_t autoFit = zpjlOptionFeatures.autoFit;
    if (autoFit != -1)
        OutputFragment(autoFit == OptionAutoFitNone ? autoScaleOff : autoScaleOn, stream);
}

// event: where the fragment stands in documents of one page a sheet, or of several when `nUp` is true.
// output: writes it, when its tickets ask for it.
struct FeaturesFragment {
    int32_t event;
    bool nUp;
    void (*output)(FILE *stream);
};
static const FeaturesFragment fragments[] = {
    {kEventEndProlog, false, FeaturesOutputSeparatorPages},
    {kEventEndSetup, false, FeaturesOutputAutoFit},
    {kEventNoPageDevice, true, FeaturesOutputSeparatorPages},
    {kEventNoPageDevice, true, FeaturesOutputAutoFit},
};

static bool IsDue(const FeaturesFragment &fragment, int32_t event)
{
    const int64_t pagesPerSheet = LayoutCount();
    const bool fits = fragment.nUp ? pagesPerSheet >= 2 : pagesPerSheet == 0 || pagesPerSheet == 1;
    return fragment.event == event && fits;
}

bool FeaturesHasPSCommandFromFilter(int32_t event)
{
    return std::ranges::any_of(fragments, [event](const FeaturesFragment &fragment) { return IsDue(fragment, event); });
}

void FeaturesOutputPSCommandFromFilter(int32_t event, FILE *stream)
{
    for (const FeaturesFragment &fragment : fragments)
        if (IsDue(fragment, event))
            fragment.output(stream);
}
