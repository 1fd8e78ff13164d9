#include "PPDTickets.h"

#include "BoundedText.h"
#include "JobState.h"
#include "OutputSink.h"
#include "PPDLookup.h"
#include "PasswordTicket.h"
#include "Platform.h"
#include "TextEncoding.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <vector>

static const char kTicketAttribute[] = "OVTicket";
static const char kSendDefaultsAttribute[] = "OVSendDefaults";

// A dot at the beginning of a row's name stands for this.
static const char kTicketPrefix[] = "com.orvane.dlg.printsettings.";

static const char kCustomChoice[] = "Custom";
static const char kCustomPrefix[] = "Custom.";

// The default of an option whose printer does not tell it.
static const char kUnknownDefault[] = "Unknown";

// Typed text goes into these tickets' PostScript as it stands: of what replaces a placeholder they keep what can't be
// more than a name or numbers there. The watermark's text keeps {ps} alone.
struct PostScriptTicket {
    std::string_view name;
    std::string_view kept;
};
static constexpr PostScriptTicket postScriptTickets[] = {
    {".WMARKTextTicket", ""},
    {".WMARKFontTicket", "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._+"},
    {".SeparatorPageTicket", "0123456789 "},
    {".BookletMarginMMShiftTicket", "0123456789.-"},
};

// What is read of a ticket. Each byte value takes up to four characters of it.
constexpr size_t kTicketMaxLength = kTicketTextSize - 1;
constexpr size_t kByteValuesMaxLength = kTicketMaxLength / 4;

const size_t kPostScriptStringMaxLength = kDirectLineSize - sizeof " show\n";

// Option names and choices compare without regard to the case of ASCII letters, whatever the locale.
static char Lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

struct WithoutCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const
    {
        return std::ranges::lexicographical_compare(a, b, {}, Lower, Lower);
    }
};

static bool EqualWithoutCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, Lower, Lower);
}

static bool BeginsWithoutCase(std::string_view text, std::string_view beginning)
{
    return EqualWithoutCase(text.substr(0, beginning.size()), beginning);
}

// A row: the option and, unless it holds for every value, the choice that it is for; the options that it gives.
struct PPDRow {
    std::string_view option;
    std::optional<std::string_view> choice;
    const char *given;
};

// An option of the job with its value.
struct Setting {
    const char *option;
    const char *value;
};
using Settings = std::map<std::string_view, Setting, WithoutCase>;

struct Completion {
    const char *const *argv;
    Settings named;
    std::map<std::string, std::string, WithoutCase> added;
};

static std::vector<PPDRow> RowsOfPPD()
{
    std::vector<PPDRow> rows;
    for (const PPDAttribute &attribute : PPDAttributes(kTicketAttribute)) {
        const std::string_view keyword = attribute.keyword;
        const size_t dot = keyword.find('.');
        PPDRow row = {keyword.substr(0, dot), {}, attribute.value};
        if (dot != keyword.npos)
            row.choice = keyword.substr(dot + 1);
        rows.push_back(row);
    }
    return rows;
}

static bool IsChoice(const char *option, std::string_view value)
{
    return std::ranges::any_of(PPDChoices(option),
                               [value](const ppd_choice_t &choice) { return EqualWithoutCase(choice.choice, value); });
}

// Whether the value is none of the choices, of an option that has a custom one.
static bool IsOwnText(const Setting &setting)
{
    return PPDHasCustomChoice(setting.option) && !IsChoice(setting.option, setting.value);
}

static bool IsFor(const PPDRow &row, const Setting &setting)
{
    if (!row.choice || EqualWithoutCase(*row.choice, setting.value))
        return true;
    return EqualWithoutCase(*row.choice, kCustomChoice) &&
           (BeginsWithoutCase(setting.value, kCustomPrefix) || IsOwnText(setting));
}

// The value, of a custom choice what was typed.
static std::string_view TypedText(const PPDRow &row, const Setting &setting)
{
    const std::string_view value = setting.value;
    const bool hasCustomChoice = PPDHasCustomChoice(setting.option);
    if (!hasCustomChoice && !(row.choice && EqualWithoutCase(*row.choice, kCustomChoice)))
        return value;
    if (BeginsWithoutCase(value, kCustomPrefix))
        return value.substr(sizeof kCustomPrefix - 1);
    return hasCustomChoice && EqualWithoutCase(value, kCustomChoice) ? "" : value;
}

std::string WithoutControls(std::string_view text)
{
    std::string kept;
    kept.reserve(text.size());
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x20 || byte == 0x7F || byte == '"')
            continue;
        // U+0080 to U+009F
        if (byte >= 0x80 && byte < 0xA0 && kept.ends_with('\xC2'))
            kept.pop_back();
        else
            kept += character;
    }
    return kept;
}

static std::string InISOLatin1OrShiftJIS(char16_t unit, bool latin1)
{
    if (latin1)
        return {static_cast<char>(unit)};
    char bytes[kPlatformMaxUnitBytes];
    return {bytes, PlatformEncodeShiftJIS(unit, bytes)};
}

std::string PostScriptString(std::string_view text)
{
    std::u16string units;
    PlatformDecodeUTF8(text, units);
    const bool latin1 = std::ranges::all_of(units, [](char16_t unit) { return unit <= 0xFF; });
    std::string string = "(";
    for (const char16_t unit : units) {
        const std::string character = InPostScriptString(InISOLatin1OrShiftJIS(unit, latin1));
        if (string.size() + character.size() + 1 > kPostScriptStringMaxLength)
            break;
        string += character;
    }
    return string + ")";
}

