#include "FeatureCommands.h"

#include "OutputSink.h"

#include <algorithm>
#include <iterator>
#include <string_view>

const char KPPDOutputModeKey[] = "OVOutputMode";
const char KPPDFrameModeKey[] = "OVFrameMode";
const char KPPDHalfToneKey[] = "OVHalftone";

static constexpr FeatureCommand featureCommands[] = {
    {"OVSetTrapMode", "False", "@PJL SET JOBATTR=\"@TRAP=OFF\"\n"},
    {"OVSetTrapMode", "True", "@PJL SET JOBATTR=\"@TRAP=ON\"\n"},
    {"OVLetterHeadDuplexMode", "DupAuto", "@PJL SET JOBATTR=\"@DDPM=AUTO\"\n"},
    {"OVLetterHeadDuplexMode", "DupOff", "@PJL SET JOBATTR=\"@DDPM=OFF\"\n"},
    {"OVLetterHeadDuplexMode", "DupOn", "@PJL SET JOBATTR=\"@DDPM=ON\"\n"},
    {"OVGrayBalance", "True", "@PJL SET JOBATTR=\"@GRGU=TEXTGRAPHICS\"\n"},
    {"OVGrayBalance", "False", "@PJL SET JOBATTR=\"@GRGU=OFF\"\n"},
    {"OVOutputMode", "HighSpeed", "@PJL SET BITSPERPIXEL=1\n"},
    {"OVOutputMode", "Standard", "@PJL SET BITSPERPIXEL=8\n"},
    {"OVBrightnes", "Bright5", "@PJL SET JOBATTR=\"@PSBR=5\"\n"},
    {"OVBrightnes", "Bright4", "@PJL SET JOBATTR=\"@PSBR=4\"\n"},
    {"OVBrightnes", "Bright3", "@PJL SET JOBATTR=\"@PSBR=3\"\n"},
    {"OVBrightnes", "Bright2", "@PJL SET JOBATTR=\"@PSBR=2\"\n"},
    {"OVBrightnes", "Bright1", "@PJL SET JOBATTR=\"@PSBR=1\"\n"},
    {"OVBrightnes", "Normal", "@PJL SET JOBATTR=\"@PSBR=0\"\n"},
    {"OVBrightnes", "Dark5", "@PJL SET JOBATTR=\"@PSBR=-5\"\n"},
    {"OVBrightnes", "Dark4", "@PJL SET JOBATTR=\"@PSBR=-4\"\n"},
    {"OVBrightnes", "Dark3", "@PJL SET JOBATTR=\"@PSBR=-3\"\n"},
    {"OVBrightnes", "Dark2", "@PJL SET JOBATTR=\"@PSBR=-2\"\n"},
    {"OVBrightnes", "Dark1", "@PJL SET JOBATTR=\"@PSBR=-1\"\n"},
    {"OVRGBInputProfile", "SRGB", "@PJL SET JOBATTR=\"@RGBP=SRGB\"\n"},
    {"OVRGBInputProfile", "AdobeRGB", "@PJL SET JOBATTR=\"@RGBP=ADOBERGB\"\n"},
    {"OVRGBBCorrection", "Off", "@PJL SET JOBATTR=\"@RGBG=0\"\n"},
    {"OVRGBBCorrection", "Lightest", "@PJL SET JOBATTR=\"@RGBG=10\"\n"},
    {"OVRGBBCorrection", "Light", "@PJL SET JOBATTR=\"@RGBG=14\"\n"},
    {"OVRGBBCorrection", "Standard", "@PJL SET JOBATTR=\"@RGBG=18\"\n"},
    {"OVRGBBCorrection", "Dark", "@PJL SET JOBATTR=\"@RGBG=22\"\n"},
    {"OVRGBBCorrection", "Darkest", "@PJL SET JOBATTR=\"@RGBG=26\"\n"},
    {"Smoothing", "True", "@PJL SET RET=ON\n"},
    {"Smoothing", "False", "@PJL SET RET=OFF\n"},
    {"OVTonerSaver", "False", "@PJL SET ECONOMODE=OFF\n"},
    {"OVTonerSaver", "True", "@PJL SET ECONOMODE=ON\n"},
    {"OVTonerSaver", "Mode1", "@PJL SET ECONOMODE=MODE1\n"},
    {"OVTonerSaver", "Mode2", "@PJL SET ECONOMODE=MODE2\n"},
    {"OVTonerSaver", "Mode3", "@PJL SET ECONOMODE=MODE3\n"},
    {"OVSaveBlankSheet", "False", "@PJL SET JOBATTR=\"@SBKP=OFF\"\n"},
    {"OVSaveBlankSheet", "True", "@PJL SET JOBATTR=\"@SBKP=ON\"\n"},
    {"OVMonochromePriority", "False", "@PJL SET JOBATTR=\"@BSPM=OFF\"\n"},
    {"OVMonochromePriority", "True", "@PJL SET JOBATTR=\"@BSPM=ON\"\n"},
    {"OVColorDensityCyanLow", "-3", "@PJL SET JOBATTR=\"@AJCL=0\"\n"},
    {"OVColorDensityCyanLow", "-2", "@PJL SET JOBATTR=\"@AJCL=1\"\n"},
    {"OVColorDensityCyanLow", "-1", "@PJL SET JOBATTR=\"@AJCL=2\"\n"},
    {"OVColorDensityCyanLow", "0", "@PJL SET JOBATTR=\"@AJCL=3\"\n"},
    {"OVColorDensityCyanLow", "+1", "@PJL SET JOBATTR=\"@AJCL=4\"\n"},
    {"OVColorDensityCyanLow", "+2", "@PJL SET JOBATTR=\"@AJCL=5\"\n"},
    {"OVColorDensityCyanLow", "+3", "@PJL SET JOBATTR=\"@AJCL=6\"\n"},
    {"OVColorDensityCyanMid", "-3", "@PJL SET JOBATTR=\"@AJCM=0\"\n"},
    {"OVColorDensityCyanMid", "-2", "@PJL SET JOBATTR=\"@AJCM=1\"\n"},
    {"OVColorDensityCyanMid", "-1", "@PJL SET JOBATTR=\"@AJCM=2\"\n"},
    {"OVColorDensityCyanMid", "0", "@PJL SET JOBATTR=\"@AJCM=3\"\n"},
    {"OVColorDensityCyanMid", "+1", "@PJL SET JOBATTR=\"@AJCM=4\"\n"},
    {"OVColorDensityCyanMid", "+2", "@PJL SET JOBATTR=\"@AJCM=5\"\n"},
    {"OVColorDensityCyanMid", "+3", "@PJL SET JOBATTR=\"@AJCM=6\"\n"},
    {"OVColorDensityCyanHigh", "-3", "@PJL SET JOBATTR=\"@AJCH=0\"\n"},
    {"OVColorDensityCyanHigh", "-2", "@PJL SET JOBATTR=\"@AJCH=1\"\n"},
    {"OVColorDensityCyanHigh", "-1", "@PJL SET JOBATTR=\"@AJCH=2\"\n"},
    {"OVColorDensityCyanHigh", "0", "@PJL SET JOBATTR=\"@AJCH=3\"\n"},
    {"OVColorDensityCyanHigh", "+1", "@PJL SET JOBATTR=\"@AJCH=4\"\n"},
    {"OVColorDensityCyanHigh", "+2", "@PJL SET JOBATTR=\"@AJCH=5\"\n"},
    {"OVColorDensityCyanHigh", "+3", "@PJL SET JOBATTR=\"@AJCH=6\"\n"},
    {"OVColorDensityMagentaLow", "-3", "@PJL SET JOBATTR=\"@AJML=0\"\n"},
    {"OVColorDensityMagentaLow", "-2", "@PJL SET JOBATTR=\"@AJML=1\"\n"},
    {"OVColorDensityMagentaLow", "-1", "@PJL SET JOBATTR=\"@AJML=2\"\n"},
    {"OVColorDensityMagentaLow", "0", "@PJL SET JOBATTR=\"@AJML=3\"\n"},
    {"OVColorDensityMagentaLow", "+1", "@PJL SET JOBATTR=\"@AJML=4\"\n"},
    {"OVColorDensityMagentaLow", "+2", "@PJL SET JOBATTR=\"@AJML=5\"\n"},
    {"OVColorDensityMagentaLow", "+3", "@PJL SET JOBATTR=\"@AJML=6\"\n"},
    {"OVColorDensityMagentaMid", "-3", "@PJL SET JOBATTR=\"@AJMM=0\"\n"},
    {"OVColorDensityMagentaMid", "-2", "@PJL SET JOBATTR=\"@AJMM=1\"\n"},
    {"OVColorDensityMagentaMid", "-1", "@PJL SET JOBATTR=\"@AJMM=2\"\n"},
    {"OVColorDensityMagentaMid", "0", "@PJL SET JOBATTR=\"@AJMM=3\"\n"},
    {"OVColorDensityMagentaMid", "+1", "@PJL SET JOBATTR=\"@AJMM=4\"\n"},
    {"OVColorDensityMagentaMid", "+2", "@PJL SET JOBATTR=\"@AJMM=5\"\n"},
    {"OVColorDensityMagentaMid", "+3", "@PJL SET JOBATTR=\"@AJMM=6\"\n"},
    {"OVColorDensityMagentaHigh", "-3", "@PJL SET JOBATTR=\"@AJMH=0\"\n"},
    {"OVColorDensityMagentaHigh", "-2", "@PJL SET JOBATTR=\"@AJMH=1\"\n"},
    {"OVColorDensityMagentaHigh", "-1", "@PJL SET JOBATTR=\"@AJMH=2\"\n"},
    {"OVColorDensityMagentaHigh", "0", "@PJL SET JOBATTR=\"@AJMH=3\"\n"},
    {"OVColorDensityMagentaHigh", "+1", "@PJL SET JOBATTR=\"@AJMH=4\"\n"},
    {"OVColorDensityMagentaHigh", "+2", "@PJL SET JOBATTR=\"@AJMH=5\"\n"},
    {"OVColorDensityMagentaHigh", "+3", "@PJL SET JOBATTR=\"@AJMH=6\"\n"},
    {"OVColorDensityYellowLow", "-3", "@PJL SET JOBATTR=\"@AJYL=0\"\n"},
    {"OVColorDensityYellowLow", "-2", "@PJL SET JOBATTR=\"@AJYL=1\"\n"},
    {"OVColorDensityYellowLow", "-1", "@PJL SET JOBATTR=\"@AJYL=2\"\n"},
    {"OVColorDensityYellowLow", "0", "@PJL SET JOBATTR=\"@AJYL=3\"\n"},
    {"OVColorDensityYellowLow", "+1", "@PJL SET JOBATTR=\"@AJYL=4\"\n"},
    {"OVColorDensityYellowLow", "+2", "@PJL SET JOBATTR=\"@AJYL=5\"\n"},
    {"OVColorDensityYellowLow", "+3", "@PJL SET JOBATTR=\"@AJYL=6\"\n"},
    {"OVColorDensityYellowMid", "-3", "@PJL SET JOBATTR=\"@AJYM=0\"\n"},
    {"OVColorDensityYellowMid", "-2", "@PJL SET JOBATTR=\"@AJYM=1\"\n"},
    {"OVColorDensityYellowMid", "-1", "@PJL SET JOBATTR=\"@AJYM=2\"\n"},
    {"OVColorDensityYellowMid", "0", "@PJL SET JOBATTR=\"@AJYM=3\"\n"},
    {"OVColorDensityYellowMid", "+1", "@PJL SET JOBATTR=\"@AJYM=4\"\n"},
    {"OVColorDensityYellowMid", "+2", "@PJL SET JOBATTR=\"@AJYM=5\"\n"},
    {"OVColorDensityYellowMid", "+3", "@PJL SET JOBATTR=\"@AJYM=6\"\n"},
    {"OVColorDensityYellowHigh", "-3", "@PJL SET JOBATTR=\"@AJYH=0\"\n"},
    {"OVColorDensityYellowHigh", "-2", "@PJL SET JOBATTR=\"@AJYH=1\"\n"},
    {"OVColorDensityYellowHigh", "-1", "@PJL SET JOBATTR=\"@AJYH=2\"\n"},
    {"OVColorDensityYellowHigh", "0", "@PJL SET JOBATTR=\"@AJYH=3\"\n"},
    {"OVColorDensityYellowHigh", "+1", "@PJL SET JOBATTR=\"@AJYH=4\"\n"},
    {"OVColorDensityYellowHigh", "+2", "@PJL SET JOBATTR=\"@AJYH=5\"\n"},
    {"OVColorDensityYellowHigh", "+3", "@PJL SET JOBATTR=\"@AJYH=6\"\n"},
    {"OVColorDensityBlackLow", "-3", "@PJL SET JOBATTR=\"@AJKL=0\"\n"},
    {"OVColorDensityBlackLow", "-2", "@PJL SET JOBATTR=\"@AJKL=1\"\n"},
    {"OVColorDensityBlackLow", "-1", "@PJL SET JOBATTR=\"@AJKL=2\"\n"},
    {"OVColorDensityBlackLow", "0", "@PJL SET JOBATTR=\"@AJKL=3\"\n"},
    {"OVColorDensityBlackLow", "+1", "@PJL SET JOBATTR=\"@AJKL=4\"\n"},
    {"OVColorDensityBlackLow", "+2", "@PJL SET JOBATTR=\"@AJKL=5\"\n"},
    {"OVColorDensityBlackLow", "+3", "@PJL SET JOBATTR=\"@AJKL=6\"\n"},
    {"OVColorDensityBlackMid", "-3", "@PJL SET JOBATTR=\"@AJKM=0\"\n"},
    {"OVColorDensityBlackMid", "-2", "@PJL SET JOBATTR=\"@AJKM=1\"\n"},
    {"OVColorDensityBlackMid", "-1", "@PJL SET JOBATTR=\"@AJKM=2\"\n"},
    {"OVColorDensityBlackMid", "0", "@PJL SET JOBATTR=\"@AJKM=3\"\n"},
    {"OVColorDensityBlackMid", "+1", "@PJL SET JOBATTR=\"@AJKM=4\"\n"},
    {"OVColorDensityBlackMid", "+2", "@PJL SET JOBATTR=\"@AJKM=5\"\n"},
    {"OVColorDensityBlackMid", "+3", "@PJL SET JOBATTR=\"@AJKM=6\"\n"},
    {"OVColorDensityBlackHigh", "-3", "@PJL SET JOBATTR=\"@AJKH=0\"\n"},
    {"OVColorDensityBlackHigh", "-2", "@PJL SET JOBATTR=\"@AJKH=1\"\n"},
    {"OVColorDensityBlackHigh", "-1", "@PJL SET JOBATTR=\"@AJKH=2\"\n"},
    {"OVColorDensityBlackHigh", "0", "@PJL SET JOBATTR=\"@AJKH=3\"\n"},
    {"OVColorDensityBlackHigh", "+1", "@PJL SET JOBATTR=\"@AJKH=4\"\n"},
    {"OVColorDensityBlackHigh", "+2", "@PJL SET JOBATTR=\"@AJKH=5\"\n"},
    {"OVColorDensityBlackHigh", "+3", "@PJL SET JOBATTR=\"@AJKH=6\"\n"},
};

