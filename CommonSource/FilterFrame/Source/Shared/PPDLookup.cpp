#include "PPDLookup.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

// The PPD functions of libcups are marked deprecated as a family; this file is the one that calls them.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

const char KPPDCharEncoding[] = "OVPrinterLanguageEncoding";

const char DeviceColorModeColor[] = "True";
const char DeviceColorModeMono[] = "False";
const char DefaultQBColorModeColor[] = "Color";
const char DefaultQBColorModeBlack[] = "Black";

// The PPD that was looked at last; without a path none was.
static struct {
    std::optional<std::string> path;
    ppd_file_t *ppd;
    bool UTF8;
} job;

ppd_file_t *JobPPD()
{
    const char *variable = getenv("PPD");
    const char *path = variable ? variable : "";
    if (job.path != path) {
        CloseJobPPD();
        job.path = path;
        job.ppd = ppdOpenFile(path);
        const ppd_attr_t *encoding = ppdFindAttr_ALT(job.ppd, KPPDCharEncoding);
        job.UTF8 = encoding && encoding->value && strcmp(encoding->value, "UTF-8") == 0;
    }
    return job.ppd;
}

void CloseJobPPD()
{
    if (job.ppd)
        ppdClose(job.ppd);
    job = {};
}

bool IsUTF8Mode()
{
    JobPPD();
    return job.UTF8;
}

const ppd_attr_t *ppdFindAttr_ALT(const ppd_file_t *ppd, const char *name)
{
    const size_t length = strlen(name);
    for (int i = 0; ppd && i < ppd->num_attrs; i++)
        if (strncmp(ppd->attrs[i]->name, name, length) == 0)
            return ppd->attrs[i];
    return nullptr;
}

static const char *AttributeValue(const ppd_file_t *ppd, const char *name)
{
    const ppd_attr_t *attribute = ppdFindAttr_ALT(ppd, name);
    return attribute ? attribute->value : nullptr;
}

int32_t CheckIfPPDKeywordSupported(const ppd_file_t *ppd, const char *keyword, const char *text)
{
    const char *value = AttributeValue(ppd, keyword);
    return value && strstr(value, text);
}

const char *PPDAttributeValue(const char *name)
{
    return AttributeValue(JobPPD(), name);
}

bool PPDAttributeIs(const char *name, const char *value)
{
    const char *found = PPDAttributeValue(name);
    return found && strcmp(found, value) == 0;
}

static const ppd_option_t *FindOption(ppd_file_t *ppd, const char *keyword)
{
    return ppd ? ppdFindOption(ppd, keyword) : nullptr;
}

bool PPDHasOption(ppd_file_t *ppd, const char *keyword)
{
    return FindOption(ppd, keyword) != nullptr;
}

bool PPDHasOption(const char *keyword)
{
    return PPDHasOption(JobPPD(), keyword);
}

std::span<const ppd_choice_t> PPDChoices(const char *keyword)
{
    const ppd_option_t *option = FindOption(JobPPD(), keyword);
    if (!option)
        return {};
    return {option->choices, static_cast<size_t>(option->num_choices)};
}

bool PPDHasCustomChoice(const char *keyword)
{
    return JobPPD() && ppdFindCustomOption(JobPPD(), keyword) != nullptr;
}

std::vector<PPDAttribute> PPDAttributes(const char *name)
{
    std::vector<PPDAttribute> attributes;
    const ppd_file_t *ppd = JobPPD();
    for (int i = 0; ppd && i < ppd->num_attrs; i++)
        if (strcmp(ppd->attrs[i]->name, name) == 0 && ppd->attrs[i]->value)
            attributes.push_back({ppd->attrs[i]->spec, ppd->attrs[i]->value});
    return attributes;
}

std::vector<PPDDefault> PPDDefaults()
{
    std::vector<PPDDefault> defaults;
    ppd_file_t *ppd = JobPPD();
    for (const ppd_option_t *option = ppd ? ppdFirstOption(ppd) : nullptr; option; option = ppdNextOption(ppd)) {
        // What a choice is called can be cut where the library keeps it with the option. The last one counts.
        const std::string name = std::string("Default") + option->keyword;
        const char *choice = nullptr;
        for (const ppd_attr_t *attribute = ppdFindAttr(ppd, name.c_str(), nullptr); attribute;
             attribute = ppdFindNextAttr(ppd, name.c_str(), nullptr))
            choice = attribute->value ? attribute->value : choice;
        if (choice)
            defaults.push_back({option->keyword, choice});
    }
    return defaults;
}

bool PPDPageSizeInPoints(const char *name, float &width, float &length)
{
    for (const PPDAttribute &size : PPDAttributes("OVPageSize")) {
        if (strcmp(size.keyword, name) != 0)
            continue;
        char *end = nullptr;
        width = static_cast<float>(strtol(size.value, &end, 10));
        length = static_cast<float>(strtol(end, nullptr, 10));
        if (width > 0 && length > 0)
            return true;
    }
    const ppd_size_t *size = JobPPD() ? ppdPageSize(JobPPD(), name) : nullptr;
    width = size ? size->width : 0;
    length = size ? size->length : 0;
    return size != nullptr;
}

int32_t IsColorDeivce()
{
    return PPDAttributeIs("ColorDevice", DeviceColorModeColor);
}

int32_t getDefaultColorMode()
{
    const ppd_option_t *option = FindOption(JobPPD(), kColorModeTicketKey);
    return option && strcmp(option->defchoice, DefaultQBColorModeColor) == 0;
}

JobColor ColorOfJob(std::string_view mode)
{
    if (mode.empty())
        return IsColorDeivce() == 1 && getDefaultColorMode() == 1 ? JobColor::Color : JobColor::Grayscale;
    if (mode == DefaultQBColorModeColor)
        return JobColor::Color;
    if (mode == DefaultQBColorModeBlack)
        return JobColor::Grayscale;
    return PPDHasOption(kColorModeTicketKey) ? JobColor::Unstated : JobColor::Grayscale;
}
