// The modules' command tables, and the lines of their rows as the printer gets them.
#pragma once

#include "CommandBuilder.h"
#include "Features.h"
#include "JBA.h"
#include "PrintType.h"

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

// The line as the printer gets it, with "value" for each text.
static std::string SampleLine(const FmtTableRow &row)
{
    std::string line;
    const void *const *value = row.symPara ? row.symPara->list : nullptr;
    for (const char *c = row.prtfmtStr; *c; c++) {
        const char pair[] = {c[0], c[1], '\0'};
        if (!IsCtrlSym(pair)) {
            line += *c;
            continue;
        }
        line += c[1] == 'c' ? std::string(1, *static_cast<const char *>(*value)) : "value";
        value++;
        c++;
    }
    return line;
}
