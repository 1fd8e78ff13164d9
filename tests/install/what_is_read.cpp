// Prints what the filter asks CUPS for in a job with an item of each kind of special page, under each of the PPDs that
// the arguments name, which lines its tables have, and which lines stand for which choices. On standard error: standard
// output has the jobs.
#include "CommandBuilder.h"
#include "FeatureCommands.h"
#include "Features.h"
#include "FilterFrame.h"
#include "JBA.h"
#include "PBind.h"
#include "PrintType.h"

#include <cstdlib>
#include <cups/cups.h>
#include <set>
#include <span>
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

// Every line of a table, with "value" for each text.
static void PrintLines(std::span<const FmtTableRow> rows)
{
    for (const FmtTableRow &row : rows) {
        std::string line;
        int32_t symbols = 0;
        for (const char *c = row.prtfmtStr; *c; c++) {
            const char pair[] = {c[0], c[1], '\0'};
            if (!IsCtrlSym(pair)) {
                line += *c;
                continue;
            }
            const void *value = row.symPara->list[symbols++];
            line += *++c == 'c' ? std::string(1, *static_cast<const char *>(value)) : "value";
        }
        line.erase(line.find_last_not_of("\r\n") + 1);
        fprintf(stderr, "line %s\n", line.c_str());
    }
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
    PrintLines({PrintTypeFmtTable, static_cast<size_t>(PrintTypeFmtTableNum)});
    PrintLines({PrintTypeFmtPartTable, static_cast<size_t>(PrintTypeFmtPartTableNum)});
    PrintLines({JBAFmtTableAdmin, static_cast<size_t>(JBAFmtTableAdminNum)});
    PrintLines({JBAFmtTableCommon, static_cast<size_t>(JBAFmtTableCommonNum)});
    PrintLines({FeaturesFmtTable, static_cast<size_t>(FeaturesFmtTableNum)});
    for (const FeatureCommand &row : FeaturePPDKeyNameandMarkedValuetoPJLCommand)
        fprintf(stderr, "feature %s %s %s", row.keyword, row.value, row.command);
    for (const PBindParam *row = PerfectBindParam; *row->ppdValue; row++)
        fprintf(stderr, "binding %s\n", row->ppdValue);
}
