#include "Booklet.h"

#include "Comment.h"
#include "OutputSink.h"
#include "PPDLookup.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

// Whether the sheet lies across: two or six pages on it turn the pages.
static bool IsSheetLandscape()
{
    if (!*psoptioncomment.numberUp)
        return false;
    const int pages = atoi(psoptioncomment.numberUp);
    const int32_t orientation = psoptioncomment.orientation;
    if (pages == 2 || pages == 6)
        return orientation == 1 || orientation == 6;
    return orientation == 4 || orientation == 5;
}

static void OutputBinding()
{
    const std::string_view volume = psoptioncomment.signatureVolume;
    if (strcmp(psoptioncomment.signature, kChoiceNone) == 0) {
        QBfputs("@PJL SET JOBATTR=\"@DIBB=OFF\"\n", stdout);
        QBfputs("@PJL SET JOBATTR=\"@DIBK=OFF\"\n", stdout);
        return;
    }
    if (strstr(psoptioncomment.signature, "Left"))
        QBfputs("@PJL SET JOBATTR=\"@DIBB=LEFT\"\n", stdout);
    else if (strstr(psoptioncomment.signature, "Right"))
        QBfputs("@PJL SET JOBATTR=\"@DIBB=RIGHT\"\n", stdout);
    if (volume.empty() || volume == kChoiceNone)
        QBfputs("@PJL SET JOBATTR=\"@DIBK=NONEDIVIDE\"\n", stdout);
    else
        QBfputs("@PJL SET JOBATTR=\"@DIBK=MANUALDIVIDE\"\n", stdout);
}

void OutputZPJLCommandforBooklet()
{
    if (!IsUTF8Mode())
        return;
    QBfputs(IsSheetLandscape() ? "@PJL SET JOBATTR=\"@DIND=LANDSCAPE\"\n" : "@PJL SET JOBATTR=\"@DIND=PORTRAIT\"\n",
            stdout);
    if (*psoptioncomment.signature)
        OutputBinding();
}
