#include "Explanation.h"

#include "Readable.h"

#include <algorithm>

static constexpr std::string_view kJobAttribute = "@PJL SET JOBATTR=";
static constexpr std::string_view kSet = "@PJL SET ";
static constexpr std::string_view kComment = "@PJL COMMENT PRINTJOBINFO ";
static constexpr std::string_view kPJL = "@PJL ";
static constexpr char kPasswordVariable[] = "*password*";
static constexpr size_t kLongestFragment = 60;

// A line taken apart, in the job's bytes. brief: name, "=" and value, without quotes.
struct Parts {
    std::string_view name, value;
    std::string brief;
    std::string trouble;
    bool isComment = false;
    bool isQuoted = false;
    bool isCut = false;
};

// Takes the quotes off; says what is wrong with them.
static std::string_view Unquoted(std::string_view text, Parts &parts)
{
    if (!text.starts_with('"'))
        return text;
    parts.isQuoted = true;
    text.remove_prefix(1);
    if (text.ends_with('"'))
        text.remove_suffix(1);
    else
        parts.isCut = true;
    if (parts.isCut)
        parts.trouble = "the line was cut: its text has no closing quote";
    else if (text.find('"') != text.npos)
        parts.trouble = "the text has a quote in it, at which the printer takes it to end";
    return text;
}

static Parts TakeApart(const JobLine &line)
{
    Parts parts;
    std::string_view text = line.bytes;
    if (text.starts_with(kJobAttribute)) {
        text = Unquoted(text.substr(kJobAttribute.size()), parts);
    } else if (text.starts_with(kSet)) {
        const size_t equals = std::min(text.find('='), text.size() - 1);
        parts.name = text.substr(kSet.size(), equals - kSet.size());
        parts.value = Unquoted(text.substr(equals + 1), parts);
        parts.brief = std::string(parts.name) + "=" + std::string(parts.value);
        text = {};
    } else if (text.starts_with(kComment)) {
        parts.isComment = true;
        text.remove_prefix(kComment.size());
    } else if (text.starts_with(kPJL)) {
        text.remove_prefix(kPJL.size());
    } else if (line.ended || !kPJL.starts_with(text)) {
        parts.trouble = "not a line of PJL: a line end in the text before it, or damage";
    }
    if (parts.brief.empty()) {
        const size_t equals = text.find('=');
        parts.name = text.substr(0, equals);
        parts.value = equals == text.npos ? "" : text.substr(equals + 1);
        parts.brief = text;
    }
    if (HasControlCharacter(line.bytes) && parts.trouble.empty())
        parts.trouble = "a control character, which no printer takes in a line";
    const bool holdsNext = !parts.isQuoted && line.bytes.find(kPJL, 1) != std::string::npos;
    if ((!line.ended || holdsNext) && parts.trouble.empty())
        parts.trouble = "the line was cut: it has no line end";
    parts.isCut |= !line.ended;
    return parts;
}

static void ExplainPassword(const Parts &parts, const PasswordView &view, bool isUTF8, ExplainedLine &line)
{
    const Password password = ReadPassword(parts.value, view.key);
    const std::string length = std::to_string(password.text.size()) + " characters";
    const std::string shown = view.reveal ? length + ": " + Readable(password.text, isUTF8) : length;
    line.brief = line.name + "=(secret)";
    line.secret =
        std::to_string(static_cast<int>(password.state)) + " " + std::to_string(password.bytes) + " " + password.text;
    switch (password.state) {
    case PasswordState::Clear:
        line.trouble = "the password goes in clear (" + shown + "): what was given is no stored password";
        break;
    case PasswordState::Damaged:
        line.trouble = "the encrypted password is damaged: its length and its fields do not agree";
        break;
    case PasswordState::Blob:
        line.words += ", encrypted";
        break;
    case PasswordState::Opened:
        line.words += ", encrypted; the key opens it: " + shown;
        break;
    case PasswordState::WrongKey:
        line.trouble = "encrypted for another key than the one given: it does not open";
        break;
    }
    if (password.bytes && !password.isForThisBuild && line.trouble.empty())
        line.trouble = "encrypted for another key than this build's: another filter made it";
}

// A line that the tool cannot name, as it stands.
static std::string Fragment(std::string_view bytes, bool isUTF8)
{
    if (bytes.size() <= kLongestFragment)
        return Readable(bytes, isUTF8);
    bytes = bytes.substr(0, kLongestFragment);
    while (EndsInsideCharacter(bytes, isUTF8))
        bytes.remove_suffix(1);
    return Readable(bytes, isUTF8) + "...";
}

