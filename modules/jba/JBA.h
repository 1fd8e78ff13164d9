// JBA: job accounting: who sent the job, from where, on which account, and where the printer stores it.
// Reads the user's and the administrator's settings into a record and writes them as job attributes.
#pragma once

#include "CommandTable.h"
#include "PasswordTicket.h"
#include "TicketReader.h"

#include <cstdint>

// The tickets.
inline constexpr char kJBAHostName[] = "com.orvane.dlg.printsettings.JBAMacHostNameStringTicket";
inline constexpr char kJBAIPAddressStringTicketKey[] = "com.orvane.dlg.printsettings.JBAIPAddressStringTicket";
inline constexpr char kJBAInfoListTicketKey[] = "com.orvane.dlg.printsettings.JBAInfoListTicketKey";
inline constexpr char kJBAInfoSetLboxTicketKey[] = "com.orvane.dlg.printsettings.JBAInfoSetListTicketKey";
inline constexpr char kJBAMngTypeListBoxTicketKey[] = "com.orvane.dlg.printsettings.JBAManageTypeListTicketKey";

inline constexpr char kJBAJobInfoRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAUserSettingRadioBtnTicket";
inline constexpr char kJBAUserIDListCtrlTicketKey[] = "com.orvane.dlg.printsettings.JBAUserIDListCtrlTicket";
inline constexpr char kJBAUserIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAUserIDTextEditTicket";
inline constexpr char kJBADomainNameTicketKey[] = "com.orvane.dlg.printsettings.JBADomainNameTextEditTicket";
inline constexpr char kJBAUserIDPasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAUserPasswordTextEditTicket";
inline constexpr char kJBAAccountIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAAccountIDTextEditTicket";
inline constexpr char kJBAStorageIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAStorageIDTextEditTicket";
inline constexpr char kJBAStoragePasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAStoragePasswordTextEditTicket";
inline constexpr char kJBAJobInputRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAUserInputRadioBtnTicket";

inline constexpr char kJBAJobInfoRadioBtnTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminUserSettingRadioBtnTicket";
inline constexpr char kJBAUserIDListCtrlTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminUserIDListCtrlTicket";
inline constexpr char kJBAUserIDTextEditTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminUserIDTextEditTicket";
inline constexpr char kJBADomainNameTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminDomainNameTextEditTicket";
inline constexpr char kJBAUserIDPasswordTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminUserPasswordTextEditTicket";
inline constexpr char kJBAAccountIDTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminAccountIDTextEditTicket";
inline constexpr char kJBAStorageIDTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminStorageIDTextEditTicket";
inline constexpr char kJBAStoragePasswordTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminStoragePasswordTextEditTicket";
inline constexpr char kJBAJobInputRadioBtnTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminUserInputRadioBtnTicket";

inline constexpr char kJBAInputAuthRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAInputAuthRadioBtnTicketKey";
inline constexpr char kJBAInputStrgRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAInputStrgRadioBtnTicketKey";
inline constexpr char kJBAInputStorageIDTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputStorageIDTextEditTicket";
inline constexpr char kJBAInputStoragePasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputStoragePasswordTextEditTicket";
inline constexpr char kJBAInputUserIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAInputUserIDTextEditTicket";
inline constexpr char kJBAInputDomainNameTicketKey[] = "com.orvane.dlg.printsettings.JBAInputDomainNameTextEditTicket";
inline constexpr char kJBAInputUserIDPasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputUserPasswordTextEditTicket";
inline constexpr char kJBAInputAccountIDTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputAccountIDTextEditTicket";

// The system's flattened print settings. The number after "..a." is a paper rectangle's: 0 the origin's y, 1 its x,
// 2 the height, 3 the width.
inline constexpr char kLayoutRowCountTicketKey[] = "com.apple.print.PrintSettings.PMLayoutRows..n.";
inline constexpr char kLayoutColumnCountTicketKey[] = "com.apple.print.PrintSettings.PMLayoutColumns..n.";
inline constexpr char KPaperInfoRectOriginXTicketKey[] =
    "com.apple.print.subTicket.page_format_ticket..d.com.apple.print.subTicket.paper_info_ticket..d."
    "com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.1..n.";
inline constexpr char KPaperInfoRectOriginYTicketKey[] =
    "com.apple.print.subTicket.page_format_ticket..d.com.apple.print.subTicket.paper_info_ticket..d."
    "com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.0..n.";
inline constexpr char KPaperInfoRectHeightTicketKey[] =
    "com.apple.print.subTicket.page_format_ticket..d.com.apple.print.subTicket.paper_info_ticket..d."
    "com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.2..n.";
