// Explanation: a job in words: what each line means, and what about the job is worth a look.
#pragma once

#include "Job.h"
#include "LineMeanings.h"
#include "PasswordBlob.h"

#include <string>
#include <vector>

// How passwords are looked into. key: or null. reveal: show the text of those that it opens.
struct PasswordView {
    evp_pkey_st *key = nullptr;
    bool reveal = false;
};

// Texts are readable. group: of the line's meaning, or empty when the tool knows none. name: what the line sets. brief:
// the line in the short form of docs/lines.md. secret: of a password, what two jobs can be compared by. trouble: what
// is wrong with the line, empty for most. known: false for a line that this filter never writes. remarkable: worth a
// remark of its own. doubtful: the document does something else.
struct ExplainedLine {
    std::string group, name, brief, words, secret, trouble;
    bool known = false;
    bool remarkable = false;
    bool doubtful = false;
    uint64_t offset = 0;
};

struct Explanation {
    Job job;
    bool whole = false;
    std::vector<std::string> remarks; // most telling first
    std::vector<ExplainedLine> lines; // as the job has them
    ExplainedLine hold;               // stands for a missing line that says how the job is held; else without a brief
};

Explanation ExplainJob(Job job, const PasswordView &view);

// "a whole job", or not.
const char *WholeInWords(const Explanation &explanation);

// What is worth a look beyond the lines' own troubles; in Remarks.cpp.
void AddRemarks(Explanation &explanation);
