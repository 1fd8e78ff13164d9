// The modules' command tables, and the lines of their rows as the printer gets them.
#pragma once

#include "CommandBuilder.h"
#include "Features.h"
#include "JBA.h"
#include "PrintType.h"

#include <algorithm>
#include <span>
#include <string>

struct CommandTable {
    const char *name;
    std::span<const FmtTableRow> rows;
};
static const CommandTable tables[] = {
    {"PrintTypeFmtTable", {PrintTypeFmtTable, static_cast<size_t>(PrintTypeFmtTableNum)}},
    {"PrintTypeFmtPartTable", {PrintTypeFmtPartTable, static_cast<size_t>(PrintTypeFmtPartTableNum)}},
    {"JBAFmtTableAdmin", {JBAFmtTableAdmin, static_cast<size_t>(JBAFmtTableAdminNum)}},
    {"JBAFmtTableCommon", {JBAFmtTableCommon, static_cast<size_t>(JBAFmtTableCommonNum)}},
    {"FeaturesFmtTable", {FeaturesFmtTable, static_cast<size_t>(FeaturesFmtTableNum)}},
};

static bool IsControlByte(const void *value)
{
    const void *const bytes[] = {&CTRLSym_ESC, &CTRLSym_PERCENTAGE, &CTRLSym_CR, &CTRLSym_LF, &CTRLSym_DOUBLE};
    return std::ranges::count(bytes, value) != 0;
}

// The line as the printer gets it, with "value" for each text; says what is wrong where a symbol has no fitting value.
static std::string SampleLine(const FmtTableRow &row)
{
    std::string line;
    int32_t symbols = 0;
    for (const char *c = row.prtfmtStr; *c; c++) {
        const char pair[] = {c[0], c[1], '\0'};
        if (!IsCtrlSym(pair)) {
            line += *c;
            continue;
        }
        const void *value = row.symPara->list[symbols++];
        if (!value || IsControlByte(value) != (c[1] == 'c'))
            return "a value that does not fit its symbol";
        line += c[1] == 'c' ? std::string(1, *static_cast<const char *>(value)) : "value";
        c++;
    }
    return line;
}
