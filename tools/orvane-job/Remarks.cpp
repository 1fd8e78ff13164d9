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
// does: what that code makes the printer do. without: what it does not do when the document has no such code; null
// where that is no wonder.
struct Echo {
    const char *name, *keyword, *choice, *value, *does, *without;
};
static const Echo echoes[] = {
    {"STAPLE", "OVStaple", "None", "OFF", "not staple", nullptr},
    {"STAPLE", "OVStaple", "SaddleStaple", "OFF", "staple at the fold", nullptr},
    {"STAPLE", "OVStaple", "", "ON", "staple", "staple"},
    {"PUNCH", "OVPunch", "None", "OFF", "not punch", nullptr},
    {"PUNCH", "OVPunch", "", "ON", "punch", "punch"},
    {"DUPLEXTYPE", "Duplex", "None", "SIMPLEX", "print on one side", nullptr},
    {"DUPLEXTYPE", "Duplex", "DuplexNoTumble", "DUPLEX", "print on both sides, turned at the long edge",
     "print on both sides"},
    {"DUPLEXTYPE", "Duplex", "DuplexTumble", "TUMBLE", "print on both sides, turned at the short edge",
     "print on both sides"},
    {"COLORMODE", "OVColorMode", "Color", "COLOR", "print in colour", nullptr},
    {"COLORMODE", "OVColorMode", "Black", "GRAYSCALE", "print in black", nullptr},
};

static const Echo *EchoOf(std::string_view name, std::string_view choice)
{
    for (const Echo &echo : echoes)
        if (name == echo.name && (choice == echo.choice || !*echo.choice))
            return &echo;
    return nullptr;
}

static void CompareWithDocument(Explanation &explanation, std::string_view name, const char *keyword)
{
    const DocumentFacts &document = explanation.job.document;
    const auto line = std::ranges::find_if(explanation.lines, [name](const ExplainedLine &candidate) {
        return candidate.group == kCommentGroup && candidate.name == name;
    });
    if (line == explanation.lines.end() || !explanation.job.entered || document.bytes == 0)
        return;
    const std::string value = line->brief.substr(std::min(name.size() + 1, line->brief.size()));
    const auto doubt = [&](const std::string &code, const std::string &effect) {
        explanation.remarks.push_back("the comment block says " + line->brief + ", but the document" + code + effect);
        line->words += ", says the comment block, but the document decides" + effect;
        line->doubtful = true;
    };
    if (!HasFeature(document, keyword)) {
        for (const Echo &echo : echoes)
            if (name == echo.name && echo.without && value == echo.value && document.duplexCode.empty())
                doubt(" has no code of the option " + std::string(keyword),
                      ": the printer will not " + std::string(echo.without));
        return;
    }
    std::string choices, does;
    for (const auto &[feature, choice] : document.features) {
        if (feature != keyword)
            continue;
        const Echo *echo = EchoOf(name, choice);
        if (!echo || value == echo->value)
            return;
        does = choices.empty() ? ": the printer will " + std::string(echo->does) : "";
        choices += (choices.empty() ? "" : ", ") + choice;
    }
    doubt("'s code, which decides, is " + std::string(keyword) + " " + Readable(choices, true) +
              (value == "TUMBLE" ? " (without OVSignature=None the block says TUMBLE)" : ""),
          does);
}

static void LookAtHold(Explanation &explanation)
{
    std::vector<std::string> &remarks = explanation.remarks;
    const Job &job = explanation.job;
    const std::optional<std::string> hold = ValueOf(explanation, "HOLD");
    const bool isPrivate = ValueOf(explanation, "HOLDTYPE") == "PRIVATE";
    const bool hasKey = ValueOf(explanation, "HOLDENCRYPTKEY") || ValueOf(explanation, "BOXENCRYPTKEY");
    const bool isDelayed = ValueOf(explanation, "@PRTM").has_value();
    const bool hasName = ValueOf(explanation, "USERNAME") || ValueOf(explanation, "JOBNAME");
    const bool isHeaderHere = job.begins && job.entered && job.linesLeftOut == 0;
    const auto isHoldLine = [](const ExplainedLine &line) { return line.group == kHoldGroup; };
    if (hold == "STORE" && !isPrivate)
        remarks.push_back("held, but the printer asks for no password: none came with the job, or it could not be read "
                          "(PrintTypePasswordTicketKey)");
    if (isPrivate && !hasKey)
        remarks.push_back("HOLDTYPE=PRIVATE without a password: nobody can open the job at the printer");
    if (!hold) {
        explanation.hold.brief = "(no HOLD)";
        explanation.hold.words =
            !isHeaderHere ? "whether it is held cannot be told: the job is not all here"
            : isDelayed   ? "not held for anybody: it prints by itself at its time, and nobody is asked for a PIN"
                          : "not held: it prints at once, and nobody is asked for a PIN";
    } else if (std::ranges::none_of(explanation.lines, isHoldLine)) {
        explanation.hold.brief = "(HOLD)";
        explanation.hold.words = "set to a value that this filter never sends";
    }
    if (hold)
        return;
    if (hasKey)
        remarks.push_back("a password, but nothing that holds the job: it is printed at once");
    else if (hasName && isHeaderHere && !isDelayed)
        remarks.push_back("an owner or a list name is given, but nothing holds the job: it prints at once");
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
            remarks.push_back(line.brief + ": " + line.trouble);
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
        remarks.push_back(job.ended
                              ? "no document: the job was cancelled, or its document could not be read"
                              : "the file ends in the middle of the header, before the document (PostScript is never "
                                "entered): capture or send it again");
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
        remarks.push_back(
            "the file ends in the middle of the document (the end-of-job mark, UEL, is missing): capture or "
            "send it again");
    else if (job.entered && !job.document.ends)
        remarks.push_back("no byte 4 after the document: it was cancelled, or another program made it");
    if (job.left && !job.ended)
        remarks.push_back(
            "the file ends before the job does (its last line, \"@PJL EOJ\", is missing or cut): capture or "
            "send it again");
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
    LookAtHold(explanation);
    CompareWithDocument(explanation, "STAPLE", "OVStaple");
    CompareWithDocument(explanation, "PUNCH", "OVPunch");
    CompareWithDocument(explanation, "DUPLEXTYPE", "Duplex");
    CompareWithDocument(explanation, "COLORMODE", "OVColorMode");
    LookForContradictions(explanation, remarks);
    LookAtLines(explanation, remarks);
    explanation.whole = job.begins && job.entered && job.left && job.ended && job.document.ends &&
                        job.bytesBefore == 0 && job.bytesAfter == 0;
}

const char *WholeInWords(const Explanation &explanation)
{
    return explanation.whole ? "a whole job" : "not a whole job of this filter";
}
