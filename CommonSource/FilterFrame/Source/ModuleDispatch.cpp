#include "ModuleDispatch.h"

#include "Comment.h"
#include "JBA.h"
#include "PrintType.h"

void InializeDescriptionTableFromFilter()
{
    PrintTypeInializeDescriptionTableFromFilter();
    JBAInializeDescriptionTableFromFilter();
}

int32_t GetTicketFromPDE(const char *const *argv)
{
    PrintTypeGetTicketFromPDE(argv);
    JBAGetTicketFromPDE(argv);
    CommentGetTicketFromPDE(argv);
    return 1;
}

void OutputZPJLCommandFromFilter(const char *const *argv)
{
    PrintTypeOutputZPJLCommandFromFilter(argv);
    JBAOutputZPJLCommandFromFilter(argv);
}

void OutputPSCommandFromFilter(int32_t, int32_t, FILE *) {}
