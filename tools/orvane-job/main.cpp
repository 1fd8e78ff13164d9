// orvane-job: reads captured jobs, stores passwords and tries options out. orvane-job(1) describes it.
#include "Commands.h"

#include <cstdio>
#include <cstring>
#include <sys/resource.h>

static const struct {
    const char *name;
    int (*run)(int argc, char **argv);
} commands[] = {
    {"show", ShowCommand},
    {"diff", DiffCommand},
    {"password", PasswordCommand},
    {"options", OptionsCommand},
};

static const char kUsage[] =
    "Usage: orvane-job show [--key FILE [--reveal]] [--postscript FILE] [--json | --check] [JOB]\n"
    "       orvane-job diff [--key FILE] JOB JOB\n"
    "       orvane-job password < PASSWORD\n"
    "       orvane-job options QUEUE-OR-PPD 'OPTIONS'\n"
    "       orvane-job --version | --help\n"
    "Explains the jobs that pstoorvane makes. See orvane-job(1).\n";

int main(int argc, char **argv)
{
    // A core file would hold passwords.
    const struct rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    int status = kWrongUsage;
    if (argc == 2 && strcmp(argv[1], "--version") == 0)
        status = puts("orvane-job " OV_VERSION) < 0;
    else if (argc == 2 && strcmp(argv[1], "--help") == 0)
        status = fputs(kUsage, stdout) < 0;
    else {
        for (const auto &command : commands)
            if (argc > 1 && strcmp(argv[1], command.name) == 0)
                status = command.run(argc - 1, argv + 1);
        if (status == kWrongUsage)
            fputs(kUsage, stderr);
    }
    if (fflush(stdout) != 0 || ferror(stdout)) {
        fputs("orvane-job: cannot write to standard output\n", stderr);
        return kTrouble;
    }
    return status == kWrongUsage ? kTrouble : status;
}
