// InProcess: whole jobs inside the fuzzer's own process, with what every job's output must be like.
#pragma once

#include <string>
#include <string_view>

struct InProcessJob {
    std::string user = "taro";
    std::string title = "Report";
    std::string copies = "1";
    std::string options;
    std::string ppd; // its text
    std::string document;
    bool fromFile = true; // else from standard input
};

// Makes this text the PPD that the filter asks; one that it has asked last is not read again.
void UsePPD(const std::string &text);

// Runs the job and returns what it wrote. A job that was not cancelled has a complete header and trailer.
std::string RunInProcess(const InProcessJob &job);

// Takes a document the way of a job, without header and trailer; returns what arrives of it, the 0x04 included. Each
// PPD is parsed once; `spooled` says whether it asks for that mode.
std::string RunDocument(std::string_view document, const std::string &ppd, bool spooled, bool fromFile);

// Stops the fuzzer: this input is a finding.
void Require(bool holds);

// Takes the text up to the next NUL off the input.
std::string TakeText(std::string_view &input);

// PPDs that choose the mode: even numbers UTF-8, odd ones legacy; the larger ones add what opens further lines.
std::string PPDOfKind(unsigned kind, bool spooled);
