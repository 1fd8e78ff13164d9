// options: what each option of a call gives on a queue. The filter runs on a sample page with all options, and again
// without each of them; what differs is what the option gave.
#include "Commands.h"

#include "FilterFrame.h"
#include "QueuePPD.h"
#include "Readable.h"
#include "Report.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <strings.h>
#include <sys/wait.h>
#include <unistd.h>

static constexpr char kTicketPrefix[] = "com.orvane.dlg.printsettings.";

// A folder of the tool's own, gone with it: whatever the filter leaves in TMPDIR stays in there. Without a path where
// none can be made.
struct Folder {
    std::string path;
    Folder()
    {
        std::error_code error;
        std::string name = (std::filesystem::temp_directory_path(error) / "orvane-job.XXXXXX").string();
        if (!error && mkdtemp(name.data()))
            path = name;
    }
    ~Folder()
    {
        std::error_code ignored;
        if (!path.empty())
            std::filesystem::remove_all(path, ignored);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;
};

struct Call {
    QueuePPD ppd;
    Folder folder;
    const char *text = ""; // of the options
    int count = 0;
    cups_option_t *options = nullptr;
};

// Whether the option stands in the text as the word "no" and its name, by which the filter knows nocollate.
static bool IsNegated(const Call &call, const cups_option_t &option)
{
    return strcmp(option.value, "false") == 0 && strstr(call.text, ("no" + std::string(option.name)).c_str());
}

// The options as CUPS would pass them, without one of them.
static std::string TextWithout(const Call &call, int left)
{
    std::string text;
    for (int i = 0; i < call.count; i++) {
        const cups_option_t &option = call.options[i];
        if (i == left)
            continue;
        text += IsNegated(call, option) ? " no" : " ";
        text += option.name;
        if (IsNegated(call, option))
            continue;
        text += "=\"";
        for (const char character : std::string_view(option.value))
            text.append(character == '"' || character == '\\', '\\').push_back(character);
        text += '"';
    }
    return text;
}

// In a process of its own: the filter's state is that of one job.
static int RunFilter(const Call &call, const std::string &document, const char *text, FILE *out)
{
    fflush(stdout); // or the filter would write it as well
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDERR_FILENO);
        dup2(fileno(out), STDOUT_FILENO);
        setenv("PPD", call.ppd.path.c_str(), 1);
        setenv("TMPDIR", call.folder.path.c_str(), 1);
        const char *const job[] = {"pstoorvane", "1",  "example-user",   "example-title",
                                   "1",          text, document.c_str(), nullptr};
        _exit(FilterMain(7, job));
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child ? status : -1;
}

// left: the option to leave out, or -1. Returns false when the filter could not run.
static bool ExplainCall(const Call &call, int left, Explanation &explanation)
{
    const std::string text = left < 0 ? call.text : TextWithout(call, left);
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.c_str(), 0, &options);
    const std::string path = call.folder.path + "/document.ps";
    FILE *document = fopen(path.c_str(), "wb");
    if (document) {
        WriteSampleDocument(call.ppd, count, options, document);
        fclose(document);
    }
    cupsFreeOptions(count, options);
    FILE *out = tmpfile();
    const bool ran = document && out && RunFilter(call, path, text.c_str(), out) == 0;
    if (ran) {
        rewind(out);
        explanation = ExplainJob(ReadJob(out, nullptr), {});
    }
    if (out)
        fclose(out);
    return ran;
}

// A choice that the PPD does not have, of an option that it has, as it is shown; with the choice that was perhaps
// meant.
static std::string ChoiceTrouble(const Call &call, const cups_option_t &option, const std::string &shown)
{
    for (const QueueOption &known : call.ppd.options) {
        if (strcasecmp(known.keyword.c_str(), option.name) != 0 || known.hasCustomChoice)
            continue;
        for (const std::string &choice : known.choices)
            if (strcasecmp(choice.c_str(), option.value) == 0)
                return {};
        const std::string *nearest = NearestName(option.value, known.choices);
        return "the PPD has no choice " + shown + " of it" + (nearest ? "; did you mean " + *nearest + "?" : "");
    }
    return {};
}

