// What a PPD's rows add to a job's options. Whole jobs with them stand in data/jobs/ppdtickets.jobs.
#include "PPDTickets.h"

#include "PPDLookup.h"
#include "Rows.h"
#include "TestPPD.h"

#include <sstream>

static const char prefix[] = "com.orvane.dlg.printsettings.";

// One option is like any, one has a custom choice, one is a switch, and one hides its default.
static const char options[] = R"(
*OpenUI *OVPick/Pick: PickOne
*DefaultOVPick: None
*OVPick None/None: ""
*OVPick On/On: ""
*OVPick Custom/Custom: ""
*CloseUI: *OVPick
*OpenUI *OVPin/PIN: PickOne
*OrderDependency: 10 JCLSetup *OVPin
*DefaultOVPin: None
*OVPin None/None: ""
*JCLCloseUI: *OVPin
*CustomOVPin True: ""
*ParamCustomOVPin PIN/PIN: 1 passcode 4 8
*OpenUI *OVSwitch/Switch: Boolean
*DefaultOVSwitch: False
*OVSwitch True/On: ""
*OVSwitch False/Off: ""
*CloseUI: *OVSwitch
*OpenUI *OVHidden/Hidden: PickOne
*DefaultOVHidden: Unknown
*OVHidden None/None: ""
*CloseUI: *OVHidden
*CustomOVHidden True: ""
*ParamCustomOVHidden Text/Text: 1 string 1 8
)";

// "OPTION.CHOICE: text ; ..." as a PPD; a "Keyword = value" stands for another attribute.
static std::string PPDText(const std::string &cell)
{
    std::string text = options;
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

static std::string Listed(const JobOptions &job)
{
    std::string list;
    for (int32_t i = 0; i < job.count; i++) {
        std::string name = job.list[i].name;
        if (name.starts_with(prefix))
            name.erase(0, sizeof prefix - 2);
        list += (i > 0 ? ", " : "") + name + "=" + job.list[i].value;
    }
    return list;
}

TEST(PPDTickets, CompleteTheOptions)
{
    CheckRows("ppd-tickets", [](const Cells &given) -> Cells {
        const TestPPD ppd(PPDText(given[0]));
        const char *const argv[] = {"", "1", "taro", "A \"Report\"", "1", given[1].c_str(), nullptr};
        return {Listed(OptionsOfJob(argv))};
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
    EXPECT_EQ(Listed(OptionsOfJob(argv)), "a=1, b=taro Report");
    argv[2] = "jiro";
    EXPECT_EQ(Listed(OptionsOfJob(argv)), "a=1, b=jiro Report");
    argv[3] = "Letter";
    EXPECT_EQ(Listed(OptionsOfJob(argv)), "a=1, b=jiro Letter");
    const TestPPD second("*OVTicket a: \"c=1\"\n");
    EXPECT_EQ(Listed(OptionsOfJob(argv)), "a=1, c=1");
}
