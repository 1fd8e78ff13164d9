#include "FilterFrame.h"

#include "BoundedText.h"
#include "JobHeader.h"
#include "JobState.h"
#include "ModuleDispatch.h"
#include "NameValidation.h"
#include "OutputSink.h"
#include "PPDLookup.h"
#include "PSSpool.h"
#include "PSStream.h"
#include "Platform.h"
#include "SystemVersion.h"
#include "TextEncoding.h"
#include "TicketReader.h"
#include "UtilityFunctionFilter.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static const char kUsage[] = "Usage: pstoorvane job-id user title copies options [file]\n";
static const char kHelp[] = "       pstoorvane --version | --help\n"
                            "A CUPS filter: turns PostScript into a PJL job for the queue whose PPD the variable PPD "
                            "names. See pstoorvane(8).\n";
static constexpr size_t kJobCopyPathSize = 1035;
static constexpr size_t kTimestampSize = 64;
static constexpr mode_t kJobCopyMode = 0676;

// Systems after this version give every filter a temporary directory of its own.
static constexpr int32_t kLastVersionWithSharedTemp = 0x109F;

void SignalHandler(int)
{
    CancelJob = 1;
}

void SignalPipeHandler(int)
{
    CancelJobForPipe = 1;
}

// Interrupted reads and writes are taken up again, so that a signal never costs a byte. Who started the filter may have
// blocked the signal.
static void InstallHandler(int sig, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(sig, &action, nullptr);
    sigset_t one;
    sigemptyset(&one);
    sigaddset(&one, sig);
    sigprocmask(SIG_UNBLOCK, &one, nullptr);
}

// A descriptor of ours must never become standard input, output or error.
static void ReserveStandardDescriptors()
{
    int descriptor;
    do
        descriptor = open("/dev/null", O_RDWR);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor > STDERR_FILENO)
        close(descriptor);
}

static void TakeUserName(const char *user)
{
    if (IsUTF8Mode()) {
        ConvertUTF8ToEncodingForUTF8(user, StdUserName, kUserNameSize);
        CopyCut(StdJBAUserName, StdUserName);
    } else {
        ConvertUTF8ToEncoding(user, StdUserName, kUserNameSizeLegacy);
        CopyCut({StdJBAUserName, kJBAUserNameSizeLegacy}, StdUserName);
    }
    InvalidateStdUserName();
}

// A title of several lines is no name; both stay empty.
static void TakeDocumentName(const char *const *argv)
{
    const char *title = argv[3];
    if (strpbrk(title, "\r\n"))
        return;
    if (IsUTF8Mode()) {
        ConvertUTF8ToEncodingForUTF8(title, StdDocumentName, kDocumentNameSize);
        ConvertUTF8ToEncodingForUTF8(title, PTStdDocumentName, kDocumentNameSize);
        InvalidateStdDocumentNameForProductType(argv);
        InvalidatePrintTypeDocumentNameForProductType(argv);
    } else {
        ConvertUTF8ToEncoding(title, StdDocumentName, kDocumentNameSize);
        InvalidateStdDocumentNameForProductType(argv);
    }
}

static void JobCopyPath(char (&path)[kJobCopyPathSize])
{
    const time_t now = time(nullptr);
    struct tm local = {};
    localtime_r(&now, &local);
    char timestamp[kTimestampSize];
    strftime(timestamp, sizeof timestamp, "%Y%m%d%H%M%S", &local);

    int32_t version = 0;
    Gestalt_ALT(kGestaltSystemVersion, &version);
    const char *directory = getenv("TMPDIR");
    if (version > kLastVersionWithSharedTemp && directory)
        FormatCut(path, "%s/wq%s.job", directory, timestamp);
    else
        FormatCut(path, "/private/tmp/ov%s.job", timestamp);
}

// The directory may be shared: a link, a FIFO or somebody else's file under the copy's name is left alone. Another copy
// of the same second gives way, and until this one is finished only its owner reads it.
static FILE *CreateJobCopy(const char *path)
{
    const int file = open(path, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return nullptr;
    struct stat status;
    FILE *copy = nullptr;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink == 1 && status.st_uid == geteuid() &&
        fchmod(file, S_IRUSR | S_IWUSR) == 0 && ftruncate(file, 0) == 0)
        copy = fdopen(file, "wb");
    if (!copy)
        close(file);
    return copy;
}

static void OpenJobCopy()
{
    gJobFilefp = nullptr;
    if (access(OV_JOBCOPY_FLAG_FILE, F_OK) != 0)
        return;
    char path[kJobCopyPathSize];
    JobCopyPath(path);
    gJobFilefp = CreateJobCopy(path);
}

static void CloseJobCopy()
{
    if (!gJobFilefp)
        return;
    fchmod(fileno(gJobFilefp), kJobCopyMode);
    fclose(gJobFilefp);
    gJobFilefp = nullptr;
}

static int RunJob(int argc, const char *const *argv)
{
    ClearJobState();
    InstallHandler(SIGTERM, SignalHandler);
    InstallHandler(SIGPIPE, SignalPipeHandler);
    TakeUserName(argv[2]);
    TakeDocumentName(argv);
    InializeDescriptionTable();
    OpenJobCopy();
    getHostName(HostNameStr);
    setvbuf(stderr, nullptr, _IONBF, 0);
    GetTicketFromPDE(argv);
    OutputZPJLCommand(argv);
    if (IsSpooledMode())
        OutputPSStreamtoFileandInsertPJLforFeaturePDE(argc, argv);
    else
        OutputPSStream(argc, argv);
    OutputZPJLCommandFromArray(argv, prtFmtTableZPJLTrailer, numFmtTableZPJLTrailer);
    CloseJobCopy();
    CloseOptionsOfJob();
    CloseJobPPD();
    fflush(stdout);
    return CancelJobForPipe ? 1 : 0;
}

// No job has a single argument, so none can be taken for one of these.
static bool AnswersWithoutJob(int argc, const char *const *argv)
{
    if (argc != 2)
        return false;
    if (strcmp(argv[1], "--version") == 0)
        puts("pstoorvane " OV_VERSION);
    else if (strcmp(argv[1], "--help") == 0)
        printf("%s%s", kUsage, kHelp);
    else
        return false;
    return true;
}

int FilterMain(int argc, const char *const *argv)
{
    ReserveStandardDescriptors();
    PlatformKeepMemoryPrivate();
    if (AnswersWithoutJob(argc, argv))
        return fflush(stdout) == 0 ? 0 : 1;
    if (argc < 6) {
        fputs(kUsage, stderr);
        return 1;
    }
    return RunJob(argc, argv);
}
