#include "PSStream.h"

#include "BoundedText.h"
#include "OutputSink.h"
#include "PSDocument.h"
#include "TicketReader.h"

#include <fcntl.h>
#include <unistd.h>

char g_DLOutputMode[kOutputModeSize];

void OutputPSStream(int argc, const char *const *argv)
{
    const bool fromFile = argc != 6;
    const int in = fromFile ? open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    if (in < 0)
        return;
    PSLineReader reader;
    OpenPSLineReader(reader, in, stdout, QBfwrite, nullptr);
    if (CopyPSDocument(reader, argv, nullptr, nullptr))
        QBfputs("\x04", stdout);
    if (fromFile)
        close(in);
}

int GetDLOutputMode(const char *const *argv)
{
    const JobOptions options = OptionsOfJob(argv);
    const char *value = cupsGetOption("OVOutputMode", options.count, options.list);
    if (!value)
        return 0;
    CopyCut(g_DLOutputMode, value);
    return 1;
}
