// PPD text through the whole header and every lookup.
// Input: the PPD.

#include "InProcess.h"
#include "PPDLookup.h"

#include <cstddef>
#include <cstdint>

// Tickets whose lines ask the PPD.
static const char options[] =
    "OVColorMode=Auto sides=two-sided-long-edge number-up=2 media=A4 orientation-requested=4 collate=true "
    "com.orvane.dlg.printsettings.PrintTypeTicketKey=5 OVPBindPosition=BindLeft "
    "OVPBindTrimming=3EdgeSpecifySize OVPBindCutPageSize=A4 OVPBindPageSize=A3";
static const char document[] =
    "%!PS\n%%BeginFeature: *OVOutputMode 600x600\n%%BeginFeature: *OVHalftone Fineness\nep\n";

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    InProcessJob job;
    job.ppd.assign(reinterpret_cast<const char *>(data), size);
    job.options = options;
    job.document = document;
    RunInProcess(job);

    for (const char *name : {"OVPrinterLanguageEncoding", "ColorDevice", "", "A"}) {
        PPDAttributeValue(name);
        CheckIfPPDKeywordSupported(JobPPD(), name, "True");
        PPDHasOption(name);
        float width, length;
        PPDPageSizeInPoints(name, width, length);
    }
    CloseJobPPD();
    return 0;
}