static std::string InWords(const LineMeaning &row, std::string_view value)
{
    std::string words = row.meaning;
    for (size_t at; !row.variable.empty() && (at = words.find(row.variable)) != std::string::npos;)
        words.replace(at, row.variable.size(), value.empty() ? "(nothing)" : value);
    return words;
}

// In spooled mode a document's screen code names attributes of its own: four bytes, a separator, one or two digits.
static bool IsFromDocument(std::string_view brief, const DocumentFacts &document)
{
    const size_t equals = brief.rfind('=');
    if (!brief.starts_with('@') || equals == brief.npos)
        return false;
    const std::string_view name = brief.substr(1, equals - 1), number = brief.substr(equals + 1);
    if (number.empty() || number.size() > 2 || name.size() > 4)
        return false;
    return std::ranges::any_of(document.screenLines, [&](const std::string &line) {
        for (size_t at = line.find(name); at != std::string::npos; at = line.find(name, at + 1))
            if (line.compare(std::min(at + name.size() + 1, line.size()), number.size(), number) == 0)
                return true;
        return line.starts_with(number);
    });
}

static bool IsNameKnown(const Parts &parts)
{
    return std::ranges::any_of(LineMeanings(), [&parts](const LineMeaning &row) {
        return (row.group == kCommentGroup) == parts.isComment && row.before.starts_with(std::string(parts.name) + "=");
    });
}

static ExplainedLine ExplainLine(const JobLine &line, const DocumentFacts &document, bool isUTF8,
                                 const PasswordView &view)
{
    const Parts parts = TakeApart(line);
    const LineMeaning *row = FindLineMeaning(parts.brief, parts.isComment, parts.isCut);
    ExplainedLine explained;
    explained.name = Readable(parts.name, isUTF8);
    explained.brief = Readable(parts.brief, isUTF8);
    explained.trouble = parts.trouble;
    explained.known = row || !parts.trouble.empty();
    explained.offset = line.offset;
    if (!row && parts.trouble.empty() && IsFromDocument(parts.brief, document)) {
        explained.group = kQualityGroup;
        explained.words = "as the document's own screen code says";
        explained.known = true;
        return explained;
    }
    if (!row && !parts.trouble.empty())
        explained.brief = Fragment(line.bytes, isUTF8);
    if (!row) {
        explained.words = !parts.trouble.empty() ? ""
                          : IsNameKnown(parts)   ? "not a value that this filter sends"
                                                 : "not a line that this filter writes";
        return explained;
    }
    std::string_view value = std::string_view(parts.brief).substr(row->before.size());
    value.remove_suffix(value.ends_with(row->after) ? row->after.size() : 0);
    explained.group = row->group;
    explained.words = InWords(*row, Readable(value, isUTF8));
    explained.remarkable = row->remarkable;
    if (row->variable == kPasswordVariable && !parts.isCut)
        ExplainPassword(parts, view, isUTF8, explained);
    else if (row->variable == kPasswordVariable)
        explained.brief = explained.name + "=(cut)";
    else if (explained.trouble.empty() && EndsInsideCharacter(value, isUTF8))
        explained.trouble = "the text was cut inside a character";
    else if (explained.trouble.empty() && row->longest && value.size() >= row->longest)
        explained.trouble = "the text fills its " + std::to_string(row->longest) + " bytes: it may have been cut";
    return explained;
}

// A line that was cut has the next one after it, without a line end between them.
static std::vector<JobLine> Untangled(const std::vector<JobLine> &lines)
{
    std::vector<JobLine> separate;
    for (JobLine line : lines) {
        while (separate.size() < kMaxLines && !TakeApart(line).trouble.empty()) {
            const size_t next = line.bytes.find(kPJL, 1);
            if (next == std::string::npos)
                break;
            separate.push_back({line.bytes.substr(0, next), line.offset, false});
            line = {line.bytes.substr(next), line.offset + next, line.ended};
        }
        separate.push_back(std::move(line));
    }
    return separate;
}

Explanation ExplainJob(Job job, const PasswordView &view)
{
    job.lines = Untangled(job.lines);
    const bool isUTF8 =
        std::ranges::any_of(job.lines, [](const JobLine &line) { return line.bytes == "@PJL SET STRINGCODESET=UTF8"; });
    Explanation explanation;
    for (const JobLine &line : job.lines)
        explanation.lines.push_back(ExplainLine(line, job.document, isUTF8, view));
    explanation.job = std::move(job);
    AddRemarks(explanation);
    return explanation;
}
