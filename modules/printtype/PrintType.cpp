#include "PrintType.h"

#include "PPDLookup.h"

PrintTypeOptions zpjlOptionPrintType;

void PrintTypeInializeDescriptionTableFromFilter()
{
    zpjlOptionPrintType = {};
}

void PrintTypeGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, IsUTF8Mode() ? PrintTypeticketDataForUTF8 : PrintTypeticketData);
}

void PrintTypeOutputZPJLCommandFromFilter(const char *const *argv)
{
    if (IsUTF8Mode() && CheckIfPPDKeywordSupported(JobPPD(), "QBXPrintTypeSettings", "Default04"))
        OutputZPJLCommandFromArray(argv, PrintTypeFmtPartTable, PrintTypeFmtPartTableNum);
    else
        OutputZPJLCommandFromArray(argv, PrintTypeFmtTable, PrintTypeFmtTableNum);
}
