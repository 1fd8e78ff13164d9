#include "ModuleDispatch.h"

void InializeDescriptionTableFromFilter() {}

int32_t GetTicketFromPDE(const char *const *) {
    return 1;
}

void OutputZPJLCommandFromFilter(const char *const *) {}

void OutputPSCommandFromFilter(int32_t, int32_t, FILE *) {}
