// What about a job is worth a look: what contradicts itself, what is missing, what was cut.
#include "Explanation.h"

#include "Readable.h"

#include <algorithm>
#include <optional>

// The first value that a line of this name sets, when one does.
static std::optional<std::string> ValueOf(const Explanation &explanation, std::string_view name)
{
    for (const ExplainedLine &line : explanation.lines)
        if (line.name == name)
            return line.brief.substr(std::min(name.size() + 1, line.brief.size()));
    return {};
}

// What the comment block says for a choice in the document's feature code; an empty choice stands for every other.
// without: what the printer does not do when the document has no such code; null where that is no wonder.
struct Echo {
    const char *name, *keyword, *choice, *value, *without;
};
static const Echo echoes[] = {
    {"STAPLE", "OVStaple", "None", "OFF", nullptr},
    {"STAPLE", "OVStaple", "SaddleStaple", "OFF", nullptr},
    {"STAPLE", "OVStaple", "", "ON", "staple"},
    {"PUNCH", "OVPunch", "None", "OFF", nullptr},
    {"PUNCH", "OVPunch", "", "ON", "punch"},
    {"DUPLEXTYPE", "Duplex", "None", "SIMPLEX", nullptr},
    {"DUPLEXTYPE", "Duplex", "DuplexNoTumble", "DUPLEX", "print on both sides"},
    {"DUPLEXTYPE", "Duplex", "DuplexTumble", "TUMBLE", "print on both sides"},
    {"COLORMODE", "OVColorMode", "Color", "COLOR", nullptr},
    {"COLORMODE", "OVColorMode", "Black", "GRAYSCALE", nullptr},
};

static const Echo *EchoOf(std::string_view name, std::string_view choice)
{
    for (const Echo &echo : echoes)
        if (name == echo.name && (choice == echo.choice || !*echo.choice))
            return &echo;
    return nullptr;
}

static void CompareWithDocument(const Explanation &explanation, const char *name, const char *keyword,
                                std::vector<std::string> &remarks)
{
    const DocumentFacts &document = explanation.job.document;
    const std::optional<std::string> value = ValueOf(explanation, name);
    if (!value || !explanation.job.entered || explanation.job.document.bytes == 0)
        return;
    const std::string said = "the comment block says " + std::string(name) + "=" + *value;
    if (!HasFeature(document, keyword)) {
        for (const Echo &echo : echoes)
            if (echo.name == std::string_view(name) && echo.without && *value == echo.value &&
                document.duplexCode.empty())
                remarks.push_back(said + ", but the document has no code of the option " + keyword +
                                  ": the printer will not " + echo.without);
        return;
    }
    std::string choices;
    for (const auto &[feature, choice] : document.features) {
        if (feature != keyword)
            continue;
        const Echo *echo = EchoOf(name, choice);
        if (!echo || *value == echo->value)
            return;
        choices += (choices.empty() ? "" : ", ") + choice;
    }
    remarks.push_back(said + ", but the document's code is " + keyword + " " + Readable(choices, true) +
                      (*value == "TUMBLE" ? " (without OVSignature=None the block says TUMBLE)" : ""));
}

static void LookAtHold(const Explanation &explanation, std::vector<std::string> &remarks)
{
    const std::optional<std::string> hold = ValueOf(explanation, "HOLD");
    const bool isPrivate = ValueOf(explanation, "HOLDTYPE") == "PRIVATE";
    const bool hasKey = ValueOf(explanation, "HOLDENCRYPTKEY") || ValueOf(explanation, "BOXENCRYPTKEY");
    if (hold == "STORE" && !isPrivate)
        remarks.push_back("held, but the printer asks for no password: none came with the job, or it could not be read "
                          "(PrintTypePasswordTicketKey)");
    if (isPrivate && !hasKey)
        remarks.push_back("HOLDTYPE=PRIVATE without a password: nobody can open the job at the printer");
    if (!hold && hasKey)
        remarks.push_back("a password, but nothing that holds the job: it is printed at once");
}

