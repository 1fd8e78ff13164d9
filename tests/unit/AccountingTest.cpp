// Job accounting where no job gets to, and that it names one user, password and account whatever is filled in.
#include "JBA.h"
#include "JobState.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

static std::string Lines()
{
    testing::internal::CaptureStdout();
    JBAOutputZPJLCommandFromFilter(nullptr);
    return testing::internal::GetCapturedStdout();
}

static int Count(const std::string &lines, const std::string &attribute)
{
    int count = 0;
    for (size_t at = 0; (at = lines.find("\"@" + attribute + "=", at)) != std::string::npos; at++)
        count++;
    return count;
}

static const char sender[] = "@PJL SET JOBATTR=\"@CNAM=desk\"\n@PJL SET JOBATTR=\"@LUNA=taro\"\n";

class Accounting : public testing::Test
{
  protected:
    void SetUp() override
    {
        JBAInializeDescriptionTableFromFilter();
        zpjlOptionJBA = {};
        strcpy(HostNameStr, "desk");
        strcpy(StdUserName, "taro");
        strcpy(StdJBAUserName, "taro");
        for (char *text : {IPAddressStr, StdDocumentName, StdNUpInfo})
            *text = '\0';
    }
};

TEST_F(Accounting, UnknownHostAndUser)
{
    *HostNameStr = '\0';
    *StdUserName = '\0';
    EXPECT_EQ(Lines(), "@PJL SET JOBATTR=\"@CNAM=UnknownHost\"\n@PJL SET JOBATTR=\"@LUNA=UnknownUser\"\n");

    JBAOptions &option = zpjlOptionJBA;
    option.userSetting = option.adminUserSetting = option.userIDList = option.adminUserIDList = 1;
    for (const char *password : {"", "x"})
        for (const int32_t list : {0, 1, 3})
            for (const int32_t mode : {1, 2}) {
                strcpy(option.userPassword, password);
                strcpy(option.adminUserPassword, password);
                option.infoList = list;
                option.manageType = mode;
                EXPECT_EQ(Count(Lines(), "JOAU") + Count(Lines(), "JOEP"), 0) << mode << ' ' << list << password;
            }
}

TEST_F(Accounting, AddressOfTheHostUnlessTheDialogGivesOne)
{
    strcpy(IPAddressStr, "192.0.2.1");
    EXPECT_EQ(Lines(), sender + std::string("@PJL SET JOBATTR=\"@HOAD=192.0.2.1\"\n"));
    strcpy(zpjlOptionJBA.ipAddress, "192.0.2.2");
    EXPECT_EQ(Lines(), sender + std::string("@PJL SET JOBATTR=\"@HOAD=192.0.2.2\"\n"));
}

// The layout and paper tickets share their buffers with other modules.
TEST_F(Accounting, SharedTicketsAreCut)
{
    const std::string paper = "com.apple.print.subTicket.paper_info_ticket..d."
                              "com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.";
    const std::string page = "com.apple.print.subTicket.page_format_ticket..d." + paper;
    const std::string digits = "34567890123456789012";
    const struct {
        std::string key;
        const char *buffer;
        std::string value;
        size_t size;
    } tickets[] = {
        {"com.apple.print.PrintSettings.PMLayoutDirection..n.", StdLayoutDirectionInfo, "01", 10},
        {"com.apple.print.PrintSettings.PMLayoutRows..n.", StdLayoutRowInfo, "02", 10},
        {"com.apple.print.PrintSettings.PMLayoutColumns..n.", StdLayoutColumnInfo, "03", 10},
        {page + "1..n.", StdPaperInfoRectOriginXKey, "04", 20},
        {page + "0..n.", StdPaperInfoRectOriginYKey, "05", 20},
        {page + "2..n.", StdPaperInfoRectHeightKey, "06", 20},
        {page + "3..n.", StdPaperInfoRectWidthKey, "07", 20},
        {paper + "1..n.", StdAdobePaperInfoRectOriginXKey, "08", 20},
        {paper + "0..n.", StdAdobePaperInfoRectOriginYKey, "09", 20},
        {paper + "2..n.", StdAdobePaperInfoRectHeightKey, "10", 20},
        {paper + "3..n.", StdAdobePaperInfoRectWidthKey, "11", 20},
    };
    std::string options = "number-up=1234567890 com.orvane.dlg.printsettings.JBAMacHostNameStringTicket=desk";
    for (const auto &ticket : tickets)
        options += " " + ticket.key + "=" + ticket.value + digits;
    const char *const argv[] = {"pstoorvane", "1", "taro", "Report", "1", options.c_str(), nullptr};
    JBAGetTicketFromPDE(argv);

    for (const auto &ticket : tickets)
        EXPECT_EQ(ticket.buffer, (ticket.value + digits).substr(0, ticket.size - 1)) << ticket.key;
    EXPECT_STREQ(StdNUpInfo, "N12345678");
    EXPECT_STREQ(StdLayoutInfo, "123456789");
    EXPECT_STREQ(zpjlOptionJBA.hostName, "desk");
}

