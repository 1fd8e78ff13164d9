// show and diff: what one job says, and what differs between two.
#include "Commands.h"
#include "Readable.h"
#include "Report.h"

#include <cerrno>
#include <cstring>
#include <getopt.h>
#include <sys/stat.h>

struct FileCloser {
    void operator()(FILE *file) const { fclose(file); }
};
using File = std::unique_ptr<FILE, FileCloser>;

// name: what the reader calls the job. document: where its PostScript goes, or null.
struct JobArguments {
    PrivateKey key;
    bool reveal = false;
    bool json = false;
    bool check = false;
    const char *document = nullptr;
};

// Returns false, as its callers then do.
static bool Complain(const char *what, const char *why)
{
    fflush(stdout);
    fprintf(stderr, "orvane-job: %s: %s\n", what, why);
    return false;
}

// Returns false after saying what is wrong with them; wrongUsage says whether it was their form.
static bool ReadArguments(int argc, char **argv, JobArguments &arguments, bool &wrongUsage)
{
    static const option options[] = {{"key", required_argument, nullptr, 'k'},
                                     {"reveal", no_argument, nullptr, 'r'},
                                     {"postscript", required_argument, nullptr, 'p'},
                                     {"json", no_argument, nullptr, 'j'},
                                     {"check", no_argument, nullptr, 'c'},
                                     {}};
    for (int option; (option = getopt_long(argc, argv, "", options, nullptr)) != -1;) {
        switch (option) {
        case 'k':
            arguments.key = ReadPrivateKey(optarg);
            if (!arguments.key)
                return Complain(optarg, "not a private RSA key in PEM that can be read");
            break;
        case 'r':
            arguments.reveal = true;
            break;
        case 'p':
            arguments.document = optarg;
            break;
        case 'j':
            arguments.json = true;
            break;
        case 'c':
            arguments.check = true;
            break;
        default:
            wrongUsage = true;
            return false;
        }
    }
    wrongUsage = (arguments.reveal && !arguments.key) || (arguments.json && arguments.check);
    return !wrongUsage;
}

static bool IsSameFile(FILE *file, const char *path)
{
    struct stat one, other;
    return fstat(fileno(file), &one) == 0 && stat(path, &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

// path: null for standard input. Returns whether there is a job to show, after saying why there is none.
static bool Explain(const char *path, const JobArguments &arguments, Explanation &explanation)
{
    const char *name = path ? path : "standard input";
    const File opened(path ? fopen(path, "rb") : nullptr);
    FILE *file = path ? opened.get() : stdin;
    if (!file)
        return Complain(name, strerror(errno));
    File document;
    if (arguments.document) {
        if (IsSameFile(file, arguments.document))
            return Complain(arguments.document, "is the job itself");
        document.reset(fopen(arguments.document, "wb"));
        if (!document)
            return Complain(arguments.document, strerror(errno));
    }
    Job job = ReadJob(file, document.get());
    if (ferror(file))
        return Complain(name, strerror(errno));
    if (document && (ferror(document.get()) || fclose(document.release()) != 0))
        return Complain(arguments.document, "cannot be written");
    if (const std::string why = WhyNoJob(job); !why.empty())
        return Complain(name, why.c_str());
    explanation = ExplainJob(std::move(job), {arguments.key.get(), arguments.reveal});
    return true;
}

// Prints that the job was cut, and the lines that the tool has no words for.
static int Check(const std::string &name, const Explanation &explanation)
{
    const Job &job = explanation.job;
    int status = kFine;
    if (!job.begins || (job.entered && !job.left) || !job.ended) {
        printf("%s: not a whole job: its %s is missing\n", Readable(name, true).c_str(),
               job.begins ? "end" : "beginning");
        status = kDifferent;
    }
    for (const ExplainedLine &line : explanation.lines) {
        if (line.known)
            continue;
        printf("%s: %s\n", line.brief.c_str(), line.words.c_str());
        status = kDifferent;
    }
    return status;
}

int ShowCommand(int argc, char **argv)
{
    JobArguments arguments;
    bool wrongUsage = false;
    if (!ReadArguments(argc, argv, arguments, wrongUsage))
        return wrongUsage ? kWrongUsage : kTrouble;
    if (argc - optind > 1)
        return kWrongUsage;
    const char *path = argv[optind];
    Explanation explanation;
    if (!Explain(path, arguments, explanation))
        return kTrouble;
    const std::string name = path ? path : "standard input";
    if (arguments.check)
        return Check(name, explanation);
    if (arguments.json)
        PrintJSON(name, explanation);
    else
        PrintExplanation(PaperOfStandardOutput(), name, explanation);
    return kFine;
}

int DiffCommand(int argc, char **argv)
{
    JobArguments arguments;
    bool wrongUsage = false;
    if (!ReadArguments(argc, argv, arguments, wrongUsage))
        return wrongUsage ? kWrongUsage : kTrouble;
    if (argc - optind != 2 || arguments.document || arguments.json || arguments.check)
        return kWrongUsage;
    Explanation one, other;
    if (!Explain(argv[optind], arguments, one) || !Explain(argv[optind + 1], arguments, other))
        return kTrouble;
    printf("< %s: %s\n", Readable(argv[optind], true).c_str(), WholeInWords(one));
    printf("> %s: %s\n", Readable(argv[optind + 1], true).c_str(), WholeInWords(other));
    return PrintDifferences(PaperOfStandardOutput(), one, other, arguments.key != nullptr) ? kDifferent : kFine;
}
