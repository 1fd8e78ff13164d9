#include "QueuePPD.h"

#include <cstring>
#include <cups/ppd.h>
#include <memory>
#include <unistd.h>

// CUPS has no other interface for the PPDs that its queues use.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

struct PPDCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPDFile = std::unique_ptr<ppd_file_t, PPDCloser>;

static void TakeOptions(ppd_file_t *file, QueuePPD &ppd)
{
    for (const ppd_option_t *option = ppdFirstOption(file); option; option = ppdNextOption(file)) {
        ppd.options.push_back({option->keyword, {}, ppdFindCustomOption(file, option->keyword) != nullptr});
        for (int i = 0; i < option->num_choices; i++)
            ppd.options.back().choices.emplace_back(option->choices[i].choice);
    }
    for (const ppd_attr_t *row = ppdFindAttr(file, "OVTicket", nullptr); row;
         row = ppdFindNextAttr(file, "OVTicket", nullptr))
        if (row->value && strstr(row->value, "{password}"))
            ppd.secretOptions.emplace_back(row->spec, strcspn(row->spec, "."));
}

bool FindQueuePPD(const char *queueOrPPD, QueuePPD &ppd)
{
    ppd.path = queueOrPPD;
    if (access(queueOrPPD, F_OK) != 0) {
        const char *copy = cupsGetPPD(queueOrPPD);
        if (!copy)
            return false;
        ppd.path = copy;
        ppd.isTemporary = true;
    }
    const PPDFile file(ppdOpenFile(ppd.path.c_str()));
    if (file)
        TakeOptions(file.get(), ppd);
    return file != nullptr;
}

void WriteSampleDocument(const QueuePPD &ppd, int optionCount, cups_option_t *options, FILE *out)
{
    fputs("%!PS-Adobe-3.0\n%%BeginProlog\n%%EndProlog\n%%BeginSetup\n", out);
    if (const PPDFile file(ppdOpenFile(ppd.path.c_str())); file) {
        ppdMarkDefaults(file.get());
        cupsMarkOptions(file.get(), optionCount, options);
        for (const ppd_section_t section : {PPD_ORDER_PROLOG, PPD_ORDER_DOCUMENT, PPD_ORDER_ANY, PPD_ORDER_PAGE})
            ppdEmit(file.get(), out, section);
    }
    fputs("userdict/setpagedevice{pop}bind put\n%%EndSetup\n%%Page: 1 1\n%%BeginPageSetup\nbp\n%%EndPageSetup\nep\n",
          out);
}
