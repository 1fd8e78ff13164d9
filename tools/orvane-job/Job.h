// Job: a captured job, taken apart: the lines of its header and trailer, and the facts of its document.
#pragma once

#include "DocumentFacts.h"

#include <cstdio>
#include <string>
#include <vector>

// A job has less than a hundred lines; more than this many are only counted.
constexpr size_t kMaxLines = 2000;

struct JobLine {
    std::string bytes; // without the UEL before it and its line end
    uint64_t offset;   // in the job
    bool ended;        // with a line feed
};

struct Job {
    uint64_t bytes = 0;
    std::string before; // what stands in front of the job, as far as it fits
    uint64_t bytesBefore = 0;
    std::vector<JobLine> lines;
    uint64_t linesLeftOut = 0;
    DocumentFacts document;
    bool begins = false;    // with a UEL
    bool entered = false;   // PostScript
    bool reentered = false; // PostScript, after a header of the document's own
    bool isSpooledCopy = false;
    bool left = false; // PostScript, by a UEL
    bool ended = false;
    uint64_t strayUEL = 0;   // where the first UEL inside the document stands; 0 for none
    uint64_t bytesAfter = 0; // the job's end
    bool anotherFollows = false;
};

// Reads to the end of the file, and copies the document without its byte 4 to `document` unless that is null.
Job ReadJob(FILE *file, FILE *document);

// What the bytes are when they hold no job; empty for a job.
std::string WhyNoJob(const Job &job);
