// OutputSink: the way out of every byte of the job, with the optional job copy beside it.
// Write errors are not reported here; the exit status is decided when standard output is flushed at the end.
#pragma once

#include <cstddef>
#include <cstdio>

// The open job copy, or null.
extern FILE *gJobFilefp;

void QBfwrite(const void *buffer, size_t size, size_t count, FILE *stream);
void QBfputs(const char *text, FILE *stream);
void QBfputc(int byte, FILE *stream);

// Writes `text` as it stands; it is never taken for a format.
void QBfprintf(FILE *stream, const char *text);

// Line buffer of the writers that build their lines directly, its NUL included.
constexpr size_t kDirectLineSize = 100;
constexpr size_t kMaxDirectLineSize = 256;

// Formats one line into a buffer of `size` bytes (at most kMaxDirectLineSize), which cuts it to size - 1, and writes
// it.
[[gnu::format(printf, 3, 4)]] void QBfprintfCut(FILE *stream, size_t size, const char *format, ...);
