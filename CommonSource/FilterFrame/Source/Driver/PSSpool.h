// PSSpool: spooled mode. The document waits in a temporary file while its feature code becomes PJL lines of the header.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Path of the spool file.
constexpr size_t kSpoolPathSize = 255;
extern char PPDPJLOutFilePath[kSpoolPathSize];

// Copies the job's document, from the file argv[6] when argc is 7, else from standard input: first into the spool file,
// with the lines for its features going to standard output, then, after the switch to PostScript, to standard output.
// When the input can't be opened, the spool file can't take the whole document or the job is cancelled on the way in,
// neither the switch nor any of the document is written.
void OutputPSStreamtoFileandInsertPJLforFeaturePDE(int argc, const char *const *argv);

// A copy of text[from..to], both included; empty when from is beyond to. Bounds outside the text are taken as its ends.
std::string GetSubString(std::string_view text, ptrdiff_t from, ptrdiff_t to);
