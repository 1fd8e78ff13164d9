#include "CommandBuilder.h"

#include "BoundedText.h"

#include <cstring>
#include <span>

static const CtrlSymEntry *FindCtrlSym(const char *pair)
{
    for (const CtrlSymEntry &entry : ctrlSymTalbe)
        if (strcmp(pair, entry.symbol) == 0)
            return &entry;
    return nullptr;
}

int32_t IsCtrlSym(const char *pair)
{
    return FindCtrlSym(pair) != nullptr;
}

const char *GetNextCtrlSym(const char *text)
{
    for (const char *percent = strchr(text, '%'); percent; percent = strchr(percent + 1, '%')) {
        const char pair[] = {percent[0], percent[1], '\0'};
        if (IsCtrlSym(pair))
            return percent;
    }
    return nullptr;
}

size_t getCtrlSym(const char *pair, const void *parameter, char *value, size_t valueSize)
{
    const CtrlSymEntry *entry = FindCtrlSym(pair);
    if (!entry)
        return 0;
    const std::span<char> destination(value, valueSize);
    switch (entry->type) {
    case CtrlSym_Dec:
        return FormatCut(destination, "%d", *static_cast<const int32_t *>(parameter));
    case CtrlSym_Char:
        return CopyCut(destination, {static_cast<const char *>(parameter), 1});
    case CtrlSym_String:
        return CopyCut(destination, static_cast<const char *>(parameter));
    default:
        return 0;
    }
}

// Appends what still fits to a line of `length` bytes.
static void Append(char *out, size_t outSize, size_t &length, const char *text)
{
    length += CopyCut({out + length, outSize - length}, text);
}

void BuildPrintComand(const char *format, const CmdParaTable *symPara, char *out, size_t outSize)
{
    if (outSize == 0)
        return;
    char working[kCommandLineSize];
    char value[kCommandLineSize];
    CopyCut(working, format);
    memset(out, 0, outSize);

    size_t length = 0;
    const char *cursor = working;
    for (int32_t index = 0; const char *symbol = GetNextCtrlSym(cursor); index++) {
        const char pair[] = {symbol[0], symbol[1], '\0'};
        working[symbol - working] = '\0';
        if (getCtrlSym(pair, symPara->list[index], value, sizeof value) == 0)
            return;
        Append(out, outSize, length, cursor);
        Append(out, outSize, length, value);
        cursor = symbol + 2;
    }
    Append(out, outSize, length, cursor);
}
