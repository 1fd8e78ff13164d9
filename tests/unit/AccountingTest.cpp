// Job accounting where no job gets to, and that it names one user, password and account whatever is filled in.
#include "JBA.h"

#include "JobState.h"
#include "Rows.h"

#include <algorithm>
#include <cstring>

static const std::string sender = "@PJL SET JOBATTR=\"@CNAM=desk\"\n@PJL SET JOBATTR=\"@LUNA=taro\"\n";

static std::string Lines()
{
    return Printed([] { JBAOutputZPJLCommandFromFilter(nullptr); });
}

// Expects so many lines of a user and as many of a password, of an account, and of a storage and its password.
static void ExpectLines(int users, int accounts, int storages)
{
    const std::string lines = Lines();
    const auto count = [&lines](const std::string &attribute) {
        int found = 0;
        for (size_t at = 0; (at = lines.find("\"@" + attribute + "=", at)) != std::string::npos; at++)
            found++;
        return found;
    };
    EXPECT_TRUE(count("JOAU") == users && count("JOEP") == users && count("DAID") == accounts &&
                count("ACID") == storages && count("ACEP") == storages && lines.find("=\"@PJL") == std::string::npos &&
                lines.ends_with('\n')) // no line without its value
        << lines;
}

class Accounting : public testing::Test
{
  protected:
    void SetUp() override
    {
        JBAInializeDescriptionTableFromFilter();
        strcpy(HostNameStr, "desk");
        strcpy(StdUserName, "taro");
        strcpy(StdJBAUserName, "taro");
        for (char *text : {IPAddressStr, StdDocumentName, StdNUpInfo})
            *text = '\0';
    }
    JBAOptions &option = zpjlOptionJBA;
};

// The rows of the table whose conditions hold and whose lines name the user, counted from 1.
static std::vector<int32_t> UserRows(const FmtTableRow *table, int32_t count)
{
    std::vector<int32_t> rows;
    for (int32_t i = 0; i < count; i++)
        if (strstr(table[i].prtfmtStr, "@JOAU=") && ConditionCompare(*table[i].comparation))
            rows.push_back(i + 1);
    return rows;
}

// Rows that print the same line answer different choices; the printers' interface numbers them.
TEST_F(Accounting, EachChoiceHasItsRow)
{
    option.userSetting = option.adminUserSetting = 1;
    strcpy(option.userID, "x");
    strcpy(option.adminUserID, "x");
    const int32_t choices[][4] = {// userIDList, infoList, infoSetList, row of the administrator
                                  {1, 0, 3, 1}, {1, 0, 8, 1}, {1, 2, 3, 2}, {1, 1, 3, 3}, {1, 3, 3, 4},
                                  {1, 1, 8, 5}, {1, 2, 8, 5}, {1, 3, 8, 5}, {2, 3, 3, 6}};
    for (const auto &[list, info, set, row] : choices) {
        SCOPED_TRACE(testing::Message() << list << " " << info << "/" << set);
        option.userIDList = option.adminUserIDList = list;
        option.infoList = info;
        option.infoSetList = set;
        option.manageType = 1;
        EXPECT_EQ(UserRows(JBAFmtTableAdmin, JBAFmtTableAdminNum), std::vector{row});
        option.manageType = 2;
        const int32_t common = row + (row == 6 ? 8 : 7); // row 13 is for jobs that did not pass through the dialog
        EXPECT_EQ(UserRows(JBAFmtTableCommon, JBAFmtTableCommonNum), std::vector{common});
        option.userIDTicketAbsent = 1;
        EXPECT_EQ(UserRows(JBAFmtTableCommon, JBAFmtTableCommonNum),
                  (std::vector{std::min(common, 13), std::max(common, 13)}));
        option.userIDTicketAbsent = 0;
    }
}

TEST_F(Accounting, UnknownHostAndUser)
{
    for (const std::string host : {"desk", ""})
        for (const std::string user : {"taro", ""}) {
            strcpy(HostNameStr, host.c_str());
            strcpy(StdUserName, user.c_str());
            EXPECT_EQ(Lines(), "@PJL SET JOBATTR=\"@CNAM=" + (host.empty() ? "UnknownHost" : host) +
                                   "\"\n@PJL SET JOBATTR=\"@LUNA=" + (user.empty() ? "UnknownUser" : user) + "\"\n");
        }
    option.userSetting = option.adminUserSetting = option.userIDList = option.adminUserIDList = 1;
    for (const char *password : {"", "x"})
        for (const int32_t list : {0, 1, 3})
            for (const int32_t mode : {1, 2}) {
                strcpy(option.userPassword, password);
                strcpy(option.adminUserPassword, password);
                option.infoList = list;
                option.manageType = mode;
                ExpectLines(0, 1, 0);
            }
}

TEST_F(Accounting, AddressOfTheHostUnlessTheDialogGivesOne)
{
    strcpy(IPAddressStr, "192.0.2.1");
    EXPECT_EQ(Lines(), sender + "@PJL SET JOBATTR=\"@HOAD=192.0.2.1\"\n");
    strcpy(option.ipAddress, "192.0.2.2");
    EXPECT_EQ(Lines(), sender + "@PJL SET JOBATTR=\"@HOAD=192.0.2.2\"\n");
}

TEST_F(Accounting, OneLineOfAKindWhateverIsFilledIn)
{
    char *const texts[][3] = {{option.userID, option.adminUserID, option.inputUserID},
                              {option.userPassword, option.adminUserPassword, option.inputUserPassword},
                              {option.accountID, option.adminAccountID, option.inputAccountID},
                              {option.storageID, option.adminStorageID, option.inputStorageID},
                              {option.storagePassword, option.adminStoragePassword, option.inputStoragePassword},
                              {option.domainName, option.adminDomainName, option.inputDomainName}};
    for (int choice = 0; choice < 1024; choice++) {
        SCOPED_TRACE(choice);
        for (int i = 0; i < 6; i++)
            for (char *text : texts[i])
                strcpy(text, i == 5 || choice & 1 << i ? "x" : "");
        const bool named = choice & 1, stored = choice & 8;
        option.infoList = choice >> 5 & 3;
        option.infoSetList = choice & 128 ? 8 : 3;
        option.userIDList = option.adminUserIDList = choice >> 8 & 3;
        for (option.manageType = 0; option.manageType <= 2; option.manageType++) {
            const bool admin = option.manageType == 1;
            int32_t &setting = admin ? option.adminUserSetting : option.userSetting;
            int32_t &input = admin ? option.adminUserInput : option.userInput;

            // The other one's settings never count.
            option.userSetting = option.adminUserSetting = option.userInput = option.adminUserInput = 1;
            option.inputAuth = option.inputStorage = 1;
            if (option.manageType != 0)
                setting = input = 0;
            EXPECT_EQ(Lines(), sender);
            if (option.manageType == 0)
                continue;
            setting = 1;
            ExpectLines(option.userIDList == 1 || (option.userIDList == 2 && named), 1, stored);
            setting = 0;
            input = 1;
            option.inputStorage = 0;
            ExpectLines(1, 1, 0);
            option.inputAuth = 0;
            EXPECT_EQ(Lines(), sender);
            option.inputStorage = 1;
            ExpectLines(1, option.infoList != 0, stored);
        }
    }
}
