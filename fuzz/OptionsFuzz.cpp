// Options, title and user into the whole header, and into what the modules inject.
// Input: the kind of PPD (one byte), then user, title and copies, each ended by a NUL, then the options.

#include "InProcess.h"

#include <cstddef>
#include <cstdint>

static const char document[] = "%!PS\n%%BeginProlog\n%%EndProlog\n%%EndSetup\nuserdict/setpagedevice{pop}bind put\n"
                               "%%EndPageSetup\nbp\nep\nbp\nendp\nshowpage\n";

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    std::string_view input(reinterpret_cast<const char *>(data) + 1, size - 1);
    InProcessJob job;
    job.ppd = PPDOfKind(data[0], data[0] & 16);
    job.user = TakeText(input);
    job.title = TakeText(input);
    job.copies = TakeText(input);
    job.options = TakeText(input);
    job.document = document;
    Require(RunInProcess(job).find("@PJL ENTER LANGUAGE=POSTSCRIPT\n") != std::string::npos);
    return 0;
}
