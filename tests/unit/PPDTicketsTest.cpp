// What a PPD's rows add to a job's options. Whole jobs with them stand in data/jobs/ppdtickets.jobs.
#include "PPDTickets.h"

#include "PPDLookup.h"
#include "Rows.h"
#include "TestPPD.h"

#include <cstring>
#include <sstream>

static const char prefix[] = "com.orvane.dlg.printsettings.";

// An option of a PPD, with a custom choice where `custom` is its type.
static std::string Option(const std::string &keyword, const std::string &standard, const Cells &choices,
                          const std::string &custom = "")
{
    std::string text = "*OpenUI *" + keyword + ": PickOne\n*Default" + keyword + ": " + standard + "\n";
    for (const std::string &choice : choices)
        text += "*" + keyword + " " + choice + ": \"\"\n";
    text += "*CloseUI: *" + keyword + "\n";
    if (!custom.empty())
        text += "*Custom" + keyword + " True: \"\"\n*ParamCustom" + keyword + " Text: 1 " + custom + " 1 8\n";
    return text;
}

// One option is like any, one has a custom choice, one is a switch, and one hides its default.
static const std::string options =
    Option("Pick", "None", {"None", "On", "Custom"}) + Option("Pin", "None", {"None"}, "passcode") +
    Option("Switch", "False", {"True", "False"}) + Option("Hidden", "Unknown", {"None"}, "string");

// "OPTION.CHOICE: text ; ..." as a PPD; "defaults" and "*Keyword: value" stand for other attributes.
static std::string PPDText(const std::string &cell)
{
    std::string text = options;
    if (cell.starts_with("defaults"))
        return PPDText("*OVSendDefaults: True" + cell.substr(sizeof "defaults" - 1));
    std::istringstream rows(cell);
    for (std::string row; std::getline(rows, row, ';');) {
        const size_t begin = row.find_first_not_of(' '), end = row.find(": ");
        if (row[begin] == '*')
            text += row.substr(begin) + "\n";
        else
            text += "*OVTicket " + row.substr(begin, end - begin) + ": \"" + row.substr(end + 2) + "\"\n";
    }
    return text;
}

// What was added to the job's options, or changed among them.
static std::string Added(const char *const *argv)
{
    cups_option_t *named = nullptr;
    const int32_t namedCount = cupsParseOptions(argv[5], 0, &named);
    const JobOptions job = OptionsOfJob(argv);
    std::string list;
    for (int32_t i = 0; i < job.count; i++) {
        std::string name = job.list[i].name;
        const char *before = cupsGetOption(name.c_str(), namedCount, named);
        if (before && strcmp(before, job.list[i].value) == 0)
            continue;
        if (name.starts_with(prefix))
            name.erase(0, sizeof prefix - 2);
        list += (list.empty() ? "" : ", ") + name + "=" + job.list[i].value;
    }
    cupsFreeOptions(namedCount, named);
    return list;
}

TEST(PPDTickets, CompleteTheOptions)
{
    CheckRows("ppd-tickets", [](const Cells &given) -> Cells {
        const TestPPD ppd(PPDText(given[0]));
        const char *const argv[] = {"", "1", "taro", "A \"Report\"", "1", given[1].c_str(), nullptr};
        return {Added(argv)};
    });
}

TEST(PPDTickets, StringsOfPostScript)
{
    CheckRows("postscript-strings", [](const Cells &given) -> Cells {
        const std::string string = PostScriptString(given[0]);
        EXPECT_LE(string.size(), 93u);
        return {string};
    });
}

TEST(PPDTickets, TypedTextHasNoControls)
{
    CheckRows("typed-texts", [](const Cells &given) -> Cells { return {WithoutControls(given[0])}; });
}

TEST(PPDTickets, WordsOfWhatIsAdded)
{
    const TestPPD ppd("*OVTicket a: \"nocollate\"\n*OVTicket b: \"COLLATE=true\"\n*OVTicket c: \"x=collate\"\n");
    for (const auto &[given, text] : {std::pair("a=1", "a=1 nocollate"), {"b=1", "b=1 COLLATE"}, {"c=1", "c=1 x"}}) {
        const char *const argv[] = {"", "1", "taro", "Report", "1", given, nullptr};
        EXPECT_STREQ(OptionsOfJob(argv).text, text);
    }
}

// The user's name and the title are part of what the options come from.
TEST(PPDTickets, FollowTheJob)
{
    const TestPPD first("*OVTicket a: \"b='{user} {title}'\"\n");
    const char *argv[] = {"", "1", "taro", "Report", "1", "a=1", nullptr};
    EXPECT_EQ(Added(argv), "b=taro Report");
    argv[2] = "jiro";
    EXPECT_EQ(Added(argv), "b=jiro Report");
    argv[3] = "Letter";
    EXPECT_EQ(Added(argv), "b=jiro Letter");
    const TestPPD second("*OVTicket a: \"c=1\"\n");
    EXPECT_EQ(Added(argv), "c=1");
}
