// CommandTable: PJL lines as static rows of format, values and conditions, and the walk that writes them.
// A module lists its rows in output order; the walk prints every row whose conditions all hold.
#pragma once

#include "CommandBuilder.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

// Bytes that "%c" parameters point at, and what points at them in most lines.
inline constexpr char CTRLSym_ESC = 0x1B;
inline constexpr char CTRLSym_PERCENTAGE = '%';
inline constexpr char CTRLSym_CR = '\r';
inline constexpr char CTRLSym_LF = '\n';
inline constexpr char CTRLSym_DOUBLE = '"';
inline constexpr const char *Quote = &CTRLSym_DOUBLE;
inline constexpr const char *CR = &CTRLSym_CR;
inline constexpr const char *LF = &CTRLSym_LF;

// Second argument of the tests that have only one.
inline constexpr char OptionNULLStr[1] = "";

// One condition: 1 when it holds, 0 when it doesn't.
using CompareFunc = uint32_t (*)(const void *arg1, const void *arg2);
struct ComparationItem {
    const void *arg1;
    const void *arg2;
    CompareFunc func;
};

struct ComparationTable {
    int32_t count;
    const ComparationItem *list;
};

// prtfmtStr: text with control symbols, of which 2047 bytes are used.
// symPara: its values; null when the format has no control symbol.
// comparation: its conditions, all of which must hold; null when the row is always written.
struct FmtTableRow {
    const char *prtfmtStr;
    const CmdParaTable *symPara;
    const ComparationTable *comparation;
};

uint32_t IntCampareFunc(const void *arg1, const void *arg2);               // two int32 are equal
uint32_t IntNoEqualCampareFunc(const void *arg1, const void *arg2);        // two int32 differ
uint32_t StrEqualCampareFunc(const void *arg1, const void *arg2);          // text equals *arg2
uint32_t StrContainCampareFunc(const void *arg1, const void *arg2);        // text is not empty and contains *arg2
uint32_t StrNotContainCampareFunc(const void *arg1, const void *arg2);     // text is empty or lacks *arg2
uint32_t StrNoNULLCampareFunc(const void *arg1, const void *arg2);         // text is not empty
uint32_t StrIsNULLCampareFunc(const void *arg1, const void *arg2);         // text is empty
uint32_t StrLengthLessThanCampareFunc(const void *arg1, const void *arg2); // strlen of text is below the int32

// Makers of conditions. A text is its buffer; the text it is compared with is a variable that points at a constant.
constexpr ComparationItem Equal(const int32_t &field, const int32_t &value)
{
    return {&field, &value, IntCampareFunc};
}
constexpr ComparationItem NotEqual(const int32_t &field, const int32_t &value)
{
    return {&field, &value, IntNoEqualCampareFunc};
}
constexpr ComparationItem Is(const char *text, const char *const &constant)
{
    return {text, &constant, StrEqualCampareFunc};
}
constexpr ComparationItem Contains(const char *text, const char *const &constant)
{
    return {text, &constant, StrContainCampareFunc};
}
constexpr ComparationItem Lacks(const char *text, const char *const &constant)
{
    return {text, &constant, StrNotContainCampareFunc};
}
constexpr ComparationItem NotEmpty(const char *text)
{
    return {text, OptionNULLStr, StrNoNULLCampareFunc};
}
constexpr ComparationItem Empty(const char *text)
{
    return {text, OptionNULLStr, StrIsNULLCampareFunc};
}
constexpr ComparationItem ShorterThan(const char *text, const int32_t &limit)
{
    return {text, &limit, StrLengthLessThanCampareFunc};
}

// Point a descriptor at its list.
constexpr void InitializeCmdParaTable(CmdParaTable &table, int32_t count, const void *const *list)
{
    table.count = count;
    table.list = list;
}
constexpr void InitializeComparationTable(ComparationTable &table, int32_t count, const ComparationItem *list)
{
    table.count = count;
    table.list = list;
}

// Descriptors of the lists of a line, for its declaration beside them.
template <size_t N> constexpr CmdParaTable Values(const void *const (&list)[N])
{
    CmdParaTable table{};
    InitializeCmdParaTable(table, static_cast<int32_t>(N), list);
    return table;
}
template <size_t N> constexpr ComparationTable Conditions(const ComparationItem (&list)[N])
{
    ComparationTable table{};
    InitializeComparationTable(table, static_cast<int32_t>(N), list);
    return table;
}

// The number of control symbols in a format.
consteval int32_t CountCtrlSym(std::string_view format)
{
    int32_t count = 0;
    for (const CtrlSymEntry &entry : ctrlSymTalbe)
        for (size_t at = format.find(entry.symbol); at != format.npos; at = format.find(entry.symbol, at + 1))
            count++;
    return count;
}

// A row whose format takes every value; one that has more or fewer control symbols than values does not compile. The
// rows that leave values unused are written without it.
consteval FmtTableRow Command(const char *format, const CmdParaTable *symPara, const ComparationTable *comparation)
{
    if (CountCtrlSym(format) != (symPara ? symPara->count : 0))
        throw "a command has one value for each control symbol";
    return {format, symPara, comparation};
}

// Returns 1 when every condition holds, in order and none evaluated after the first that fails; an empty list holds.
uint32_t ConditionCompare(const ComparationTable &comparation);

// Writes the rows whose conditions hold to standard output. `argv` is the job's and not used.
void OutputZPJLCommandFromArray(const char *const *argv, const FmtTableRow *rows, int32_t count);
