// JobCases: runs the cases of data/jobs/*.jobs, whole jobs with their expected output. CONTRIBUTING.md has the form.

#include "BlobReader.h"
#include "JobRunner.h"
#include "Rows.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>

namespace
{

struct Case {
    std::string name;
    std::string ppd = "none";
    std::string user = "taro";
    std::string title = "Report";
    std::string copies = "1";
    std::string options;
    std::string document;
    bool hasDocument = false;
    std::string expected;
    bool wholeOutput = false;
};

struct CaseFile {
    std::map<std::string, std::string> ppds;
    std::map<std::string, std::string> lines;
    std::string document;
    std::vector<Case> cases;
};

const char requiredPPDHead[] = R"(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
)";

// The text behind "| ", with a line feed unless it ends with a single backslash.
std::string ContentLine(const std::string &line)
{
    std::string text = line.substr(std::min<size_t>(2, line.size()));
    const size_t backslashes = text.size() - (text.find_last_not_of('\\') + 1);
    if (backslashes % 2 == 0)
        return Unescape(text) + "\n";
    text.pop_back();
    return Unescape(text);
}

bool IsContent(const std::string &line)
{
    return line.starts_with("|") || line.starts_with("+ ");
}

// Takes a word of a case; returns the text that content lines behind it belong to.
std::string *TakeCaseWord(Case &job, const std::string &word, const std::string &argument)
{
    static const std::map<std::string, std::string Case::*> texts = {
        {"ppd", &Case::ppd}, {"user", &Case::user}, {"title", &Case::title}, {"copies", &Case::copies}};
    if (texts.contains(word)) {
        job.*texts.at(word) = Unescape(argument);
    } else if (word == "ticket" || word == "option") {
        job.options += (job.options.empty() ? "" : " ") +
                       std::string(word == "ticket" ? "com.orvane.dlg.printsettings." : "") + Unescape(argument);
    } else if (word == "document") {
        job.hasDocument = true;
        return &job.document;
    } else if (word == "header" || word == "output") {
        job.wholeOutput = word == "output";
        return &job.expected;
    } else {
        throw std::runtime_error(job.name + ": unknown word " + word);
    }
    return nullptr;
}

void ReadCases(const std::string &path, CaseFile &file)
{
    std::istringstream text(ReadFile(path));
    std::string *content = nullptr;
    for (std::string line; std::getline(text, line);) {
        if (IsContent(line)) {
            if (!content)
                throw std::runtime_error(path + ": content without a place: " + line);
            *content += line[0] == '|' ? ContentLine(line) : file.lines.at(line.substr(2));
            continue;
        }
        content = nullptr;
        if (line.empty() || line[0] == '#')
            continue;
        const bool defines = text.peek() == '|' || text.peek() == '+';
        const size_t blank = std::min(line.find(' '), line.size());
        const std::string word = line.substr(0, blank);
        const std::string argument = line.substr(std::min(blank + 1, line.size()));
        if (word == "case")
            file.cases.emplace_back().name = argument;
        else if (word == "lines")
            content = &(file.lines[argument] = "");
        else if (word == "ppd" && defines)
            content = &(file.ppds[argument] = "");
        else if (file.cases.empty() && word == "document")
            content = &(file.document = "");
        else
            content = TakeCaseWord(file.cases.at(file.cases.size() - 1), word, argument);
    }
}

std::string PPDPath(const CaseFile &file, const Case &job)
{
    if (job.ppd == "none")
        return "";
    if (job.ppd.starts_with("sample "))
        return OV_SAMPLE_PPDS "/" + job.ppd.substr(7) + ".ppd";
    const std::string path = TestDirectory() + "/" + job.ppd + ".ppd";
    WriteFile(path, requiredPPDHead + file.ppds.at(job.ppd));
    return path;
}

void Replace(std::string &text, const std::string &from, const std::string &to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

// Puts {blob:TEXT} in the place of each encrypted password that the expected text has one for.
void NamePasswords(const std::string &expected, std::string &output)
{
    static const std::string mark = "{blob:";
    size_t from = 0;
    for (size_t at = expected.find(mark); at != std::string::npos; at = expected.find(mark, at + 1)) {
        const size_t lineBegin = expected.rfind('\n', at) + 1;
        const std::string before = expected.substr(lineBegin, at - lineBegin);
        const size_t found = output.find(before, from);
        if (found == std::string::npos)
            return;
        const size_t begin = found + before.size();
        const size_t length = output.find_first_of("\"\r\n", begin) - begin;
        std::string plain;
        if (!OpenPasswordBlob(output.substr(begin, length), plain))
            return;
        const std::string named = mark + plain + "}";
        output.replace(begin, length, named);
        from = begin + named.size();
    }
}

// The first line in which the output differs, and the whole output.
std::string Difference(const std::string &expected, const std::string &output)
{
    std::istringstream expectedLines(Visible(expected)), outputLines(Visible(output));
    std::string expectedLine, outputLine;
    size_t number = 0;
    do {
        number++;
        if (!std::getline(expectedLines, expectedLine))
            expectedLine = "(end)";
        if (!std::getline(outputLines, outputLine))
            outputLine = "(end)";
    } while (expectedLine == outputLine && expectedLine != "(end)");
    return "line " + std::to_string(number) + "\nexpected " + expectedLine + "\ngot      " + outputLine + "\nin\n" +
           Visible(output);
}

class JobCase : public testing::Test
{
  public:
    JobCase(const CaseFile &theFile, const Case &theCase) : file(theFile), job(theCase) {}

    void TestBody() override
    {
        Job process;
        process.arguments = {"1", job.user, job.title, job.copies, job.options};
        process.ppd = PPDPath(file, job);
        process.input = job.hasDocument ? job.document : file.document;
        JobResult result = RunJobProcess(process);

        std::string expected = job.expected;
        if (!job.wholeOutput)
            expected += process.input + file.lines.at("trailer");
        NamePasswords(expected, result.output);
        Replace(expected, "{host}", ExpectedHostName(expected.find("STRINGCODESET=UTF8") != std::string::npos));
        EXPECT_TRUE(expected == result.output) << Difference(expected, result.output);
        EXPECT_EQ(result.status, 0) << result.messages;
    }

  private:
    const CaseFile &file;
    const Case &job;
};

// "stored password, user mode" -> "stored_password_user_mode"
std::string TestName(const std::string &text)
{
    std::string name;
    for (char c : text)
        if (isalnum(static_cast<unsigned char>(c)))
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    return name;
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const std::filesystem::path folder = OV_TEST_DATA "/jobs";
    CaseFile common;
    ReadCases(folder / "common.jobs", common);
    std::map<std::string, CaseFile> files;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().stem();
        if (entry.path().extension() != ".jobs" || name == "common")
            continue;
        CaseFile &file = files[name] = common;
        ReadCases(entry.path(), file);
        for (const Case &job : file.cases)
            testing::RegisterTest(("job_" + name).c_str(), TestName(job.name).c_str(), nullptr, nullptr,
                                  entry.path().c_str(), 1, [&file, &job] { return new JobCase(file, job); });
    }
    return RUN_ALL_TESTS();
}
