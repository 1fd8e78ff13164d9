#include "CommandTable.h"

#include "OutputSink.h"

#include <cstring>

static int32_t Integer(const void *argument)
{
    return *static_cast<const int32_t *>(argument);
}

static const char *Text(const void *argument)
{
    return static_cast<const char *>(argument);
}

static const char *Constant(const void *argument)
{
    return *static_cast<const char *const *>(argument);
}

uint32_t IntCampareFunc(const void *arg1, const void *arg2)
{
    return Integer(arg1) == Integer(arg2);
}

uint32_t IntNoEqualCampareFunc(const void *arg1, const void *arg2)
{
    return Integer(arg1) != Integer(arg2);
}

uint32_t StrEqualCampareFunc(const void *arg1, const void *arg2)
{
    return strcmp(Text(arg1), Constant(arg2)) == 0;
}

uint32_t StrContainCampareFunc(const void *arg1, const void *arg2)
{
    return StrNoNULLCampareFunc(arg1, OptionNULLStr) && strstr(Text(arg1), Constant(arg2));
}

uint32_t StrNotContainCampareFunc(const void *arg1, const void *arg2)
{
    return !StrContainCampareFunc(arg1, arg2);
}

uint32_t StrNoNULLCampareFunc(const void *arg1, const void *)
{
    return arg1 && *Text(arg1);
}

uint32_t StrIsNULLCampareFunc(const void *arg1, const void *arg2)
{
    return !StrNoNULLCampareFunc(arg1, arg2);
}

uint32_t StrLengthLessThanCampareFunc(const void *arg1, const void *arg2)
{
    return static_cast<int64_t>(strlen(Text(arg1))) < Integer(arg2);
}

uint32_t ConditionCompare(const ComparationTable &comparation)
{
    uint32_t holds = 1;
    for (int32_t i = 0; i < comparation.count && holds; i++)
        holds = comparation.list[i].func(comparation.list[i].arg1, comparation.list[i].arg2);
    return holds;
}

void OutputZPJLCommandFromArray(const char *const *, const FmtTableRow *rows, int32_t count)
{
    for (int32_t i = 0; i < count; i++) {
        if (rows[i].comparation && ConditionCompare(*rows[i].comparation) != 1)
            continue;
        char line[kCommandLineSize];
        BuildPrintComand(rows[i].prtfmtStr, rows[i].symPara, line, sizeof line);
        QBfputs(line, stdout);
    }
}
