// A job in a process that has had another one writes what it would have written in a process of its own.
#include "Features.h"
#include "FilterFrame.h"
#include "JBA.h"
#include "JobHeader.h"
#include "JobState.h"
#include "PrintType.h"
#include "SpecialPage.h"
#include "TestPPD.h"

#include <algorithm>
#include <span>
#include <sstream>
#include <sys/wait.h>
#include <vector>

using Job = std::vector<const char *>; // title, options

// What the last of the jobs writes, and its status.
static std::string OutputOfLast(const std::vector<Job> &jobs)
{
    const TestPPD ppd("*OVPrinterLanguageEncoding: \"SJIS\"\n"); // takes the comment
    const std::string document = ppd.path + ".ps", output = ppd.path + ".job";
    std::ofstream(document) << "%!PS\n%%BeginProlog\n%%EndPageSetup\nep\n%%EndPageSetup\nep\n";
    fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        int status = 0;
        for (const Job &job : jobs) {
            const char *argv[] = {"pstoorvane", "1", "taro", job[0], "1", job[1], document.c_str(), nullptr};
            status = freopen(output.c_str(), "w", stdout) ? FilterMain(7, argv) : 99;
            CancelJob = 1; // as the signals leave them
            CancelJobForPipe = 1;
        }
        _exit(status);
    }
    int status = -1;
    waitpid(child, &status, 0);
    std::ostringstream text;
    text << std::ifstream(output).rdbuf() << "status " << status;
    unlink(document.c_str());
    unlink(output.c_str());
    return text.str();
}

#define T "com.orvane.dlg.printsettings."
#define MARK T "WMARKNameTicket=x " T "WMARKTypeTicket=0 " T "WMARKTextTicket=(x) " T "WMARKOnlyFirstTicket=1 "

TEST(SecondJob, WritesWhatItWouldWriteAlone)
{
    const Job first = {"Report", MARK "collate number-up=2 OVSignature=None OVPBindPosition=BindLeft "
                                      "OVPBindTrimming=3EdgeCutMinimum " T "PrintTypeTicketKey=4 " T
                                      "ZPIFCoverCountTicket=1 " T "JBAUserIDTextEditTicket=x"};
    const Job second = {"two\nlines", MARK "OVPBindPosition=RIGHT OVPBindTrimming=3EdgeCut OVPBindCutPositionFore=9mm"};
    const std::string alone = OutputOfLast({second});
    for (const char *part : {"(x) show", "ISXO=45", "@PJL EOJ\nstatus 0"})
        EXPECT_NE(alone.find(part), alone.npos) << part;
    EXPECT_EQ(OutputOfLast({first, second}), alone);
}

// Every record starts a job empty, also where a ticket or a later dialog forgets a field.
TEST(SecondJob, RecordsStartEmpty)
{
    const std::span<std::byte> records[] = {std::as_writable_bytes(std::span(&zpjlOptionPrintType, 1)),
                                            std::as_writable_bytes(std::span(&zpjlOptionJBA, 1)),
                                            std::as_writable_bytes(std::span(&zpjlOptionFeatures, 1)),
                                            std::as_writable_bytes(std::span(&psOptionSpecialPage, 1))};
    for (const auto record : records)
        std::ranges::fill(record, std::byte{1});
    InializeDescriptionTable();
    for (const auto record : records)
        EXPECT_EQ(std::ranges::count(record, std::byte{0}), std::ssize(record));
}
