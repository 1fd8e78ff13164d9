// The least that a filter with a PPD costs: links libcups and opens the PPD once.

#include <cstdlib>
#include <cups/ppd.h>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

int main()
{
    const char *path = getenv("PPD");
    ppd_file_t *ppd = path ? ppdOpenFile(path) : nullptr;
    if (!ppd)
        return 1;
    ppdClose(ppd);
    return 0;
}
