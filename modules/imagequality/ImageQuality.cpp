#include "ImageQuality.h"

#include "BoundedText.h"
#include "Comment.h"
#include "OutputSink.h"
#include "PPDLookup.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

// The mode of each choice; the reduction rate 0 follows it. A choice that is not listed has no mode.
struct TonerSaverLine {
    const char *choice;
    const char *line;
};
static const TonerSaverLine tonerSaverLines[] = {
    // Off and on
    {"false", "@PJL SET ECONOMODE=OFF\n"},
    {"true", "@PJL SET ECONOMODE=ON\n"},
    // Levels of the printer
    {"Mode1", "@PJL SET ECONOMODE=MODE1\n"},
    {"Mode2", "@PJL SET ECONOMODE=MODE2\n"},
    {"Mode3", "@PJL SET ECONOMODE=MODE3\n"},
};

// The choice of a rate is a prefix and the number, of which this many characters count.
constexpr size_t kRatePrefixLength = 7;
constexpr size_t kRateNumberLength = 7;
constexpr int kMaxReductionRate = 99;

static void OutputReductionRate()
{
    const std::string_view choice = psoptioncomment.tonerReductionRate;
    if (choice.size() <= kRatePrefixLength)
        return;
    char number[kRateNumberLength + 1];
    CopyCut(number, choice.substr(kRatePrefixLength));
    const int rate = std::clamp(atoi(number), 0, kMaxReductionRate);
    QBfputs(rate > 0 ? "@PJL SET ECONOMODE=ON\n" : "@PJL SET ECONOMODE=OFF\n", stdout);
    QBfprintfCut(stdout, kDirectLineSize, "@PJL SET REDUCTIONRATE=%d\n", rate);
}

void OutputZPJLCommandForTonerSaver()
{
    const std::string_view choice = psoptioncomment.tonerSaver;
    if (choice.empty())
        return;
    if (choice == "UserInput") {
        OutputReductionRate();
        return;
    }
    for (const TonerSaverLine &row : tonerSaverLines)
        if (choice == row.choice)
            QBfputs(row.line, stdout);
    QBfputs("@PJL SET REDUCTIONRATE=0\n", stdout);
}

static void OutputLineWeight()
{
    const std::string_view weight = psoptioncomment.lineWeight;
    if (weight == "Normal") {
        QBfputs("@PJL SET JOBATTR=\"@LWAD=0\"\n", stdout);
        return;
    }
    const size_t digit = weight.find_first_of("0123456789");
    if (digit == weight.npos)
        return;
    // Stronger adjustments make thinner lines.
    if (weight.find("Strongly") != weight.npos)
        QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@LWAD=-%c\"\n", weight[digit]);
    else if (weight.find("Weakly") != weight.npos)
        QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@LWAD=%c\"\n", weight[digit]);
}

static void OutputRenderMode()
{
    switch (ColorOfJob(psoptioncomment.colorMode)) {
    case JobColor::Color:
        QBfputs("@PJL SET RENDERMODE=COLOR\n", stdout);
        break;
    case JobColor::Grayscale:
        QBfputs("@PJL SET RENDERMODE=GRAYSCALE\n", stdout);
        break;
    case JobColor::Unstated:
        break;
    }
}

void OutputZPJLCommandOthers()
{
    OutputLineWeight();
    OutputRenderMode();
}

void OutputZPJLCommandLanguageEncoding()
{
    if (IsUTF8Mode())
        QBfputs("@PJL SET STRINGCODESET=UTF8\n", stdout);
}
