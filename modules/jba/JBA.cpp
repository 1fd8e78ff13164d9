#include "JBA.h"

#include "JobState.h"
#include "PPDLookup.h"
#include "TicketReader.h"

#include <array>

JBAOptions zpjlOptionJBA;

static const char kJBAHostName[] = "com.orvane.dlg.printsettings.JBAMacHostNameStringTicket";
static const char kJBAIPAddressStringTicketKey[] = "com.orvane.dlg.printsettings.JBAIPAddressStringTicket";
static const char kJBAInfoListTicketKey[] = "com.orvane.dlg.printsettings.JBAInfoListTicketKey";
static const char kJBAInfoSetLboxTicketKey[] = "com.orvane.dlg.printsettings.JBAInfoSetListTicketKey";
static const char kJBAMngTypeListBoxTicketKey[] = "com.orvane.dlg.printsettings.JBAManageTypeListTicketKey";

static const char kJBAJobInfoRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAUserSettingRadioBtnTicket";
static const char kJBAUserIDListCtrlTicketKey[] = "com.orvane.dlg.printsettings.JBAUserIDListCtrlTicket";
static const char kJBAUserIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAUserIDTextEditTicket";
static const char kJBADomainNameTicketKey[] = "com.orvane.dlg.printsettings.JBADomainNameTextEditTicket";
static const char kJBAUserIDPasswordTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAUserPasswordTextEditTicket";
static const char kJBAAccountIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAAccountIDTextEditTicket";
static const char kJBAStorageIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAStorageIDTextEditTicket";
static const char kJBAStoragePasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAStoragePasswordTextEditTicket";
static const char kJBAJobInputRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAUserInputRadioBtnTicket";

static const char kJBAJobInfoRadioBtnTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminUserSettingRadioBtnTicket";
static const char kJBAUserIDListCtrlTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminUserIDListCtrlTicket";
static const char kJBAUserIDTextEditTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminUserIDTextEditTicket";
static const char kJBADomainNameTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminDomainNameTextEditTicket";
static const char kJBAUserIDPasswordTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminUserPasswordTextEditTicket";
static const char kJBAAccountIDTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminAccountIDTextEditTicket";
static const char kJBAStorageIDTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminStorageIDTextEditTicket";
static const char kJBAStoragePasswordTextEditTicketKeyAdmin[] =
    "com.orvane.dlg.printsettings.JBAAdminStoragePasswordTextEditTicket";
static const char kJBAJobInputRadioBtnTicketKeyAdmin[] = "com.orvane.dlg.printsettings.JBAAdminUserInputRadioBtnTicket";

static const char kJBAInputAuthRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAInputAuthRadioBtnTicketKey";
static const char kJBAInputStrgRadioBtnTicketKey[] = "com.orvane.dlg.printsettings.JBAInputStrgRadioBtnTicketKey";
static const char kJBAInputStorageIDTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputStorageIDTextEditTicket";
static const char kJBAInputStoragePasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputStoragePasswordTextEditTicket";
static const char kJBAInputUserIDTextEditTicketKey[] = "com.orvane.dlg.printsettings.JBAInputUserIDTextEditTicket";
static const char kJBAInputDomainNameTicketKey[] = "com.orvane.dlg.printsettings.JBAInputDomainNameTextEditTicket";
static const char kJBAInputUserIDPasswordTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputUserPasswordTextEditTicket";
static const char kJBAInputAccountIDTextEditTicketKey[] =
    "com.orvane.dlg.printsettings.JBAInputAccountIDTextEditTicket";

// The system's flattened print settings. The number behind "..a." is a paper rectangle's: 0 the origin's y, 1 its x,
// 2 the height, 3 the width.
#define PAPER_RECT "com.apple.print.subTicket.paper_info_ticket..d.com.apple.print.PaperInfo.PMUnadjustedPaperRect"
#define PAGE_FORMAT "com.apple.print.subTicket.page_format_ticket..d."
static const char kLayoutRowCountTicketKey[] = "com.apple.print.PrintSettings.PMLayoutRows..n.";
static const char kLayoutColumnCountTicketKey[] = "com.apple.print.PrintSettings.PMLayoutColumns..n.";
static const char KPaperInfoRectOriginXTicketKey[] = PAGE_FORMAT PAPER_RECT "..a.1..n.";
static const char KPaperInfoRectOriginYTicketKey[] = PAGE_FORMAT PAPER_RECT "..a.0..n.";
static const char KPaperInfoRectHeightTicketKey[] = PAGE_FORMAT PAPER_RECT "..a.2..n.";
static const char KPaperInfoRectWidthTicketKey[] = PAGE_FORMAT PAPER_RECT "..a.3..n.";
static const char KAdobePaperInfoRectOriginXTicketKey[] = PAPER_RECT "..a.1..n.";
static const char KAdobePaperInfoRectOriginYTicketKey[] = PAPER_RECT "..a.0..n.";
static const char KAdobePaperInfoRectHeightTicketKey[] = PAPER_RECT "..a.2..n.";
static const char KAdobePaperInfoRectWidthTicketKey[] = PAPER_RECT "..a.3..n.";

