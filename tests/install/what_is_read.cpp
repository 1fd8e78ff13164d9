// Prints what the filter asks CUPS for in a job with an item of each kind of special page, under each of the PPDs that
// the arguments name, and which lines and sizes stand for which choices. On standard error: the jobs are on standard
// output.
#include "FeatureCommands.h"
#include "FilterFrame.h"
#include "PBind.h"

#include <cstdlib>
#include <cups/cups.h>
#include <set>
#include <string>
#include <strings.h>

static std::set<std::string> asked = {KPPDOutputModeKey, KPPDFrameModeKey, KPPDHalfToneKey};

// Is called instead of the library's.
extern "C" const char *cupsGetOption(const char *name, int count, cups_option_t *options)
{
    asked.insert(name);
    for (int i = 0; i < count; i++)
        if (strcasecmp(options[i].name, name) == 0)
            return options[i].value;
    return nullptr;
}

int main(int argc, char **argv)
{
    static const std::string prefix = "com.orvane.dlg.printsettings.ZPIF";
    std::string options = prefix + "CommandTicket0=0";
    for (const char *kind : {"Cover", "Insertion", "Exception"})
        options += " " + prefix + kind + "CountTicket=1 " + prefix + kind + "ValueTicket_0=0";
    const char *job[] = {"pstoorvane", "1", "taro", "Report", "1", options.c_str(), "/dev/null", nullptr};
    for (int i = 1; i < argc; i++) {
        setenv("PPD", argv[i], 1);
        if (FilterMain(7, job) != 0)
            return EXIT_FAILURE;
    }
    for (const std::string &name : asked)
        fprintf(stderr, "option %s\n", name.c_str());
    for (const FeatureCommand &row : FeaturePPDKeyNameandMarkedValuetoPJLCommand)
        fprintf(stderr, "feature %s %s %s", row.keyword, row.value, row.command);
    for (const PBindParam *row = PerfectBindParam; *row->ppdValue; row++)
        fprintf(stderr, "binding %s\n", row->ppdValue);
}
