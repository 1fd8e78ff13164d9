// CommandBuilder: fills one format string with its values.
// Not printf: three control symbols, everything else in the format is copied as it stands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

// Size of a command line, of the working copy of its format and of one value, NUL included.
constexpr size_t kCommandLineSize = 2048;

// Values of one line: one pointer per control symbol, in the order of the symbols.
struct CmdParaTable {
    int32_t count;
    const void *const *list;
};

enum CtrlSymType : uint32_t { CtrlSym_Dec, CtrlSym_Char, CtrlSym_String };

// symbol: the two characters; type: how the parameter is read and inserted.
struct CtrlSymEntry {
    const char *symbol;
    uint32_t type;
};

inline constexpr CtrlSymEntry ctrlSymTalbe[] = {
    {"%d", CtrlSym_Dec},
    {"%c", CtrlSym_Char},
    {"%s", CtrlSym_String},
};
inline constexpr int32_t CtrlSymNum = std::size(ctrlSymTalbe);

// Returns 1 when `pair` is a control symbol, else 0.
int32_t IsCtrlSym(const char *pair);

// Returns the "%" of the first control symbol in `text`, or null.
const char *GetNextCtrlSym(const char *text);

// Formats the parameter of the symbol `pair` into `value`, at most valueSize bytes with its NUL. Returns the length of
// the text, 0 when `pair` is no symbol.
size_t getCtrlSym(const char *pair, const void *parameter, char *value, size_t valueSize);

// Builds the line into `out`, at most outSize bytes with its NUL. A value that is empty ends the line at once: neither
// the text before it (back to the previous value) nor the rest is added.
void BuildPrintComand(const char *format, const CmdParaTable *symPara, char *out, size_t outSize);
