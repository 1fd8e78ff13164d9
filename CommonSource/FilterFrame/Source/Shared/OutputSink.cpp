#include "OutputSink.h"

#include "BoundedText.h"

#include <algorithm>
#include <cstdarg>

FILE *gJobFilefp = nullptr;

void QBfwrite(const void *buffer, size_t size, size_t count, FILE *stream)
{
    if (gJobFilefp)
        fwrite(buffer, size, count, gJobFilefp);
    fwrite(buffer, size, count, stream);
}

void QBfputs(const char *text, FILE *stream)
{
    if (gJobFilefp)
        fputs(text, gJobFilefp);
    fputs(text, stream);
}

void QBfputc(int byte, FILE *stream)
{
    if (gJobFilefp)
        fputc(byte, gJobFilefp);
    fputc(byte, stream);
}

void QBfprintf(FILE *stream, const char *text)
{
    if (gJobFilefp)
        fputs(text, gJobFilefp);
    fprintf(stream, "%s", text);
}

void QBfprintfCut(FILE *stream, size_t size, const char *format, ...)
{
    char line[kMaxDirectLineSize] = "";
    va_list arguments;
    va_start(arguments, format);
    FormatCutList({line, std::min(size, sizeof line)}, format, arguments);
    va_end(arguments);
    QBfputs(line, stream);
}