static bool IsQueueOption(const Call &call, const char *name)
{
    return std::ranges::any_of(
        call.ppd.options, [name](const QueueOption &option) { return strcasecmp(option.keyword.c_str(), name) == 0; });
}

// A ticket may be meant without its prefix.
static std::string NearestOption(const Call &call, const std::string &name)
{
    std::vector<std::string> names;
    for (const QueueOption &option : call.ppd.options)
        names.push_back(option.keyword);
    for (const TicketMeaning &ticket : TicketMeanings()) {
        names.push_back(ticket.name);
        if (ticket.name.starts_with(kTicketPrefix))
            names.push_back(ticket.name.substr(strlen(kTicketPrefix)));
    }
    const std::string *nearest = NearestName(name, names);
    if (!nearest)
        return {};
    std::string inFull = kTicketPrefix;
    inFull += *nearest;
    return FindTicketMeaning(inFull) ? inFull : *nearest;
}

// Whether the option, or the one that a wrong name may be meant for, carries a password.
static bool IsSecret(const Call &call, const std::string &name)
{
    if (const TicketMeaning *ticket = FindTicketMeaning(name))
        return ticket->values == "password";
    std::vector<std::string> secrets = call.ppd.secretOptions;
    secrets.emplace_back("job-password");
    if (IsQueueOption(call, name.c_str()))
        return std::ranges::any_of(
            secrets, [&name](const std::string &secret) { return strcasecmp(secret.c_str(), name.c_str()) == 0; });
    const TicketMeaning *meant = FindTicketMeaning(NearestOption(call, name));
    return NearestName(name, secrets) || (meant && meant->values == "password");
}

// Prints why the option changed nothing. Returns whether that is its own fault.
static bool PrintNothing(const Paper &paper, const Call &call, const cups_option_t &option)
{
    if (const TicketMeaning *ticket = FindTicketMeaning(option.name)) {
        PrintEntry(paper, ' ', "nothing", "the job is the same without it");
        PrintEntry(paper, ' ', "values", ticket->values);
        PrintEntry(paper, ' ', "can give", ticket->gives);
        return false;
    }
    if (IsQueueOption(call, option.name)) {
        PrintEntry(paper, ' ', "nothing", "the job is the same without it: it is the PPD's default");
        return false;
    }
    const std::string nearest = NearestOption(call, option.name);
    PrintEntry(paper, '!', "nothing",
               "neither the filter nor the PPD reads such an option" +
                   (nearest.empty() ? "" : "; did you mean " + nearest + "?"));
    return true;
}

int OptionsCommand(int argc, char **argv)
{
    if (argc != 3 || argv[1][0] == '-')
        return kWrongUsage;
    Call call;
    call.text = argv[2];
    call.count = cupsParseOptions(call.text, 0, &call.options);
    Explanation all;
    int status = kFine;
    const Paper paper = PaperOfStandardOutput();
    if (!FindQueuePPD(argv[1], call.ppd)) {
        fprintf(stderr, "orvane-job: %s: no PPD file that can be read, and no queue of that name\n",
                Readable(argv[1], true).c_str());
        status = kTrouble;
    } else if (call.folder.path.empty()) {
        fputs("orvane-job: no folder can be made in TMPDIR\n", stderr);
        status = kTrouble;
    } else if (!ExplainCall(call, -1, all)) {
        fputs("orvane-job: the filter could not run\n", stderr);
        status = kTrouble;
    }
    for (int i = 0; status != kTrouble && i < call.count; i++) {
        const cups_option_t &option = call.options[i];
        Explanation without;
        ExplainCall(call, i, without);
        const std::string value = IsSecret(call, option.name) ? "(secret)" : Readable(option.value, true);
        const std::string name = Readable(option.name, true);
        PrintHeading(paper, IsNegated(call, option) ? "no" + name : name + "=" + value);
        const std::string trouble = ChoiceTrouble(call, option, value);
        if (!trouble.empty())
            PrintEntry(paper, '!', value, trouble);
        if (PrintGains(paper, all, without) == 0 && trouble.empty() && PrintNothing(paper, call, option))
            status = kDifferent;
        if (!trouble.empty())
            status = kDifferent;
    }
    if (call.ppd.isTemporary)
        unlink(call.ppd.path.c_str());
    cupsFreeOptions(call.count, call.options);
    return status;
}
