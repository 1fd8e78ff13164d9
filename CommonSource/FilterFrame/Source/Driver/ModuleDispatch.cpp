#include "ModuleDispatch.h"

#include "Comment.h"
#include "Features.h"
#include "JBA.h"
#include "PBind.h"
#include "PrintType.h"
#include "SpecialPage.h"
#include "Watermark.h"

void InializeDescriptionTableFromFilter()
{
    PrintTypeInializeDescriptionTableFromFilter();
    JBAInializeDescriptionTableFromFilter();
    FeaturesInializeDescriptionTableFromFilter();
    SpecialPageInializeDescriptionTable();
}

int32_t GetTicketFromPDE(const char *const *argv)
{
    PrintTypeGetTicketFromPDE(argv);
    JBAGetTicketFromPDE(argv);
    FeaturesGetTicketFromPDE(argv);
    WatermarkGetTicketFromPDE(argv);
    PBindGetTicketFromPDE(argv);
    CommentGetTicketFromPDE(argv);
    SpecialPageGetTicketFromPDE(argv);
    return 1;
}

void OutputZPJLCommandFromFilter(const char *const *argv)
{
    PrintTypeOutputZPJLCommandFromFilter(argv);
    JBAOutputZPJLCommandFromFilter(argv);
    FeaturesOutputZPJLCommandFromFilter(argv);
}

bool HasPSCommandFromFilter(int32_t event)
{
    return WatermarkHasPSCommandFromFilter(event) || FeaturesHasPSCommandFromFilter(event);
}

void OutputPSCommandFromFilter(int32_t event, int32_t pageNumber, FILE *out)
{
    WatermarkOutputPSCommandFromFilter(event, pageNumber, out);
    FeaturesOutputPSCommandFromFilter(event, out);
}
