#include "Features.h"

FeaturesOptions zpjlOptionFeatures;

void FeaturesInializeDescriptionTableFromFilter()
{
    zpjlOptionFeatures = {};
}

void FeaturesGetTicketFromPDE(const char *const *argv)
{
    GetTicketFromArray(argv, FeaturesticketData);
}

void FeaturesOutputZPJLCommandFromFilter(const char *const *argv)
{
    OutputZPJLCommandFromArray(argv, FeaturesFmtTable, FeaturesFmtTableNum);
}