// Special pages repeat their lines from item to item.
static void LookForContradictions(const Explanation &explanation, std::vector<std::string> &remarks)
{
    for (const ExplainedLine &line : explanation.lines) {
        if (line.group.empty() || line.group == "Special pages")
            continue;
        const auto other = std::ranges::find_if(explanation.lines, [&line](const ExplainedLine &candidate) {
            return candidate.name == line.name && candidate.group == line.group;
        });
        if (other->offset < line.offset && other->brief != line.brief)
            remarks.push_back("set twice: " + other->brief + " and " + line.brief);
    }
}

static void LookAtLines(const Explanation &explanation, std::vector<std::string> &remarks)
{
    size_t unknown = 0;
    for (const ExplainedLine &line : explanation.lines) {
        unknown += !line.known;
        if (!line.trouble.empty())
            remarks.push_back((line.brief.empty() ? "a line" : line.brief) + ": " + line.trouble);
        else if (line.remarkable)
            remarks.push_back(line.brief + ": " + line.words);
    }
    if (unknown)
        remarks.push_back(std::to_string(unknown) + (unknown == 1 ? " line" : " lines") +
                          " that this filter does not write: see \"Not explained\"");
    if (ValueOf(explanation, "JOB MODE") != "PRINTER")
        remarks.push_back(
            "no \"@PJL JOB MODE=PRINTER\", with which every job of this filter begins: another program's");
}

static void LookAtFrame(const Job &job, std::vector<std::string> &remarks)
{
    const auto bytes = [](uint64_t count) { return std::to_string(count) + (count == 1 ? " byte" : " bytes"); };
    const bool isError = job.before.find("Error") != job.before.npos || job.before.find("ERROR") != job.before.npos;
    if (job.bytesBefore)
        remarks.push_back(bytes(job.bytesBefore) + " in front of the job, which the printer may print: " +
                          Readable(std::string_view(job.before).substr(0, 200), true) +
                          (isError ? " (a password that could not be decrypted or encrypted)" : ""));
    if (!job.begins)
        remarks.push_back("the beginning is missing: no UEL in front of the first line");
    if (!job.entered)
        remarks.push_back(job.ended ? "no document: the job was cancelled, or its document could not be read"
                                    : "cut in the header: PostScript is never entered");
    if (job.reentered)
        remarks.push_back("the document brings a PJL header of its own, which ends this one's settings");
    if (job.strayUEL)
        remarks.push_back("a UEL inside the document, at byte " + std::to_string(job.strayUEL) +
                          ": the printer leaves PostScript there");
    if (job.entered && job.document.bytes == 0)
        remarks.push_back("the document is empty: nothing is printed");
    else if (job.entered && !job.document.isPostScript)
        remarks.push_back("the document does not begin with %!: it may not be PostScript");
    if (job.entered && !job.left)
        remarks.push_back("cut in the document: no UEL after it");
    else if (job.entered && !job.document.ends)
        remarks.push_back("no byte 4 after the document: it was cancelled, or another program made it");
    if (job.left && !job.ended)
        remarks.push_back("the end is missing: no whole line \"@PJL EOJ\"");
    if (job.bytesAfter)
        remarks.push_back(bytes(job.bytesAfter) + " after the end of the job" +
                          (job.anotherFollows ? ", which hold another job" : ""));
    if (job.linesLeftOut)
        remarks.push_back(std::to_string(job.linesLeftOut) + " further lines are not shown");
    if (job.isSpooledCopy)
        remarks.push_back("a job copy of spooled mode: the document stands among the last lines of the header");
}

void AddRemarks(Explanation &explanation)
{
    std::vector<std::string> &remarks = explanation.remarks;
    const Job &job = explanation.job;
    LookAtFrame(job, remarks);
    LookAtHold(explanation, remarks);
    CompareWithDocument(explanation, "STAPLE", "OVStaple", remarks);
    CompareWithDocument(explanation, "PUNCH", "OVPunch", remarks);
    CompareWithDocument(explanation, "DUPLEXTYPE", "Duplex", remarks);
    CompareWithDocument(explanation, "COLORMODE", "OVColorMode", remarks);
    LookForContradictions(explanation, remarks);
    LookAtLines(explanation, remarks);
    explanation.whole = job.begins && job.entered && job.left && job.ended && job.document.ends &&
                        job.bytesBefore == 0 && job.bytesAfter == 0;
}