// How much of their buffers the layout and paper tickets may fill, NUL included.
constexpr int32_t kLayoutTicketSize = 10;
constexpr int32_t kPaperTicketSize = 20;

static constexpr JBAOptions &option = zpjlOptionJBA;
constexpr TicketGetter Integer = GetTicketInteger;
constexpr TicketGetter Text = GetTicketStringConvertedToPrtLang;
constexpr TicketGetter Password = GetTicketPasswordStringConvertedToEncryption;

// The tickets in the order in which they are read; `typedText` reads what the user typed as free text.
static constexpr auto CommonTickets(TicketGetter typedText)
{
    return std::to_array<ticketData>({
        {kJBAHostName, option.hostName, sizeof option.hostName, Text},
        {kJBAIPAddressStringTicketKey, option.ipAddress, sizeof option.ipAddress, Text},
        {kJBAInfoListTicketKey, &option.infoList, sizeof option.infoList, Integer},
        {kJBAInfoSetLboxTicketKey, &option.infoSetList, sizeof option.infoSetList, Integer},

        {kNumberUpTicketKey, StdNUpInfo, kLayoutTicketSize, GetNumberUpTicketString},
        {kNumberUpTicketKey, StdLayoutInfo, kLayoutTicketSize, Text},
        {kLayoutDirectionTicketKey, StdLayoutDirectionInfo, kLayoutTicketSize, Text},
        {kLayoutRowCountTicketKey, StdLayoutRowInfo, kLayoutTicketSize, Text},
        {kLayoutColumnCountTicketKey, StdLayoutColumnInfo, kLayoutTicketSize, Text},
        {KPaperInfoRectOriginXTicketKey, StdPaperInfoRectOriginXKey, kPaperTicketSize, Text},
        {KPaperInfoRectOriginYTicketKey, StdPaperInfoRectOriginYKey, kPaperTicketSize, Text},
        {KPaperInfoRectHeightTicketKey, StdPaperInfoRectHeightKey, kPaperTicketSize, Text},
        {KPaperInfoRectWidthTicketKey, StdPaperInfoRectWidthKey, kPaperTicketSize, Text},
        {KAdobePaperInfoRectOriginXTicketKey, StdAdobePaperInfoRectOriginXKey, kPaperTicketSize, Text},
        {KAdobePaperInfoRectOriginYTicketKey, StdAdobePaperInfoRectOriginYKey, kPaperTicketSize, Text},
        {KAdobePaperInfoRectHeightTicketKey, StdAdobePaperInfoRectHeightKey, kPaperTicketSize, Text},
        {KAdobePaperInfoRectWidthTicketKey, StdAdobePaperInfoRectWidthKey, kPaperTicketSize, Text},

        {kJBAMngTypeListBoxTicketKey, &option.manageType, sizeof option.manageType, Integer},
        {kJBAJobInfoRadioBtnTicketKey, &option.userSetting, sizeof option.userSetting, Integer},
        {kJBAUserIDListCtrlTicketKey, &option.userIDList, sizeof option.userIDList, Integer},
        {kJBAUserIDTextEditTicketKey, &option.userIDTicketAbsent, sizeof option.userIDTicketAbsent, CheckTicketKey},
        {kJBAUserIDTextEditTicketKey, option.userID, sizeof option.userID, typedText},
        {kJBAUserIDPasswordTextEditTicketKey, option.userPassword, sizeof option.userPassword, Password},
        {kJBADomainNameTicketKey, option.domainName, sizeof option.domainName, Text},
        {kJBAInputDomainNameTicketKey, option.inputDomainName, sizeof option.inputDomainName, Text},
        {kJBAAccountIDTextEditTicketKey, option.accountID, sizeof option.accountID, Text},
        {kJBAStorageIDTextEditTicketKey, option.storageID, sizeof option.storageID, typedText},
        {kJBAStoragePasswordTextEditTicketKey, option.storagePassword, sizeof option.storagePassword, Password},
        {kJBAJobInputRadioBtnTicketKey, &option.userInput, sizeof option.userInput, Integer},
        {kJBAInputAuthRadioBtnTicketKey, &option.inputAuth, sizeof option.inputAuth, Integer},
        {kJBAInputStrgRadioBtnTicketKey, &option.inputStorage, sizeof option.inputStorage, Integer},
        {kJBAInputStorageIDTextEditTicketKey, option.inputStorageID, sizeof option.inputStorageID, typedText},
        {kJBAInputStoragePasswordTextEditTicketKey, option.inputStoragePassword, sizeof option.inputStoragePassword,
         Password},
        {kJBAInputUserIDTextEditTicketKey, option.inputUserID, sizeof option.inputUserID, typedText},
        {kJBAInputUserIDPasswordTextEditTicketKey, option.inputUserPassword, sizeof option.inputUserPassword, Password},
        {kJBAInputAccountIDTextEditTicketKey, option.inputAccountID, sizeof option.inputAccountID, Text},
    });
}
static constexpr auto JBAticketDataCommon = CommonTickets(GetTicketStringConvertedToPrtLang);
static constexpr auto JBAticketDataCommonForUTF8 = CommonTickets(GetTicketStringConvertedToPrtLangForUTF8);
static constexpr int32_t JBATicketDataNumCommon = static_cast<int32_t>(JBAticketDataCommon.size());

