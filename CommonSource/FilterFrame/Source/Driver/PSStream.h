// PSStream: pass-through. The document goes to the printer unchanged but for the injections at its markers.
#pragma once

#include <cstddef>

// Copies the job's document, from standard input when argc is 6, else from the file argv[6], and ends it with 0x04. A
// file that can't be opened writes nothing; a job cancelled at a page end stops there.
void OutputPSStream(int argc, const char *const *argv);

constexpr size_t kOutputModeSize = 255;
extern char g_DLOutputMode[kOutputModeSize];

// Copies the value of the job option OVOutputMode to g_DLOutputMode. Returns 1, or 0 when the option is absent.
int GetDLOutputMode(const char *const *argv);