// A name that becomes nothing in the printer's encoding would let a held job print.
static std::string UserName(const char *user)
{
    std::string name = WithoutControls(user);
    char converted[8];
    const auto convert = IsUTF8Mode() ? ConvertUTF8ToEncodingForUTF8 : ConvertUTF8ToEncoding;
    return convert(name.c_str(), converted, sizeof converted) > 0 ? name : defaultUserName;
}

static std::string PlaceholderText(std::string_view placeholder, std::string_view typed, const char *const *argv)
{
    if (placeholder == "{}")
        return WithoutControls(typed);
    if (placeholder == "{user}")
        return UserName(argv[2]);
    if (placeholder == "{title}")
        return WithoutControls(argv[3]);
    return {};
}

static constexpr size_t kPlaceholderMaxLength = sizeof "{title}" - 1;

static bool IsPlaceholder(std::string_view text)
{
    return text == "{}" || text == "{user}" || text == "{title}";
}

static const PostScriptTicket *FindPostScriptTicket(std::string_view name)
{
    for (const PostScriptTicket &ticket : postScriptTickets)
        if (EqualWithoutCase(ticket.name.substr(1), name.substr(std::min(name.size(), sizeof kTicketPrefix - 1))) &&
            BeginsWithoutCase(name, kTicketPrefix))
            return &ticket;
    return nullptr;
}

// As much of the text as fits, without half a character.
static std::string WholeCharacters(const std::string &text, size_t maxLength)
{
    size_t length = std::min(text.size(), maxLength);
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80)
        length--;
    return text.substr(0, length);
}

// The value with its placeholders replaced; nothing for an empty password.
static std::optional<std::string> Filled(std::string_view name, std::string_view value, std::string_view typed,
                                         const char *const *argv)
{
    if (value == "{password}") {
        std::string stored = StorePassword(typed);
        return stored.empty() ? std::nullopt : std::optional(std::move(stored));
    }
    if (value == "{ps}")
        return PostScriptString(WithoutControls(typed));

    const PostScriptTicket *postScript = FindPostScriptTicket(name);
    std::string filled;
    bool replaced = false;
    while (!value.empty()) {
        const size_t open = std::min(value.find('{'), value.size());
        filled += value.substr(0, open);
        value.remove_prefix(open);
        const std::string_view placeholder = value.substr(0, value.substr(0, kPlaceholderMaxLength).find('}') + 1);
        if (!IsPlaceholder(placeholder)) {
            filled += value.substr(0, 1);
            value.remove_prefix(std::min<size_t>(1, value.size()));
            continue;
        }
        std::string text = PlaceholderText(placeholder, typed, argv);
        if (postScript)
            std::erase_if(text, [&](char character) { return postScript->kept.find(character) == std::string::npos; });
        filled += text;
        value.remove_prefix(placeholder.size());
        replaced = true;
    }
    if (!replaced)
        return filled;
    // It would be taken for a list of byte values.
    if (filled.starts_with('/'))
        return ByteValues(WholeCharacters(filled, kByteValuesMaxLength), 1);
    return WholeCharacters(filled, kTicketMaxLength);
}

static void AddGiven(Completion &completion, const PPDRow &row, const Setting &setting)
{
    cups_option_t *given = nullptr;
    const int count = cupsParseOptions(row.given, 0, &given);
    // What other rows gave before; this one's own names are all different.
    for (int i = 0; i < count; i++) {
        const std::string name =
            given[i].name[0] == '.' ? kTicketPrefix + std::string(given[i].name + 1) : given[i].name;
        if (name.empty() || completion.named.contains(name) || completion.added.contains(name))
            continue;
        if (auto value = Filled(name, given[i].value, TypedText(row, setting), completion.argv))
            completion.added.emplace(name, std::move(*value));
    }
    cupsFreeOptions(count, given);
}

static void AddRowsFor(Completion &completion, const std::vector<PPDRow> &rows, const Settings &settings)
{
    // Rows of one option mostly stand together.
    auto setting = settings.end();
    std::string_view option;
    for (const PPDRow &row : rows) {
        if (row.option != option)
            setting = settings.find(option = row.option);
        if (setting != settings.end() && IsFor(row, setting->second))
            AddGiven(completion, row, setting->second);
    }
}

static Settings DefaultsOfPPD(const Settings &named)
{
    Settings defaults;
    for (const PPDDefault &option : PPDDefaults())
        if (!named.contains(option.keyword) &&
            (strcmp(option.choice, kUnknownDefault) != 0 || IsChoice(option.keyword, option.choice)))
            defaults.insert({option.keyword, {option.keyword, option.choice}});
    return defaults;
}

std::string AddPPDTickets(const char *const *argv, JobOptions &options)
{
    const std::vector<PPDRow> rows = RowsOfPPD();
    const bool sendDefaults = PPDAttributeIs(kSendDefaultsAttribute, "True");
    if (rows.empty() && !sendDefaults)
        return {};

    Completion completion = {argv, {}, {}};
    for (int32_t i = 0; i < options.count; i++)
        completion.named.insert({options.list[i].name, {options.list[i].name, options.list[i].value}});
    AddRowsFor(completion, rows, completion.named);
    if (sendDefaults) {
        const Settings defaults = DefaultsOfPPD(completion.named);
        AddRowsFor(completion, rows, defaults);
        for (const auto &[name, setting] : defaults)
            completion.added.emplace(name, setting.value);
    }

    std::string words;
    for (const auto &[name, value] : completion.added) {
        options.count = cupsAddOption(name.c_str(), value.c_str(), options.count, &options.list);
        words += EqualWithoutCase(value, "false") ? " no" + name : " " + name;
    }
    return words;
}