static constexpr auto AdminTickets(TicketGetter typedText)
{
    return std::to_array<ticketData>({
        {kJBAJobInfoRadioBtnTicketKeyAdmin, &option.adminUserSetting, sizeof option.adminUserSetting, Integer},
        {kJBAUserIDListCtrlTicketKeyAdmin, &option.adminUserIDList, sizeof option.adminUserIDList, Integer},
        {kJBAUserIDTextEditTicketKeyAdmin, option.adminUserID, sizeof option.adminUserID, typedText},
        {kJBADomainNameTicketKeyAdmin, option.adminDomainName, sizeof option.adminDomainName, Text},
        {kJBAUserIDPasswordTextEditTicketKeyAdmin, option.adminUserPassword, sizeof option.adminUserPassword, Password},
        {kJBAAccountIDTextEditTicketKeyAdmin, option.adminAccountID, sizeof option.adminAccountID, Text},
        {kJBAStorageIDTextEditTicketKeyAdmin, option.adminStorageID, sizeof option.adminStorageID, typedText},
        {kJBAStoragePasswordTextEditTicketKeyAdmin, option.adminStoragePassword, sizeof option.adminStoragePassword,
         Password},
        {kJBAJobInputRadioBtnTicketKeyAdmin, &option.adminUserInput, sizeof option.adminUserInput, Integer},
    });
}
static constexpr auto JBAticketDataAdmin = AdminTickets(GetTicketStringConvertedToPrtLang);
static constexpr auto JBAticketDataAdminForUTF8 = AdminTickets(GetTicketStringConvertedToPrtLangForUTF8);
static constexpr int32_t JBATicketDataNumAdmin = static_cast<int32_t>(JBAticketDataAdmin.size());

void JBAInializeDescriptionTableFromFilter()
{
    JBAInitializeCmdParaTableForUser();
    JBAInitializeCmdParaTableForAdmin();
    JBAInitializeCaparationTableForUser();
    JBAInitializeCaparationTableForAdmin();
}

void JBAGetTicketFromPDE(const char *const *argv)
{
    const auto &common = IsUTF8Mode() ? JBAticketDataCommonForUTF8 : JBAticketDataCommon;
    const auto &admin = IsUTF8Mode() ? JBAticketDataAdminForUTF8 : JBAticketDataAdmin;
    GetTicketFromArray(argv, common.data(), JBATicketDataNumCommon);
    GetTicketFromArray(argv, admin.data(), JBATicketDataNumAdmin);
}

void JBAOutputZPJLCommandFromFilter(const char *const *argv)
{
    OutputZPJLCommandFromArray(argv, JBAFmtTableAdmin, JBAFmtTableAdminNum);
    OutputZPJLCommandFromArray(argv, JBAFmtTableCommon, JBAFmtTableCommonNum);
}