// Fills the domains, and the texts whose bit is set.
static void FillTexts(int bits)
{
    JBAOptions &option = zpjlOptionJBA;
    for (char *domain : {option.domainName, option.adminDomainName, option.inputDomainName})
        strcpy(domain, "office");
    char *const texts[][3] = {{option.userID, option.adminUserID, option.inputUserID},
                              {option.userPassword, option.adminUserPassword, option.inputUserPassword},
                              {option.accountID, option.adminAccountID, option.inputAccountID},
                              {option.storageID, option.adminStorageID, option.inputStorageID},
                              {option.storagePassword, option.adminStoragePassword, option.inputStoragePassword}};
    for (const auto &group : texts) {
        for (char *text : group)
            strcpy(text, bits & 1 ? "x" : "");
        bits /= 2;
    }
}

static void CheckStoredSettings(bool name, int texts)
{
    const std::string lines = Lines();
    const int users = name && !(texts & 1) ? 0 : 1;
    EXPECT_EQ(Count(lines, "JOAU"), users);
    EXPECT_EQ(Count(lines, "JOEP"), users);
    EXPECT_EQ(Count(lines, "DAID"), 1);
    EXPECT_EQ(Count(lines, "ACID"), texts & 8 ? 1 : 0);
    EXPECT_EQ(Count(lines, "ACEP"), texts & 8 ? 1 : 0);
}

static void CheckJobIdentity()
{
    const std::string lines = Lines();
    for (const char *attribute : {"JOAU", "JOEP", "DAID"})
        EXPECT_EQ(Count(lines, attribute), 1) << attribute;
    EXPECT_EQ(Count(lines, "ACID") + Count(lines, "ACEP"), 0);
}

static void CheckJobStorage(int texts)
{
    const std::string lines = Lines();
    EXPECT_EQ(Count(lines, "JOAU"), 1);
    EXPECT_EQ(Count(lines, "JOEP"), 1);
    EXPECT_EQ(Count(lines, "DAID"), zpjlOptionJBA.infoList != 0 ? 1 : 0);
    EXPECT_EQ(Count(lines, "ACID"), texts & 8 ? 1 : 0);
    EXPECT_EQ(Count(lines, "ACEP"), texts & 8 ? 1 : 0);
}

TEST_F(Accounting, OneLineOfAKindWhateverIsFilledIn)
{
    JBAOptions &option = zpjlOptionJBA;
    for (int texts = 0; texts < 32; texts++)
        for (int choice = 0; choice < 16; choice++) {
            SCOPED_TRACE("texts " + std::to_string(texts) + ", choice " + std::to_string(choice));
            FillTexts(texts);
            option.infoList = choice & 3;
            option.infoSetList = choice & 4 ? 8 : 3;
            option.userIDList = option.adminUserIDList = choice & 8 ? 2 : 1;
            for (const bool admin : {false, true}) {
                int32_t &stored = admin ? option.adminUserSetting : option.userSetting;
                int32_t &input = admin ? option.adminUserInput : option.userInput;
                option.manageType = admin ? 1 : 2;

                // The other one's settings never count.
                option.userSetting = option.adminUserSetting = option.userInput = option.adminUserInput = 1;
                option.inputAuth = option.inputStorage = 1;
                stored = input = 0;
                EXPECT_EQ(Lines(), sender);
                stored = 1;
                CheckStoredSettings(option.userIDList == 2, texts);
                stored = 0;
                input = 1;
                option.inputStorage = 0;
                CheckJobIdentity();
                option.inputAuth = 0;
                EXPECT_EQ(Lines(), sender);
                option.inputStorage = 1;
                CheckJobStorage(texts);
            }
            option.userSetting = option.adminUserSetting = option.userInput = option.adminUserInput = 1;
            option.inputAuth = 1;
            option.manageType = 0;
            EXPECT_EQ(Lines(), sender);
        }
}

TEST_F(Accounting, NoStoredUserWithoutAChoiceOfName)
{
    FillTexts(31);
    zpjlOptionJBA.userSetting = zpjlOptionJBA.adminUserSetting = 1;
    for (const int32_t mode : {1, 2}) {
        zpjlOptionJBA.manageType = mode;
        const std::string lines = Lines();
        EXPECT_EQ(Count(lines, "JOAU") + Count(lines, "JOEP"), 0);
        EXPECT_EQ(Count(lines, "DAID"), 1);
    }
}
