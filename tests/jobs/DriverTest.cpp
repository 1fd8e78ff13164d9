// The driver's contract with the print system: file argument, environment, page log, exit status and job copy.
#include "JobRunner.h"

#include <filesystem>
#include <gtest/gtest.h>

static const std::string document = "%!PS\r\nep\nendp\rshowpage\n ep\nep\nlost",
                         body = "%!PS\r\nep\nendp\rshowpage\n ep\nep\n";
static const std::string trailer = "\x1B%-12345X@PJL EOJ\n";

// Runs a job that must succeed.
static JobResult RunJob(Job job)
{
    job.input = document;
    const JobResult result = RunJobProcess(job);
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.starts_with("\x1B%-12345X@PJL JOB MODE=PRINTER\r\n"));
    return result;
}

// What follows the header.
static std::string Body(const JobResult &result)
{
    static const std::string enter = "@PJL ENTER LANGUAGE=POSTSCRIPT\n";
    return result.output.substr(result.output.find(enter) + enter.size());
}

TEST(Driver, ReadsTheFileNotStandardInput)
{
    const std::string path = TestDirectory() + "/document.ps";
    WriteFile(path, "%!PS from the file\n");
    Job job = {JobArguments("")};
    for (const std::string &file : {path, std::string("/nonexistent/document.ps"), std::string("/")}) {
        job.arguments.resize(5);
        job.arguments.push_back(file);
        const std::string expected = file == path ? "%!PS from the file\n\x04" : file == "/" ? "\x04" : "";
        EXPECT_EQ(Body(RunJob(job)), expected + trailer) << file;
    }
}

TEST(Driver, CompletesAJobWhosePPDCannotBeRead)
{
    const std::string junk = TestDirectory() + "/junk.ppd", empty = TestDirectory() + "/empty.ppd";
    WriteFile(junk, std::string("\0\xFF*Open\n*PPD-Adobe\0:", 20));
    WriteFile(empty, "");
    for (const std::string &ppd : {std::string(), std::string("/nonexistent.ppd"), std::string("/"), junk, empty})
        EXPECT_EQ(Body(RunJob({JobArguments("sides=one-sided"), ppd})), body + "\x04" + trailer) << ppd;
}

TEST(Driver, LogsPagesThatEndWithEp)
{
    const char *const copies[][2] = {{"3", "3"}, {"3\nATTR: x=y", "3"}, {"", ""}};
    for (const auto &[given, logged] : copies)
        EXPECT_EQ(RunJob({{"1", "taro", "Report", given, ""}}).messages,
                  std::string("PAGE:1 ") + logged + "\nPAGE:3 " + logged + "\n");
}

TEST(Driver, KeepsAJobCopyWhenTheFlagFileExists)
{
    namespace fs = std::filesystem;
    const fs::path copies = TestDirectory() + "/100%s";
    fs::create_directory(copies);
    const Job job = {JobArguments(""), "", {"TMPDIR=" + copies.string()}, "", OV_FILTER_JOBCOPY};
    fs::remove(OV_JOBCOPY_FLAG_FILE);
    RunJob(job);
    EXPECT_TRUE(fs::is_empty(copies));

    WriteFile(OV_JOBCOPY_FLAG_FILE, "");
    const JobResult result = RunJob(job);
    fs::remove(OV_JOBCOPY_FLAG_FILE);
    ASSERT_FALSE(fs::is_empty(copies));
    const fs::path copy = *fs::directory_iterator(copies);
    EXPECT_EQ(ReadFile(copy), result.output);
    EXPECT_EQ(static_cast<unsigned>(fs::status(copy).permissions()), 0676u);
    const std::string name = copy.filename();
    EXPECT_TRUE(name.starts_with("wq2") && name.ends_with(".job") && name.size() == 20) << name; // wqYYYYmmddHHMMSS.job
}
