// Commands: what orvane-job is called for, each a function of its arguments, of which the first is its name.
#pragma once

// Exit statuses. Different: the jobs differ, a job was cut, a line has no explanation, or an option is unknown.
constexpr int kFine = 0;
constexpr int kDifferent = 1;
constexpr int kTrouble = 2;
constexpr int kWrongUsage = 3; // becomes kTrouble, with the usage

int ShowCommand(int argc, char **argv);
int DiffCommand(int argc, char **argv);
int PasswordCommand(int argc, char **argv);
int OptionsCommand(int argc, char **argv);
