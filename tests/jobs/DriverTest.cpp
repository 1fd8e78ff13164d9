// The driver's contract with the print system: arguments, environment, page log, exit status and job copy.

#include "JobRunner.h"

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

static const char document[] = "%!PS\r\nep\nendp\rshowpage\n ep\nep\nlost";
static const char body[] = "%!PS\r\nep\nendp\rshowpage\n ep\nep\n";
static const char enter[] = "@PJL ENTER LANGUAGE=POSTSCRIPT\n";
static const char trailer[] = "\x1B%-12345X@PJL EOJ\n";

// What follows the header.
static std::string Body(const JobResult &result)
{
    const size_t at = result.output.find(enter);
    return at == std::string::npos ? "no header: " + result.output : result.output.substr(at + strlen(enter));
}

TEST(Driver, RefusesACallThatIsNoJob)
{
    for (size_t count = 0; count < 5; count++) {
        Job job;
        job.arguments.resize(count, "x");
        const JobResult result = RunJobProcess(job);
        EXPECT_EQ(result.status, 1) << count;
        EXPECT_EQ(result.output, "") << count;
        EXPECT_EQ(result.messages, "Usage: pstoorvane job-id user title copies options [file]\n") << count;
    }
}

TEST(Driver, ReadsStandardInputOrTheFile)
{
    const std::string path = TestDirectory() + "/document.ps";
    WriteFile(path, "%!PS from the file\n");
    const std::string trailerOnly = trailer;
    const struct {
        const char *file;
        std::string body;
    } cases[] = {
        {nullptr, std::string(body) + "\x04" + trailer},
        {path.c_str(), std::string("%!PS from the file\n\x04") + trailer},
        {"/nonexistent/document.ps", trailer},
        {"/", std::string("\x04") + trailer},
    };
    for (const auto &c : cases) {
        Job job;
        job.arguments = JobArguments("");
        job.input = document;
        if (c.file)
            job.arguments.push_back(c.file);
        const JobResult result = RunJobProcess(job);
        EXPECT_EQ(Body(result), c.body) << (c.file ? c.file : "standard input");
        EXPECT_EQ(result.status, 0);
    }
}

TEST(Driver, CompletesAJobWhosePPDCannotBeRead)
{
    const std::string junk = TestDirectory() + "/junk.ppd", empty = TestDirectory() + "/empty.ppd";
    WriteFile(junk, std::string("\0\xFF*Open\n*PPD-Adobe\0:", 20));
    WriteFile(empty, "");
    for (const std::string &ppd : {std::string(), std::string("/nonexistent.ppd"), std::string("/"), junk, empty}) {
        Job job;
        job.arguments = JobArguments("sides=one-sided");
        job.ppd = ppd;
        job.input = document;
        const JobResult result = RunJobProcess(job);
        EXPECT_TRUE(result.output.starts_with("\x1B%-12345X@PJL JOB MODE=PRINTER\r\n")) << ppd;
        EXPECT_EQ(Body(result), std::string(body) + "\x04" + trailer) << ppd;
        EXPECT_EQ(result.status, 0) << ppd;
    }
}

TEST(Driver, LogsPagesThatEndWithEp)
{
    const struct {
        const char *copies;
        const char *log;
    } cases[] = {
        {"3", "PAGE:1 3\nPAGE:3 3\n"},
        {"3\nATTR: x=y", "PAGE:1 3\nPAGE:3 3\n"},
        {"", "PAGE:1 \nPAGE:3 \n"},
    };
    for (const auto &c : cases) {
        Job job;
        job.arguments = {"1", "taro", "Report", c.copies, ""};
        job.input = document;
        EXPECT_EQ(RunJobProcess(job).messages, c.log);
    }
}

TEST(Driver, KeepsAJobCopyWhenTheFlagFileExists)
{
    namespace fs = std::filesystem;
    const fs::path copies = TestDirectory() + "/100%s";
    fs::create_directory(copies);
    Job job;
    job.filter = OV_FILTER_JOBCOPY;
    job.environment = {"TMPDIR=" + copies.string()};
    job.arguments = JobArguments("");
    job.input = document;

    fs::remove(OV_JOBCOPY_FLAG_FILE);
    RunJobProcess(job);
    EXPECT_TRUE(fs::is_empty(copies));

    WriteFile(OV_JOBCOPY_FLAG_FILE, "");
    const JobResult result = RunJobProcess(job);
    ASSERT_FALSE(fs::is_empty(copies));
    const fs::path copy = *fs::directory_iterator(copies);
    EXPECT_EQ(ReadFile(copy), result.output);
    struct stat status;
    ASSERT_EQ(stat(copy.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0676u);
    const std::string name = copy.filename();
    EXPECT_TRUE(name.starts_with("wq2") && name.ends_with(".job") && name.size() == strlen("wqYYYYmmddHHMMSS.job"))
        << name;
    fs::remove(OV_JOBCOPY_FLAG_FILE);
}