static_assert(std::size(featureCommands) == 123);
const std::span<const FeatureCommand> FeaturePPDKeyNameandMarkedValuetoPJLCommand = featureCommands;

const char *const PPDKeyArray[] = {
    "OVSetTrapMode", "OVGrayBalance", "OVBrightnes", "OVRGBInputProfile", "OVRGBBCorrection", "OVTonerSaver", nullptr,
};

static constexpr const char *CommandOf(std::string_view keyword, std::string_view value)
{
    for (const FeatureCommand &row : featureCommands)
        if (keyword == row.keyword && value == row.value)
            return row.command;
    return nullptr;
}

// The line that a keyword stands at when nothing is to be changed.
static constexpr struct {
    std::string_view keyword;
    const char *command;
} neutralCommands[] = {
    {"OVSetTrapMode", CommandOf("OVSetTrapMode", "False")},
    {"OVGrayBalance", CommandOf("OVGrayBalance", "False")},
    {"OVBrightnes", CommandOf("OVBrightnes", "Normal")},
    {"OVRGBInputProfile", CommandOf("OVRGBInputProfile", "SRGB")},
    {"OVRGBBCorrection", CommandOf("OVRGBBCorrection", "Dark")},
    {"OVTonerSaver", CommandOf("OVTonerSaver", "False")},
};
static_assert(std::ranges::none_of(neutralCommands, [](const auto &neutral) { return neutral.command == nullptr; }));

const char *GetThePJLCommandfromKeywordsandMarkedValue(const char *keyword, const char *value)
{
    return *keyword == '*' ? CommandOf(keyword + 1, value) : nullptr;
}

void OutputPJLCommandForPPDKeyArray(const char *const *keywords, ppd_file_t *ppd)
{
    for (; *keywords; keywords++)
        for (const auto &[keyword, command] : neutralCommands)
            if (keyword == *keywords && !PPDHasOption(ppd, *keywords))
                QBfputs(command, stdout);
}

void outputZPJLCommandFromArray(const char *const *names, const int32_t *values)
{
    for (; *names; names++, values++)
        QBfprintfCut(stdout, kDirectLineSize, "@PJL SET JOBATTR=\"@%s=%d\"\n", *names, *values);
}
