#include "InProcess.h"

#include "FilterFrame.h"
#include "ModuleDispatch.h"
#include "PPDLookup.h"
#include "PSSpool.h"
#include "PSStream.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <map>
#include <sanitizer/lsan_interface.h>
#include <sys/mman.h>
#include <unistd.h>

static const char kUEL[] = "\x1B%-12345X@PJL ";
static const char kEnter[] = "@PJL ENTER LANGUAGE=POSTSCRIPT\n";
static const char kTrailer[] = "\x1B%-12345X@PJL EOJ\n";

// Parsed PPDs that are asked again and again, by their path.
static std::map<std::string, ppd_file_t *> keptPPDs;

// Called instead of the library's, which leaks a few bytes for some PPDs that repeat a keyword. What it allocates is
// not looked at; a suppression by the function's name would need a symbolizer, which machines need not have.
extern "C" ppd_file_t *ppdOpenFile(const char *path)
{
    static const auto open = reinterpret_cast<ppd_file_t *(*)(const char *)>(dlsym(RTLD_NEXT, "ppdOpenFile"));
    const __lsan::ScopedDisabler disabler;
    const auto kept = keptPPDs.find(path);
    if (kept == keptPPDs.end())
        return open(path);
    return kept->second ? kept->second : kept->second = open(path);
}

extern "C" void ppdClose(ppd_file_t *ppd)
{
    static const auto close = reinterpret_cast<void (*)(ppd_file_t *)>(dlsym(RTLD_NEXT, "ppdClose"));
    if (std::ranges::none_of(keptPPDs, [ppd](const auto &kept) { return kept.second == ppd; }))
        close(ppd);
}

void Require(bool holds)
{
    if (!holds)
        abort();
}

std::string TakeText(std::string_view &input)
{
    const size_t length = std::min(input.find('\0'), input.size());
    const std::string text(input.substr(0, length));
    input.remove_prefix(std::min(length + 1, input.size()));
    return text;
}

std::string PPDOfKind(unsigned kind, bool spooled)
{
    std::string text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
                       "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n";
    if (kind % 2 == 0)
        text += "*OVPrinterLanguageEncoding: \"UTF-8\"\n";
    if (kind & 2)
        text += "*ColorDevice: True\n*OpenUI *OVColorMode/Colour: PickOne\n*DefaultOVColorMode: Color\n"
                "*OVColorMode Color/Colour: \"\"\n*OVColorMode Black/Black: \"\"\n*CloseUI: *OVColorMode\n";
    else
        text += "*ColorDevice: False\n";
    if (kind & 4)
        text += "*CommentOn: \"True\"\n*PCFileName: \"TEST.PPD\"\n*QBXPrintTypeSettings: \"Default04\"\n"
                "*OVWatermarkMethod: \"EndPage\"\n*OVPageLogMethod: \"PageComments\"\n";
    if (kind & 8)
        text += "*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n*PageSize A4/A4: \"\"\n*PageSize A3/A3: \"\"\n"
                "*CloseUI: *PageSize\n*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n"
                "*PaperDimension A3/A3: \"842 1191\"\n";
    if (spooled)
        text += "*OVPSDecompMode: \"1\"\n";
    return text;
}

// An anonymous file that is filled anew for every job.
static int FileOf(const char *name, std::string_view content, int &file)
{
    if (file < 0)
        file = memfd_create(name, 0);
    Require(file >= 0 && ftruncate(file, 0) == 0 && lseek(file, 0, SEEK_SET) == 0);
    Require(write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()));
    Require(lseek(file, 0, SEEK_SET) == 0);
    return file;
}

static std::string PathOf(int file)
{
    return "/proc/self/fd/" + std::to_string(file);
}

void UsePPD(const std::string &text)
{
    static int ppd = -1;
    static std::string used;
    if (used == text)
        return;
    used = text;
    CloseJobPPD();
    FileOf("ppd", text, ppd);
    setenv("PPD", PathOf(ppd).c_str(), 1);
}

static void TakeStandardOutput()
{
    const int file = memfd_create("output", 0);
    Require(file >= 0 && dup2(file, STDOUT_FILENO) == STDOUT_FILENO);
    close(file);
}

static std::string ReadOutput()
{
    const off_t size = lseek(STDOUT_FILENO, 0, SEEK_CUR);
    std::string output(static_cast<size_t>(size), '\0');
    Require(pread(STDOUT_FILENO, output.data(), output.size(), 0) == size);
    Require(ftruncate(STDOUT_FILENO, 0) == 0 && lseek(STDOUT_FILENO, 0, SEEK_SET) == 0);
    return output;
}

// The document's file; standard input reads it unless the job gives its path.
static int DocumentFile(std::string_view content, bool fromFile)
{
    static int document = -1;
    static const bool taken = (TakeStandardOutput(), true);
    Require(taken);
    FileOf("document", content, document);
    if (!fromFile)
        Require(dup2(document, STDIN_FILENO) == STDIN_FILENO);
    return document;
}

std::string RunInProcess(const InProcessJob &job)
{
    UsePPD(job.ppd);
    const std::string path = PathOf(DocumentFile(job.document, job.fromFile));
    const char *const argv[] = {
        "pstoorvane",        "1",          job.user.c_str(), job.title.c_str(), job.copies.c_str(),
        job.options.c_str(), path.c_str(), nullptr};
    Require(FilterMain(job.fromFile ? 7 : 6, argv) == 0);

    // The crypto's messages may come first.
    std::string output = ReadOutput();
    const size_t begin = output.find(kUEL);
    Require(begin == 0 || (begin != std::string::npos && output.find("rror") < begin) ||
            (begin != std::string::npos && output.find("ERROR") < begin));
    Require(output.find("@PJL JOB MODE=PRINTER\r\n") != std::string::npos);
    Require(output.ends_with(kTrailer));
    return output;
}

std::string RunDocument(std::string_view document, const std::string &ppd, bool spooled, bool fromFile)
{
    static std::map<std::string, int> files;
    auto [file, isNew] = files.try_emplace(ppd, -1);
    if (isNew)
        keptPPDs[PathOf(FileOf("ppd", ppd, file->second))];
    setenv("PPD", PathOf(file->second).c_str(), 1);
    const std::string path = PathOf(DocumentFile(document, fromFile));
    const char *const argv[] = {"pstoorvane", "1", "taro", "Report", "1", "", path.c_str(), nullptr};
    // Without tickets nothing is injected; what is absent has to be read once, too.
    static const bool read = (GetTicketFromPDE(argv), true);
    Require(read);
    (spooled ? OutputPSStreamtoFileandInsertPJLforFeaturePDE : OutputPSStream)(fromFile ? 7 : 6, argv);
    fflush(stdout);
    std::string output = ReadOutput();
    // Feature code becomes lines before the switch to PostScript, but never the switch.
    if (spooled)
        output.erase(0, output.find(kEnter) + sizeof kEnter - 1);
    return output;
}
