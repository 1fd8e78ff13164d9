#include "Report.h"

#include "Readable.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <sys/ioctl.h>
#include <unistd.h>

static constexpr size_t kBriefWidth = 28;
static constexpr size_t kWordsAt = kBriefWidth + 6;
static constexpr size_t kLeastWidth = kWordsAt + 20;
static constexpr size_t kLongestText = 400;
static constexpr size_t kMaxRemarks = 25;

Paper PaperOfStandardOutput()
{
    Paper paper;
    if (!isatty(STDOUT_FILENO))
        return paper;
    struct winsize size = {};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0)
        paper.width = size.ws_col;
    const char *terminal = getenv("TERM");
    const char *noColour = getenv("NO_COLOR");
    paper.hasColour = terminal && std::string_view(terminal) != "dumb" && !(noColour && *noColour);
    return paper;
}

static void PrintColoured(const Paper &paper, const char *colour, std::string_view text)
{
    const int length = static_cast<int>(text.size());
    if (paper.hasColour)
        printf("\x1b[%sm%.*s\x1b[m", colour, length, text.data());
    else
        printf("%.*s", length, text.data());
}

static bool BeginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

// Characters from U+3000 to U+DFFF, East Asian ones, are two columns wide.
static size_t ColumnsOf(char byte)
{
    const unsigned char code = static_cast<unsigned char>(byte);
    return code >= 0xE3 && code <= 0xED ? 2 : BeginsCharacter(byte);
}

static size_t Columns(std::string_view text)
{
    size_t columns = 0;
    for (const char byte : text)
        columns += ColumnsOf(byte);
    return columns;
}

static std::string Shortened(std::string_view text, size_t columns)
{
    if (Columns(text) <= columns)
        return std::string(text);
    size_t length = 0;
    for (size_t seen = 3; seen + ColumnsOf(text[length]) <= columns; length++)
        seen += ColumnsOf(text[length]);
    return std::string(text.substr(0, length)) + "...";
}

// Lines break at blanks; a word that is longer than the line stays in one piece.
static void PrintWrapped(const Paper &paper, std::string_view text, size_t column)
{
    const size_t begin = column;
    const size_t width = paper.width ? std::max(paper.width, kLeastWidth) : 0;
    while (!text.empty()) {
        const size_t length = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, length);
        if (width && column > begin && column + 1 + Columns(word) > width) {
            printf("\n%*s", static_cast<int>(begin), "");
            column = begin;
        } else if (column > begin) {
            putchar(' ');
            column++;
        }
        printf("%.*s", static_cast<int>(word.size()), word.data());
        column += Columns(word);
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    putchar('\n');
}

void PrintHeading(const Paper &paper, std::string_view text)
{
    putchar('\n');
    PrintColoured(paper, "1", text);
    putchar('\n');
}

void PrintEntry(const Paper &paper, char mark, std::string_view brief, std::string_view words)
{
    const std::string shortBrief = Shortened(brief, kBriefWidth);
    printf("%c ", mark);
    PrintColoured(paper, mark == '!' ? "33" : "36", shortBrief);
    printf("%*s", static_cast<int>(kWordsAt - 2 - Columns(shortBrief)), "");
    PrintWrapped(paper, Shortened(words, kLongestText), kWordsAt);
}

static void PrintRemarks(const Paper &paper, const std::vector<std::string> &remarks)
{
    if (remarks.empty())
        return;
    PrintHeading(paper, "Worth a look");
    for (const std::string &remark : std::span(remarks).first(std::min(remarks.size(), kMaxRemarks))) {
        PrintColoured(paper, "1;33", "! ");
        PrintWrapped(paper, Shortened(remark, kLongestText), 2);
    }
    if (remarks.size() > kMaxRemarks)
        printf("  and %zu more\n", remarks.size() - kMaxRemarks);
}

static void PrintLine(const Paper &paper, char mark, const ExplainedLine &line)
{
    PrintEntry(paper, mark, line.brief, line.trouble.empty() ? line.words : line.trouble);
}

static void PrintGroup(const Paper &paper, const std::string &group, const Explanation &explanation)
{
    bool isFirst = group != kHoldGroup;
    if (!isFirst) {
        PrintHeading(paper, group);
        if (!explanation.hold.brief.empty())
            PrintLine(paper, ' ', explanation.hold);
    }
    for (const ExplainedLine &line : explanation.lines) {
        // A line that nothing but its trouble can be said of stands among the remarks.
        if (line.group != group || (group.empty() && line.known))
            continue;
        if (isFirst)
            PrintHeading(paper, group.empty() ? "Not explained" : group);
        isFirst = false;
        const bool isMarked = line.remarkable || line.doubtful || !line.known || !line.trouble.empty();
        PrintLine(paper, isMarked ? '!' : ' ', line);
    }
}

static void PrintFacts(const Paper &paper, const DocumentFacts &facts)
{
    PrintHeading(paper, "Document");
    for (const auto &[name, text] : FactsInWords(facts))
        PrintEntry(paper, ' ', name, Readable(text, true));
}

void PrintExplanation(const Paper &paper, const std::string &name, const Explanation &explanation)
{
    const Job &job = explanation.job;
    PrintColoured(paper, "1", Readable(name, true));
    printf(": %s, %llu bytes\n", WholeInWords(explanation), static_cast<unsigned long long>(job.bytes));
    PrintRemarks(paper, explanation.remarks);
    PrintGroup(paper, "", explanation);
    const std::string *last = nullptr;
    for (const LineMeaning &row : LineMeanings()) {
        if (last && *last == row.group)
            continue;
        last = &row.group;
        PrintGroup(paper, row.group, explanation);
    }
    if (job.entered || job.document.bytes)
        PrintFacts(paper, job.document);
}

