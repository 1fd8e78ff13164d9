#include "ModuleDispatch.h"

#include "Comment.h"
#include "Features.h"
#include "JBA.h"
#include "PrintType.h"
#include "Watermark.h"

void InializeDescriptionTableFromFilter()
{
    PrintTypeInializeDescriptionTableFromFilter();
    JBAInializeDescriptionTableFromFilter();
    FeaturesInializeDescriptionTableFromFilter();
}

int32_t GetTicketFromPDE(const char *const *argv)
{
    PrintTypeGetTicketFromPDE(argv);
    JBAGetTicketFromPDE(argv);
    FeaturesGetTicketFromPDE(argv);
    WatermarkGetTicketFromPDE(argv);
    CommentGetTicketFromPDE(argv);
    return 1;
}

void OutputZPJLCommandFromFilter(const char *const *argv)
{
    PrintTypeOutputZPJLCommandFromFilter(argv);
    JBAOutputZPJLCommandFromFilter(argv);
    FeaturesOutputZPJLCommandFromFilter(argv);
}

void OutputPSCommandFromFilter(int32_t event, int32_t pageNumber, FILE *out)
{
    WatermarkOutputPSCommandFromFilter(event, pageNumber, out);
    FeaturesOutputPSCommandFromFilter(event, out);
}
