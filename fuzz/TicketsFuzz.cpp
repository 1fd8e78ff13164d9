// PPDs whose rows give tickets, and what people type for them.
// Input: a byte that chooses; then the typed text, user and title, each up to a NUL, and the rest is the PPD's rows.
// For an even byte the rows are those below, and no typed text may become a line of PJL or PostScript outside its
// string.

#include "InProcess.h"
#include "TicketReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

static const char option[] = "*OpenUI *OVTyped/Typed: PickOne\n*DefaultOVTyped: None\n*OVTyped None/None: \"\"\n"
                             "*CloseUI: *OVTyped\n*CustomOVTyped True: \"\"\n"
                             "*ParamCustomOVTyped Text/Text: 1 string 1 40\n";

// Typed text in every kind of ticket.
static const char rows[] =
    "*OVSendDefaults: True\n"
    "*OVTicket OVTyped.Custom: \".PrintTypeTicketKey=5 .PrintTypeUserNameTicketKey={user} .PrintTypeMBNTicketKey={}\"\n"
    "*OVTicket OVTyped.Custom: \".PrintTypeMBNPasswordTicketKey={password} .DocumentNameTypeTicketKey=2\"\n"
    "*OVTicket OVTyped.Custom: \".DocumentNameTicketKey='{}{title}' .TabMarginSwitchTicket=1\"\n"
    "*OVTicket OVTyped.Custom: \".TabMarginMMShiftTicket={} .JBAManageTypeListTicketKey=2\"\n"
    "*OVTicket OVTyped.Custom: \".JBAUserSettingRadioBtnTicket=1 .JBAUserIDListCtrlTicket=2\"\n"
    "*OVTicket OVTyped.Custom: \".JBAUserIDTextEditTicket={} .JBAAccountIDTextEditTicket={}/{title}\"\n"
    "*OVTicket OVTyped.Custom: \".WMARKNameTicket={} .WMARKTypeTicket=0 .WMARKOnlyFirstTicket=0 .WMARKFontTicket={}\"\n"
    "*OVTicket OVTyped.Custom: \".WMARKTextTicket={ps} .SeparatorPageListTicket=2 .SeparatorPageTicket={}\"\n"
    "*OVTicket OVTyped.Custom: \".BookletMarginSwitchTicket=1 .BookletMarginMMShiftTicket={} OVSignature={}\"\n"
    "*OVTicket OVTyped: \".ZPIFCoverCountTicket=1 .ZPIFCommandTicket0='0,{}' .ZPIFCoverValueTicket_0='0,{},{}'\"\n";
static const char document[] = "%!PS\n%%BeginProlog\n%%EndProlog\n%%EndSetup\nep\n";

// As lp writes an option's value.
static std::string Quoted(const std::string &text)
{
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + "'";
}

static bool HasControls(std::string_view text)
{
    return std::ranges::any_of(text, [](char character) { return static_cast<unsigned char>(character) < 0x20; });
}

static void CheckHeader(std::string_view header)
{
    while (!header.empty()) {
        const std::string_view line = header.substr(0, header.find('\n'));
        Require(line.starts_with("@PJL ") || line.starts_with("\x1B%-12345X@PJL "));
        std::string_view text = line;
        text.remove_prefix(text.starts_with('\x1B'));
        text.remove_suffix(text.ends_with('\r'));
        Require(!HasControls(text));
        header.remove_prefix(std::min(header.size(), line.size() + 1));
    }
}

// A string that is closed where its line ends, and not before.
static void CheckDocument(std::string_view text)
{
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (line.ends_with(" show")) {
            const std::string_view string = line.substr(0, line.size() - 5);
            Require(string.size() >= 2 && string.front() == '(' && string.find(')') == string.size() - 1 &&
                    string.find('(', 1) == string.npos);
            for (size_t i = string.find('\\'); i != string.npos; i = string.find('\\', i + 1))
                Require(i + 4 < string.size() && string.find_first_not_of("01234567", i + 1) >= i + 4);
        } else if (line.ends_with(" selectfont")) {
            Require(line.find_first_of(" ()<>[]{}%/", 1) == line.find(' '));
        } else if (line.starts_with("1 dict dup/SeparatorPages[")) {
            Require(line.find_first_not_of("0123456789 ", sizeof "1 dict dup/SeparatorPages[" - 1) == line.find(']') ||
                    line.find(']') == line.npos);
        }
        text.remove_prefix(std::min(text.size(), line.size() + 1));
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    std::string_view input(reinterpret_cast<const char *>(data), size);
    if (input.empty())
        return 0;
    const bool ownRows = input[0] & 1, legacy = input[0] & 2;
    input.remove_prefix(1);

    InProcessJob job;
    const std::string typed = TakeText(input);
    const std::string user = TakeText(input), title = TakeText(input);
    // User and title have lines of their own besides, in which they stand as they come.
    if (ownRows || !HasControls(user + title)) {
        job.user = user;
        job.title = title;
    }
    job.options = "OVTyped=" + Quoted("Custom." + typed);
    job.ppd = "*PPD-Adobe: \"4.3\"\n*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n";
    if (!legacy)
        job.ppd += "*OVPrinterLanguageEncoding: \"UTF-8\"\n";
    job.ppd += ownRows ? std::string(input) : rows;
    job.ppd += option;
    job.document = document;
    const std::string output = RunInProcess(job);
    if (!ownRows) {
        const std::string_view sent = output;
        const size_t header = sent.find("@PJL ENTER LANGUAGE");
        Require(header != sent.npos);
        const size_t begin = sent.find('\n', header) + 1;
        CheckHeader(sent.substr(0, header));
        CheckDocument(sent.substr(begin, sent.rfind("\x1B%-12345X") - begin));
    }
    return 0;
}
