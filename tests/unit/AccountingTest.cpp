// Job accounting where no job gets to: a sender without a name or with an address, and which of the rows that print the
// same line answers a choice.
#include "JBA.h"

#include "JobState.h"
#include "Rows.h"

#include <cstring>

static JBAOptions &option = zpjlOptionJBA;

// What a job of this sender prints; the dialog may give an address as well.
static std::string Lines(const char *host, const char *user, const char *address, const char *dialogAddress)
{
    strcpy(HostNameStr, host);
    strcpy(StdUserName, user);
    strcpy(StdJBAUserName, user);
    strcpy(IPAddressStr, address);
    strcpy(option.ipAddress, dialogAddress);
    std::string lines = Printed([] { JBAOutputZPJLCommandFromFilter(nullptr); });
    ClearJobState();
    return lines;
}

TEST(Accounting, SenderWithoutNameOrWithAddress)
{
    JBAInializeDescriptionTableFromFilter();
    EXPECT_EQ(Lines("desk", "", "192.0.2.1", "192.0.2.2"), "@PJL SET JOBATTR=\"@CNAM=desk\"\n"
                                                           "@PJL SET JOBATTR=\"@LUNA=UnknownUser\"\n"
                                                           "@PJL SET JOBATTR=\"@HOAD=192.0.2.2\"\n");
    const std::string unknown = "@PJL SET JOBATTR=\"@CNAM=UnknownHost\"\n@PJL SET JOBATTR=\"@LUNA=UnknownUser\"\n";
    EXPECT_EQ(Lines("", "", "192.0.2.1", ""), unknown + "@PJL SET JOBATTR=\"@HOAD=192.0.2.1\"\n");

    // Nor does the login name of nobody charge anybody.
    option.userSetting = option.adminUserSetting = option.userIDList = option.adminUserIDList = 1;
    const std::string account = "@PJL SET JOBATTR=\"@DAID=\"\r\n";
    for (const char *password : {"", "x"})
        for (const int32_t list : {0, 1, 3})
            for (const int32_t mode : {JBAModeListAdmin, JBAModeListUser}) {
                strcpy(mode == JBAModeListAdmin ? option.adminUserPassword : option.userPassword, password);
                option.infoList = list;
                option.manageType = mode;
                EXPECT_EQ(Lines("", "", "", ""), mode == JBAModeListAdmin ? account + unknown : unknown + account);
            }
}

// The rows that name the user, by the printers' interface: the administrator's begin at row 1, the user's at row 8, and
// row 13 is for jobs that did not pass through the dialog.
TEST(Accounting, EachChoiceHasItsRow)
{
    JBAInializeDescriptionTableFromFilter();
    strcpy(StdUserName, "taro");
    option.userSetting = option.adminUserSetting = 1;
    strcpy(option.userID, "x");
    strcpy(option.adminUserID, "x");
    const int32_t choices[][4] = {// userIDList, infoList, infoSetList, row of the administrator
                                  {1, 0, 3, 1}, {1, 0, 8, 1}, {1, 2, 3, 2}, {1, 1, 3, 3}, {1, 3, 3, 4},
                                  {1, 1, 8, 5}, {1, 2, 8, 5}, {1, 3, 8, 5}, {2, 3, 3, 6}};
    for (const auto &[list, info, set, row] : choices) {
        option.userIDList = option.adminUserIDList = list;
        option.infoList = info;
        option.infoSetList = set;
        for (int32_t i = 1; i <= 6; i++) {
            SCOPED_TRACE(testing::Message() << list << ' ' << info << '/' << set << ", row " << i);
            option.manageType = 1;
            EXPECT_EQ(ConditionCompare(*JBAFmtTableAdmin[i - 1].comparation), i == row);
            option.manageType = 2;
            EXPECT_EQ(ConditionCompare(*JBAFmtTableCommon[i + (i == 6 ? 7 : 6)].comparation), i == row);
        }
    }
    for (option.userIDTicketAbsent = 0; option.userIDTicketAbsent < 2; option.userIDTicketAbsent++)
        EXPECT_EQ(ConditionCompare(*JBAFmtTableCommon[12].comparation), option.userIDTicketAbsent == 1);
}
