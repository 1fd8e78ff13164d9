// JobRunner: runs the real filter as CUPS does, a process with arguments, PPD, standard input and pipes.
#pragma once

#include <string>
#include <vector>

struct Job {
    std::vector<std::string> arguments; // after the filter's name
    std::string ppd = {};               // path; empty: PPD is not set
    std::vector<std::string> environment = {};
    std::string input = {};
    std::string filter = OV_FILTER;
};

struct JobResult {
    std::string output;
    std::string messages;
    int status = -1; // exit status, or 128 and the signal that ended the process
};

// job-id user title copies options
std::vector<std::string> JobArguments(const std::string &options, const std::string &user = "taro",
                                      const std::string &title = "Report");

JobResult RunJobProcess(const Job &job);

// A directory of this process's own, removed at its end. It is the jobs' TMPDIR too.
const std::string &TestDirectory();

std::string ReadFile(const std::string &path);
void WriteFile(const std::string &path, const std::string &content);

// The name that the filter sends as the host's.
std::string ExpectedHostName(bool utf8);
