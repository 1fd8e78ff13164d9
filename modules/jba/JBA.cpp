#include "JBA.h"

#include "JobState.h"
#include "PPDLookup.h"

JBAOptions zpjlOptionJBA;

void JBAInializeDescriptionTableFromFilter()
{
    zpjlOptionJBA = {};
}

void JBAGetTicketFromPDE(const char *const *argv)
{
    const TicketTable common = IsUTF8Mode() ? JBAticketDataCommonForUTF8 : JBAticketDataCommon;
    const TicketTable admin = IsUTF8Mode() ? JBAticketDataAdminForUTF8 : JBAticketDataAdmin;
    GetTicketFromArray(argv, common.data(), JBATicketDataNumCommon);
    GetTicketFromArray(argv, admin.data(), JBATicketDataNumAdmin);
}

void JBAOutputZPJLCommandFromFilter(const char *const *argv)
{
    OutputZPJLCommandFromArray(argv, JBAFmtTableAdmin, JBAFmtTableAdminNum);
    OutputZPJLCommandFromArray(argv, JBAFmtTableCommon, JBAFmtTableCommonNum);
}
