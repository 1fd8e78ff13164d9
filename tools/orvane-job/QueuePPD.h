// QueuePPD: what a queue's PPD offers, and the code that it puts into a document.
// The place where the tool calls the PPD library.
#pragma once

#include <cups/cups.h>

#include <cstdio>
#include <string>
#include <vector>

// keyword: without its star. hasCustomChoice: takes values of the user's own.
struct QueueOption {
    std::string keyword;
    std::vector<std::string> choices;
    bool hasCustomChoice;
};

// path: the file. isTemporary: a copy that CUPS made, to be removed after use.
struct QueuePPD {
    std::string path;
    bool isTemporary = false;
    std::vector<QueueOption> options;
    std::vector<std::string> secretOptions; // whose value the PPD's rows make a password of
};

// The PPD of that file or, when there is no such file, of the queue of that name. Returns false when neither is there.
bool FindQueuePPD(const char *queueOrPPD, QueuePPD &ppd);

// Writes a page with the filter's marker lines and the feature code that the options and the PPD's defaults ask for.
void WriteSampleDocument(const QueuePPD &ppd, int optionCount, cups_option_t *options, FILE *out);
