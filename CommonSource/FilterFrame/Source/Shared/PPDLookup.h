// PPDLookup: the queue's PPD and every question about it.
// The file is parsed at the first question, and again when PPD names another one; one that can't be read answers
// everything with "absent".
#pragma once

#include <cups/ppd.h>

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

// The attribute that names the printer's language encoding; "UTF-8" puts the job in UTF-8 mode.
extern const char KPPDCharEncoding[];

// Values of the attribute ColorDevice, and two choices of the option OVColorMode.
extern const char DeviceColorModeColor[];
extern const char DeviceColorModeMono[];
extern const char DefaultQBColorModeColor[];
extern const char DefaultQBColorModeBlack[];
inline constexpr char kColorModeTicketKey[] = "OVColorMode";

// The open PPD of the queue that the environment variable PPD names; null when there is none. What it points at lives
// until PPD names another file or CloseJobPPD.
ppd_file_t *JobPPD();

// Closes it; the next question opens the file again.
void CloseJobPPD();

// Whether the job's texts go to the printer as UTF-8, otherwise as Shift-JIS.
bool IsUTF8Mode();

// The first attribute, in file order, whose name begins with `name`; null when there is none.
const ppd_attr_t *ppdFindAttr_ALT(const ppd_file_t *ppd, const char *name);

// 1 when that attribute exists and its value contains `text`, else 0.
int32_t CheckIfPPDKeywordSupported(const ppd_file_t *ppd, const char *keyword, const char *text);

// The value of that attribute of the queue's PPD; null when it is absent.
const char *PPDAttributeValue(const char *name);

// Whether that value is exactly `value`.
bool PPDAttributeIs(const char *name, const char *value);

// Whether the PPD (the queue's, when none is named) defines the option.
bool PPDHasOption(ppd_file_t *ppd, const char *keyword);
bool PPDHasOption(const char *keyword);

// The option's choices, none for an option that the PPD doesn't define; and whether it has one for values of one's own.
std::span<const ppd_choice_t> PPDChoices(const char *keyword);
bool PPDHasCustomChoice(const char *keyword);

// Attributes of exactly this name, in file order; keyword is the option that follows the name, empty where none does.
struct PPDAttribute {
    const char *keyword;
    const char *value;
};
std::vector<PPDAttribute> PPDAttributes(const char *name);

// The PPD's options with what it says in their Default attributes, in full; those without one are left out.
struct PPDDefault {
    const char *keyword;
    const char *choice;
};
std::vector<PPDDefault> PPDDefaults();

// The size of a page in points: what an attribute OVPageSize of that name says in whole numbers, width and length, else
// the queue's page size of that name. Returns false, with both 0, when the PPD doesn't define it.
bool PPDPageSizeInPoints(const char *name, float &width, float &length);

// 1 for a colour printer, else 0.
int32_t IsColorDeivce();

// 1 when the default of the option OVColorMode is colour, else 0.
int32_t getDefaultColorMode();

// How a job of this colour mode, a choice of the option OVColorMode, is rendered. Without one the printer and its
// default decide. Unstated: a mode of the PPD's own, which the document asks for by itself.
enum class JobColor { Unstated, Color, Grayscale };
JobColor ColorOfJob(std::string_view mode);