void PrintJSON(const std::string &name, const Explanation &explanation)
{
    const auto boolean = [](bool value) { return value ? "true" : "false"; };
    const auto list = [](const auto &items, auto print) {
        const char *separator = "\n    ";
        for (const auto &item : items) {
            fputs(separator, stdout);
            print(item);
            separator = ",\n    ";
        }
    };
    const auto string = [](const std::string &readable) { return JSONString(readable); };
    printf("{\n  \"job\": %s,\n  \"bytes\": %llu,\n  \"whole\": %s,\n  \"remarks\": [",
           string(Readable(name, true)).c_str(), static_cast<unsigned long long>(explanation.job.bytes),
           boolean(explanation.whole));
    list(explanation.remarks, [&](const std::string &remark) { fputs(string(remark).c_str(), stdout); });
    printf("],\n  \"lines\": [");
    list(explanation.lines, [&](const ExplainedLine &line) {
        printf("{\"offset\": %llu, \"group\": %s, \"line\": %s, \"meaning\": %s, \"trouble\": %s, \"known\": %s}",
               static_cast<unsigned long long>(line.offset), string(line.group).c_str(), string(line.brief).c_str(),
               string(line.words).c_str(), string(line.trouble).c_str(), boolean(line.known));
    });
    printf("],\n  \"document\": [");
    list(FactsInWords(explanation.job.document), [&](const std::pair<std::string, std::string> &fact) {
        printf("[%s, %s]", string(fact.first).c_str(), string(Readable(fact.second, true)).c_str());
    });
    printf("]\n}\n");
}

// What makes a line the same as another's: passwords differ by chance from job to job.
static std::string Sense(const ExplainedLine &line)
{
    return line.secret.empty() ? line.brief : line.name + " " + line.secret;
}

// The lines of `one` that `other` has not, each as often as it is missing.
static std::vector<const ExplainedLine *> Missing(const Explanation &one, const Explanation &other)
{
    std::vector<std::string> there;
    for (const ExplainedLine &line : other.lines)
        there.push_back(line.group + Sense(line));
    std::vector<const ExplainedLine *> missing;
    for (const ExplainedLine &line : one.lines) {
        const auto found = std::ranges::find(there, line.group + Sense(line));
        if (found == there.end())
            missing.push_back(&line);
        else
            there.erase(found);
    }
    return missing;
}

// What the document of `one` has that the other's has not.
static std::vector<std::pair<std::string, std::string>> MissingFacts(const Explanation &one, const Explanation &other)
{
    std::vector<std::pair<std::string, std::string>> facts = FactsInWords(one.job.document);
    const auto there = FactsInWords(other.job.document);
    std::erase_if(facts, [&there](const auto &fact) { return std::ranges::find(there, fact) != there.end(); });
    return facts;
}

// Passwords that differ, of which both jobs say the same in words: told once, and taken out of what each side has.
static size_t PrintOtherPasswords(const Paper &paper, std::vector<const ExplainedLine *> &ones,
                                  std::vector<const ExplainedLine *> &others, bool withKey)
{
    return std::erase_if(ones, [&](const ExplainedLine *one) {
        const auto found = std::ranges::find_if(others, [one](const ExplainedLine *other) {
            return !one->secret.empty() && other->name == one->name && other->words == one->words &&
                   other->trouble == one->trouble;
        });
        if (found == others.end())
            return false;
        others.erase(found);
        PrintEntry(paper, '!', one->brief,
                   withKey ? "the two passwords differ" : "the two passwords have different lengths");
        return true;
    });
}

static size_t PrintOneSide(const Paper &paper, char mark, const std::vector<const ExplainedLine *> &lines,
                           const Explanation &one, const Explanation &other)
{
    const auto facts = MissingFacts(one, other);
    for (const ExplainedLine *line : lines)
        PrintLine(paper, mark, *line);
    for (const auto &[name, text] : facts)
        PrintEntry(paper, mark, "document: " + name, Readable(text, true));
    return lines.size() + facts.size();
}

bool PrintDifferences(const Paper &paper, const Explanation &one, const Explanation &other, bool withKey)
{
    auto ones = Missing(one, other), others = Missing(other, one);
    size_t count = PrintOtherPasswords(paper, ones, others, withKey);
    count += PrintOneSide(paper, '<', ones, one, other) + PrintOneSide(paper, '>', others, other, one);
    if (one.job.document.digest != other.job.document.digest) {
        puts("The documents differ.");
        count++;
    }
    count += one.whole != other.whole;
    if (count == 0)
        printf("The jobs say the same%s.\n",
               withKey ? "" : "; without --key, passwords are compared by their length only");
    return count != 0;
}

size_t PrintGains(const Paper &paper, const Explanation &with, const Explanation &without)
{
    const auto lines = Missing(with, without);
    size_t count = lines.size();
    for (const ExplainedLine *line : lines)
        PrintLine(paper, line->trouble.empty() && !line->doubtful ? ' ' : '!', *line);
    for (const ExplainedLine *line : Missing(without, with)) {
        if (std::ranges::any_of(lines, [line](const ExplainedLine *gained) { return gained->name == line->name; }))
            continue;
        PrintEntry(paper, '-', line->brief, "left out because of it");
        count++;
    }
    for (const auto &[name, text] : MissingFacts(with, without)) {
        if (name == "size")
            continue;
        PrintEntry(paper, ' ', name == "feature" ? Readable(text, true) : name,
                   name == "feature" ? "the PPD's code in the document" : Readable(text, true));
        count++;
    }
    return count;
}
