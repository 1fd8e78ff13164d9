#include "JobRunner.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

std::vector<std::string> JobArguments(const std::string &options, const std::string &user, const std::string &title)
{
    return {"1", user, title, "1", options};
}

static std::vector<char *> Pointers(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

[[noreturn]] static void StartFilter(const Job &job, int in, int out, int err)
{
    std::vector<std::string> arguments = {job.filter};
    arguments.insert(arguments.end(), job.arguments.begin(), job.arguments.end());
    // The first setting of a name counts.
    std::vector<std::string> environment = job.environment;
    environment.insert(environment.end(), {"PATH=/usr/bin:/bin", "TMPDIR=" + TestDirectory(), "LANG=C"});
    for (const char *name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS"})
        if (const char *value = getenv(name))
            environment.push_back(std::string(name) + "=" + value);
    if (!job.ppd.empty())
        environment.push_back("PPD=" + job.ppd);

    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    signal(SIGPIPE, SIG_DFL);
    execve(job.filter.c_str(), Pointers(arguments).data(), Pointers(environment).data());
    _exit(126);
}

// Sends the next piece of the input; closes the pipe and returns false when there is none or nobody reads.
static bool Send(int pipe, const std::string &input, size_t &sent)
{
    const size_t piece = std::min<size_t>(input.size() - sent, 4096);
    const ssize_t count = piece ? write(pipe, input.data() + sent, piece) : 0;
    if (count > 0)
        sent += static_cast<size_t>(count);
    if (count > 0 && sent < input.size())
        return true;
    close(pipe);
    return false;
}

// Feeds standard input and collects both outputs at once, so that no pipe can fill up and block the other side.
static void Exchange(const std::string &input, int toFilter, int fromFilter, int messages, JobResult &result)
{
    size_t sent = 0;
    pollfd ends[] = {{toFilter, POLLOUT, 0}, {fromFilter, POLLIN, 0}, {messages, POLLIN, 0}};
    std::string *texts[] = {nullptr, &result.output, &result.messages};
    while (ends[1].fd >= 0 || ends[2].fd >= 0) {
        poll(ends, std::size(ends), -1);
        if (ends[0].fd >= 0 && ends[0].revents && !Send(toFilter, input, sent))
            ends[0].fd = -1;
        for (size_t i : {1u, 2u}) {
            char buffer[65536];
            if (ends[i].fd < 0 || !ends[i].revents)
                continue;
            const ssize_t count = read(ends[i].fd, buffer, sizeof buffer);
            if (count > 0)
                texts[i]->append(buffer, static_cast<size_t>(count));
            else
                ends[i].fd = -1;
        }
    }
    if (ends[0].fd >= 0)
        close(toFilter);
}

JobResult RunJobProcess(const Job &job)
{
    int in[2], out[2], err[2];
    if (pipe(in) || pipe(out) || pipe(err))
        throw std::runtime_error("pipe");
    signal(SIGPIPE, SIG_IGN);
    const pid_t pid = fork();
    if (pid < 0)
        throw std::runtime_error("fork");
    if (pid == 0) {
        for (int end : {in[1], out[0], err[0]})
            close(end);
        StartFilter(job, in[0], out[1], err[1]);
    }
    for (int end : {in[0], out[1], err[1]})
        close(end);
    JobResult result;
    Exchange(job.input, in[1], out[0], err[0], result);
    close(out[0]);
    close(err[0]);
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR)
        continue;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

namespace
{
struct OwnDirectory {
    std::string path = (std::filesystem::temp_directory_path() / "pstoorvane-XXXXXX").string();
    OwnDirectory()
    {
        if (!mkdtemp(path.data()))
            throw std::runtime_error("mkdtemp");
    }
    ~OwnDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};
} // namespace

const std::string &TestDirectory()
{
    static const OwnDirectory directory;
    return directory.path;
}

std::string ReadFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can't read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteFile(const std::string &path, const std::string &content)
{
    std::ofstream file(path, std::ios::binary);
    if (!file.write(content.data(), static_cast<std::streamsize>(content.size())).flush())
        throw std::runtime_error("can't write " + path);
}

std::string ExpectedHostName(bool utf8)
{
    char name[256] = "";
    gethostname(name, sizeof name - 1);
    return std::string(name).substr(0, utf8 ? 32 : 96);
}
