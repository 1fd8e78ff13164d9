// DocsTest: the table of tickets, the manual page, the sample queues and the filter name the same options, attributes
// and choices. The filter's side is what it asks CUPS for while it runs a job.

#include "FeatureCommands.h"
#include "FilterFrame.h"
#include "PBind.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <strings.h>
#include <unistd.h>

// The PPD functions of libcups are marked deprecated as a family.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

using Names = std::set<std::string>;

static const std::string kTicketPrefix = "com.orvane.dlg.printsettings.";
static const std::string kAttributes = "PPD attributes";
static Names asked;

// Stands in front of the library's.
extern "C" const char *cupsGetOption(const char *name, int count, cups_option_t *options)
{
    asked.insert(name);
    for (int i = 0; i < count; i++) {
        if (strcasecmp(options[i].name, name) == 0)
            return options[i].value;
    }
    return nullptr;
}

namespace
{

// Every text between backticks.
Names Quoted(const std::string &text)
{
    static const std::regex quoted("`([^`]+)`");
    Names found;
    for (std::sregex_iterator it(text.begin(), text.end(), quoted), end; it != end; ++it)
        found.insert((*it)[1]);
    return found;
}

std::string Contents(const char *path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string FullName(const std::string &name)
{
    return name[0] == '.' ? kTicketPrefix + name.substr(1) : name;
}

// A name's rows: the section of the last, and the values and lines of all.
struct Row {
    std::string section, values, lines;
};

std::map<std::string, Row> Table()
{
    static const std::regex row(R"(\| `([^`]+)` \|([^|]*)\|([^|]*)\|)");
    std::istringstream text(Contents(OV_TICKETS));
    std::map<std::string, Row> table;
    std::string line, section;
    for (std::smatch match; std::getline(text, line);) {
        if (line.starts_with("## "))
            section = line.substr(3);
        if (!std::regex_match(line, match, row))
            continue;
        Row &known = table[FullName(match[1])];
        known.section = section;
        known.values += match[2];
        known.lines += match[3];
    }
    return table;
}

Names Documented(bool (*wanted)(const std::string &name, const Row &row))
{
    Names names;
    for (const auto &[name, row] : Table()) {
        if (wanted(name, row))
            names.insert(name);
    }
    return names;
}

Names InManual()
{
    static const std::regex entry(R"(\n\.BR? (\S+))");
    const std::string text = Contents(OV_MANUAL);
    const size_t start = text.find("\n.SS", text.find("\n.SH OPTIONS AND TICKETS"));
    const std::string section = text.substr(start, text.find("\n.SH", start) - start);
    Names names;
    for (std::sregex_iterator it(section.begin(), section.end(), entry), end; it != end; ++it)
        names.insert(FullName(std::regex_replace((*it)[1].str(), std::regex(R"(\\(-?):?)"), "$1")));
    return names;
}

// What a job with an item of each kind of special page makes the filter ask for in either encoding.
Names AskedFor()
{
    std::string options;
    for (const char *kind : {"Cover", "Insertion", "Exception"})
        for (const char *ticket : {"CountTicket=1 ", "ValueTicket_0=0 "})
            options += kTicketPrefix + "ZPIF" + kind + ticket;
    options += kTicketPrefix + "ZPIFCommandTicket0=0";
    const char *argv[] = {"pstoorvane", "1", "taro", "Report", "1", options.c_str(), "/dev/null", nullptr};

    fflush(stdout);
    const int out = dup(STDOUT_FILENO), null = open("/dev/null", O_WRONLY);
    dup2(null, STDOUT_FILENO);
    for (const char *ppd : {OV_SAMPLE_PPDS "/mono.ppd", OV_SAMPLE_PPDS "/office.ppd"}) {
        setenv("PPD", ppd, 1);
        EXPECT_EQ(FilterMain(7, argv), 0);
    }
    dup2(out, STDOUT_FILENO);
    close(out);
    close(null);

    Names names = {KPPDOutputModeKey, KPPDFrameModeKey, KPPDHalfToneKey};
    for (const std::string &name : asked)
        names.insert(std::regex_replace(name, std::regex("(ZPIF.*)0$"), "$1<n>"));
    for (const FeatureCommand &row : FeaturePPDKeyNameandMarkedValuetoPJLCommand)
        names.insert(row.keyword);
    return names;
}

bool IsOptionOfOurs(const std::string &name)
{
    return name.starts_with("OV") || name == "Smoothing";
}

struct Samples {
    std::map<std::string, Names> choices; // by option
    Names attributes;
};

Samples ReadSamples()
{
    Samples samples;
    for (const char *path :
         {OV_SAMPLE_PPDS "/mono.ppd", OV_SAMPLE_PPDS "/office.ppd", OV_SAMPLE_PPDS "/production.ppd"}) {
        const std::unique_ptr<ppd_file_t, void (*)(ppd_file_t *)> ppd(ppdOpenFile(path), ppdClose);
        EXPECT_TRUE(ppd) << path;
        for (int i = 0; ppd && i < ppd->num_attrs; i++)
            samples.attributes.insert(ppd->attrs[i]->name);
        for (ppd_option_t *option = ppd ? ppdFirstOption(ppd.get()) : nullptr; option;
             option = ppdNextOption(ppd.get()))
            for (int i = 0; i < option->num_choices; i++)
                samples.choices[option->keyword].insert(option->choices[i].choice);
    }
    return samples;
}

void ExpectAll(const Names &names, const Names &of, const char *where, const char *missingFrom)
{
    for (const std::string &name : names)
        EXPECT_TRUE(of.contains(name)) << name << " is in " << where << ", not in " << missingFrom;
}

void ExpectSame(const Names &a, const char *whereA, const Names &b, const char *whereB)
{
    ASSERT_FALSE(a.empty() || b.empty()) << whereA << ", " << whereB;
    ExpectAll(a, b, whereA, whereB);
    ExpectAll(b, a, whereB, whereA);
}

} // namespace

TEST(Docs, TableHasWhatTheFilterReads)
{
    const Names options = Documented([](const std::string &, const Row &row) { return row.section != kAttributes; });
    ExpectSame(options, "docs/tickets.md", AskedFor(), "the filter");
}

TEST(Docs, ManualHasWhatTheTableHas)
{
    const Names all = Documented([](const std::string &, const Row &) { return true; });
    ExpectSame(all, "docs/tickets.md", InManual(), "the manual page");
}

TEST(Docs, SampleQueuesHaveWhatTheTableHas)
{
    const Samples samples = ReadSamples();
    Names offered;
    for (const auto &[option, choices] : samples.choices) {
        if (IsOptionOfOurs(option))
            offered.insert(option);
    }
    const Names options = Documented(
        [](const std::string &name, const Row &row) { return row.section != kAttributes && IsOptionOfOurs(name); });
    ExpectSame(options, "docs/tickets.md", offered, "the sample queues");

    const Names attributes = Documented([](const std::string &, const Row &row) { return row.section == kAttributes; });
    ExpectAll(attributes, samples.attributes, "docs/tickets.md", "the sample queues");
    for (const std::string &name : samples.attributes)
        EXPECT_TRUE(attributes.contains(name) || !std::regex_search(name, std::regex("^(OV|QBX)"))) << name;
}

TEST(Docs, TableHasTheChoices)
{
    auto table = Table();
    const Names everywhere = Quoted(Contents(OV_TICKETS));
    for (const auto &[option, choices] : ReadSamples().choices) {
        if (!IsOptionOfOurs(option))
            continue;
        // A row without values of its own takes a number, or a value of the lists below it.
        const Names values = Quoted(table[option].values);
        for (const std::string &choice : choices)
            EXPECT_TRUE((values.empty() ? everywhere : values).contains(choice) ||
                        (values.empty() && std::regex_match(choice, std::regex("-?[0-9]+(mm)?"))))
                << choice << " of " << option;
    }
    for (const FeatureCommand &row : FeaturePPDKeyNameandMarkedValuetoPJLCommand) {
        EXPECT_TRUE(Quoted(table[row.keyword].values).contains(row.value)) << row.value << " of " << row.keyword;
        const std::string command = row.command;
        const size_t name = command.find_last_of(" @", command.find_last_of('=')) + 1;
        const std::string variable = command.substr(name, command.find_last_of('=') - name + 1);
        EXPECT_NE(table[row.keyword].lines.find(variable), std::string::npos) << variable << " of " << row.keyword;
    }
    for (const PBindParam *row = PerfectBindParam; row->ppdValue && *row->ppdValue; row++)
        EXPECT_TRUE(everywhere.contains(row->ppdValue)) << row->ppdValue;
}
