// orvane-job: reads captured jobs, stores passwords and tries options out. orvane-job(1) describes it.
#include "Commands.h"
#include "Readable.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>
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
    "       orvane-job diff [--key FILE [--reveal]] JOB JOB\n"
    "       orvane-job password < PASSWORD\n"
    "       orvane-job options QUEUE-OR-PPD 'OPTIONS'\n"
    "       orvane-job --version | --help\n";

static const char kHelp[] =
    "\n"
    "Explains the jobs that pstoorvane makes. See orvane-job(1).\n"
    "\n"
    "  show               says what a job, or standard input, tells the printer\n"
    "  diff               says what sets two jobs apart\n"
    "  password           prints the form in which a ticket carries the password from standard input\n"
    "  options            says what each option gives on a queue, and which are mistyped\n"
    "\n"
    "  --key FILE         open the passwords with the printer's private RSA key, in PEM\n"
    "  --reveal           show the passwords that the key opens\n"
    "  --postscript FILE  write the document of the job to FILE\n"
    "  --json             print JSON, for scripts\n"
    "  --check            only print whether the job was cut, and the lines without explanation\n"
    "  --version          print the version\n"
    "  --help             print this\n";

static int PrintHelp()
{
    return fputs(kUsage, stdout) < 0 || fputs(kHelp, stdout) < 0;
}

int main(int argc, char **argv)
{
    // A core file would hold passwords.
    const struct rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    int status = kWrongUsage;
    if (argc == 2 && strcmp(argv[1], "--version") == 0)
        status = puts("orvane-job " OV_VERSION) < 0;
    else if (argc == 2 && strcmp(argv[1], "--help") == 0)
        status = PrintHelp();
    else {
        const auto *command = std::ranges::find_if(
            commands, [name = argc > 1 ? argv[1] : ""](const auto &row) { return strcmp(name, row.name) == 0; });
        const bool isKnown = command != std::end(commands);
        if (isKnown)
            status = argc == 3 && strcmp(argv[2], "--help") == 0 ? PrintHelp() : command->run(argc - 1, argv + 1);
        else if (argc > 1)
            fprintf(stderr, "orvane-job: %s: unknown command\n", Readable(argv[1], true).c_str());
        if (status == kWrongUsage)
            fputs(kUsage, stderr);
    }
    if (fflush(stdout) != 0 || ferror(stdout)) {
        fputs("orvane-job: cannot write to standard output\n", stderr);
        return kTrouble;
    }
    return status == kWrongUsage ? kTrouble : status;
}