inline constexpr char KPaperInfoRectWidthTicketKey[] =
    "com.apple.print.subTicket.page_format_ticket..d.com.apple.print.subTicket.paper_info_ticket..d."
    "com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.3..n.";
inline constexpr char KAdobePaperInfoRectOriginXTicketKey[] =
    "com.apple.print.subTicket.paper_info_ticket..d.com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.1..n.";
inline constexpr char KAdobePaperInfoRectOriginYTicketKey[] =
    "com.apple.print.subTicket.paper_info_ticket..d.com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.0..n.";
inline constexpr char KAdobePaperInfoRectHeightTicketKey[] =
    "com.apple.print.subTicket.paper_info_ticket..d.com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.2..n.";
inline constexpr char KAdobePaperInfoRectWidthTicketKey[] =
    "com.apple.print.subTicket.paper_info_ticket..d.com.apple.print.PaperInfo.PMUnadjustedPaperRect..a.3..n.";

// manageType: whose settings count.
inline constexpr int32_t JBAModeListUser = 2;
inline constexpr int32_t JBAModeListAdmin = 1;

// infoList: what the printer accounts by.
inline constexpr int32_t JBAInfoListNotExist = 0;
inline constexpr int32_t JBAInfoListUserAccntSelect = 1;
inline constexpr int32_t JBAInfoListBillingSelect = 2;
inline constexpr int32_t JBAInfoListAllSelect = 3;

// infoSetList: the value that hides the user's name.
inline constexpr int32_t Case_8 = 8;

// A radio button of the dialog that is on.
inline constexpr int32_t OptionUserInputTypeSelected = 1;
inline constexpr int32_t OptionUserInputTypeSelectedAdmin = 1;

// userIDList: the login name or the entered one.
inline constexpr int32_t OptionComInUserTypeUseLogin = 1;
inline constexpr int32_t OptionComInUserTypeEnterName = 2;
inline constexpr int32_t OptionComInUserTypeUseLoginAdmin = 1;
inline constexpr int32_t OptionComInUserTypeEnterNameAdmin = 2;

// userIDTicketAbsent: the job carries no user ID.
inline constexpr int32_t JBAUserNameNotExist = 1;

// Integers are -1 and texts empty when their ticket is absent.
struct JBAOptions {
    char hostName[33]; // no line sends it
    char ipAddress[46];
    int32_t infoList;
    int32_t infoSetList;
    int32_t manageType;

    // What the user stored in the dialog.
    int32_t userSetting;
    int32_t userIDList;
    char userID[97];
    char domainName[65];
    char userPassword[kEncryptedPasswordSize];
    char accountID[33];
    char storageID[73];
    char storagePassword[kEncryptedPasswordSize];
    int32_t userInput;

    // What the administrator stored.
    int32_t adminUserSetting;
    int32_t adminUserIDList;
    char adminUserID[97];
    char adminDomainName[65];
    char adminUserPassword[kEncryptedPasswordSize];
    char adminAccountID[33];
    char adminStorageID[73];
    char adminStoragePassword[kEncryptedPasswordSize];
    int32_t adminUserInput;

    // What was entered for this job.
    int32_t inputAuth;
    int32_t inputStorage;
    char inputStorageID[73];
    char inputStoragePassword[kEncryptedPasswordSize];
    char inputUserID[97];
    char inputDomainName[65];
    char inputUserPassword[kEncryptedPasswordSize];
    char inputAccountID[33];

    int32_t userIDTicketAbsent; // 1 when the job carries no user ID at all: it didn't pass through the dialog
};
extern JBAOptions zpjlOptionJBA;

// All tickets but the administrator's, and the administrator's.
extern const TicketTable JBAticketDataCommon;
extern const TicketTable JBAticketDataCommonForUTF8;
extern const int32_t JBATicketDataNumCommon;
extern const TicketTable JBAticketDataAdmin;
extern const TicketTable JBAticketDataAdminForUTF8;
extern const int32_t JBATicketDataNumAdmin;

// The lines of administrator mode, and those of user mode with what every job sends.
extern const FmtTableRow JBAFmtTableAdmin[];
extern const int32_t JBAFmtTableAdminNum;
extern const FmtTableRow JBAFmtTableCommon[];
extern const int32_t JBAFmtTableCommonNum;

// Puts the record back to the start of a job.
void JBAInializeDescriptionTableFromFilter();

// Reads the tickets, user and storage IDs in the encoding of the job, and the layout and paper tickets into the buffers
// that modules share, of which most have no reader.
void JBAGetTicketFromPDE(const char *const *argv);

// Writes the administrator's lines, then the common ones.
void JBAOutputZPJLCommandFromFilter(const char *const *argv);
