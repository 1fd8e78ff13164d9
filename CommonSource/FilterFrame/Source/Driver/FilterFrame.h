// FilterFrame: one job from its arguments to its exit status.
#pragma once

void SignalHandler(int sig);
void SignalPipeHandler(int sig);

// Runs the job that CUPS describes: job-id user title copies options [file]. Alone, "--version" and "--help" are
// answered on standard output instead. Returns the exit status: 1 when the output pipe broke or the call is no job,
// else 0.
int FilterMain(int argc, const char *const *argv);
