// Runs one command with its output in a pipe that cat empties into /dev/null, and prints what the command cost:
// wall, user and system seconds, peak memory in KB and exit status. The time runs until cat has ended too.
// usage: measure [-i FILE [-r TIMES]] COMMAND [ARGUMENT ...]
// -i feeds FILE to standard input through a pipe, -r so many times; without it standard input is /dev/null.
// A small program of its own, since a child's peak memory is never less than its parent's when it was started.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

static void Fail(const char *what)
{
    perror(what);
    exit(2);
}

static pid_t Start(char *const *command, int in, int out)
{
    const pid_t pid = fork();
    if (pid < 0)
        Fail("fork");
    if (pid > 0)
        return pid;
    const int null = open("/dev/null", O_RDWR);
    dup2(in < 0 ? null : in, STDIN_FILENO);
    dup2(out < 0 ? null : out, STDOUT_FILENO);
    dup2(null, STDERR_FILENO);
    execvp(command[0], command);
    _exit(127);
}

static void Feed(const char *path, int times, int out)
{
    if (fork() != 0)
        return;
    static char block[1 << 16];
    for (; times > 0; times--) {
        const int file = open(path, O_RDONLY);
        for (ssize_t count; (count = read(file, block, sizeof block)) > 0;)
            for (ssize_t sent = 0, part; sent < count; sent += part)
                if ((part = write(out, block + sent, static_cast<size_t>(count - sent))) <= 0)
                    _exit(1);
        close(file);
    }
    _exit(0);
}

static double Seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

int main(int argc, char **argv)
{
    const char *input = nullptr;
    int times = 1;
    for (int option; (option = getopt(argc, argv, "+i:r:")) != -1;) {
        if (option == 'i')
            input = optarg;
        else if (option == 'r')
            times = atoi(optarg);
        else
            return 2;
    }
    if (optind >= argc)
        return 2;

    int in[2] = {-1, -1}, out[2];
    if ((input && pipe2(in, O_CLOEXEC)) || pipe2(out, O_CLOEXEC))
        Fail("pipe");
    static char cat[] = "cat";
    char *const reader[] = {cat, nullptr};

    const auto begin = std::chrono::steady_clock::now();
    const pid_t command = Start(argv + optind, in[0], out[1]);
    Start(reader, out[0], -1);
    close(out[0]);
    close(out[1]);
    if (input) {
        close(in[0]);
        Feed(input, times, in[1]);
        close(in[1]);
    }
    int status = 0;
    rusage usage = {};
    wait4(command, &status, 0, &usage);
    while (wait(nullptr) > 0)
        continue;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
    printf("%.6f %.6f %.6f %ld %d\n", wall.count(), Seconds(usage.ru_utime), Seconds(usage.ru_stime), usage.ru_maxrss,
           WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
    return 0;
}
