#include "Features.h"

#include "BoundedText.h"
#include "InjectionEvents.h"
#include "JobState.h"
#include "OutputSink.h"

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

bool FeaturesHasPSCommandFromFilter(int32_t event)
{
    return event == kEventEndProlog || event == kEventEndSetup || event == kEventNoPageDevice;
}

void FeaturesOutputPSCommandFromFilter(int32_t event, FILE *stream)
{
    const int32_t pagesPerSheet = LayoutCount();
    const bool single = pagesPerSheet == 0 || pagesPerSheet == 1;
    const bool nUpPoint = event == kEventNoPageDevice && pagesPerSheet >= 2;

    if (nUpPoint || (event == kEventEndProlog && single))
        FeaturesOutputSeparatorPages(stream);
    if (nUpPoint || (event == kEventEndSetup && single))
        FeaturesOutputAutoFit(stream);
}
