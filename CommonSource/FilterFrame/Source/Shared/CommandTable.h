// CommandTable: PJL lines as static rows of format, values and conditions, and the walk that writes them.
// A module lists its rows in output order; the walk prints every row whose conditions all hold.
#pragma once

#include <cstddef>
#include <cstdint>

// Bytes that "%c" parameters point at.
extern const char CTRLSym_ESC;
extern const char CTRLSym_PERCENTAGE;
extern const char CTRLSym_CR;
extern const char CTRLSym_LF;
extern const char CTRLSym_DOUBLE;

// Second argument of the tests that have only one.
extern const char OptionNULLStr[1];

// Values of one line: one pointer per control symbol, in the order of the symbols.
struct CmdParaTable {
    int32_t count;
    const void *const *list;
};

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

void InitializeCmdParaTable(CmdParaTable &table, int32_t count, const void *const *list);
void InitializeComparationTable(ComparationTable &table, int32_t count, const ComparationItem *list);

// The same with the count taken from the array.
template <size_t N> void InitializeCmdParaTable(CmdParaTable &table, const void *const (&list)[N])
{
    InitializeCmdParaTable(table, static_cast<int32_t>(N), list);
}
template <size_t N> void InitializeComparationTable(ComparationTable &table, const ComparationItem (&list)[N])
{
    InitializeComparationTable(table, static_cast<int32_t>(N), list);
}

// Returns 1 when every condition holds, in order and none evaluated after the first that fails; an empty list holds.
uint32_t ConditionCompare(const ComparationTable &comparation);

// Writes the rows whose conditions hold to standard output. `argv` is the job's and not used.
void OutputZPJLCommandFromArray(const char *const *argv, const FmtTableRow *rows, int32_t count);
