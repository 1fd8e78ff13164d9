// The lines of administrator mode, in output order, and the tickets of the administrator's settings.
// "ComIn" rows send what is stored in the dialog, "JobIn" rows what was entered for this job.
#include "JBAConditions.h"

#include "JobState.h"

#include <iterator>

// The tickets. TypedText reads what the user typed as free text, in the encoding of the job.
template <TicketGetter TypedText>
static constexpr ticketData tickets[] = {
    IntegerTicket(kJBAJobInfoRadioBtnTicketKeyAdmin, option.adminUserSetting),
    IntegerTicket(kJBAUserIDListCtrlTicketKeyAdmin, option.adminUserIDList),
    TextTicket(kJBAUserIDTextEditTicketKeyAdmin, option.adminUserID, TypedText),
    TextTicket(kJBADomainNameTicketKeyAdmin, option.adminDomainName),
    PasswordTicket(kJBAUserIDPasswordTextEditTicketKeyAdmin, option.adminUserPassword),
    TextTicket(kJBAAccountIDTextEditTicketKeyAdmin, option.adminAccountID),
    TextTicket(kJBAStorageIDTextEditTicketKeyAdmin, option.adminStorageID, TypedText),
    PasswordTicket(kJBAStoragePasswordTextEditTicketKeyAdmin, option.adminStoragePassword),
    IntegerTicket(kJBAJobInputRadioBtnTicketKeyAdmin, option.adminUserInput),
};
constinit const TicketTable JBAticketDataAdmin = tickets<GetTicketStringConvertedToPrtLang>;
constinit const TicketTable JBAticketDataAdminForUTF8 = tickets<GetTicketStringConvertedToPrtLangForUTF8>;
const int32_t JBATicketDataNumAdmin = static_cast<int32_t>(JBAticketDataAdmin.size());

// What the administrator stored in the dialog.

// @JOAU: the user to authenticate
constexpr char prtfmtStrComInTypeUseLoginNameAdmin[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginNameAdmin[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginNameAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), NoInfoList};
constexpr CmdParaTable symParaComInTypeUseLoginNameAdmin = Values(cmdParaComInTypeUseLoginNameAdmin);
constexpr ComparationTable comparationComInTypeUseLoginNameAdmin =
    Conditions(comparationItemComInTypeUseLoginNameAdmin);

constexpr char prtfmtStrComInTypeUseLoginNameAdmin1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaComInTypeUseLoginNameAdmin1[] = {Quote, Quote};
constexpr ComparationItem comparationItemComInTypeUseLoginNameAdmin1[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, AnyInfoList, BillingOnly, NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginNameAdmin1 = Values(cmdParaComInTypeUseLoginNameAdmin1);
constexpr ComparationTable comparationComInTypeUseLoginNameAdmin1 =
    Conditions(comparationItemComInTypeUseLoginNameAdmin1);

constexpr char prtfmtStrComInTypeUseLoginNameAdmin2[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginNameAdmin2[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginNameAdmin2[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), AnyInfoList, UserAccount, NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginNameAdmin2 = Values(cmdParaComInTypeUseLoginNameAdmin2);
constexpr ComparationTable comparationComInTypeUseLoginNameAdmin2 =
    Conditions(comparationItemComInTypeUseLoginNameAdmin2);

constexpr char prtfmtStrComInTypeUseLoginNameAdmin3[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginNameAdmin3[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginNameAdmin3[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), AnyInfoList, AllInfo, NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginNameAdmin3 = Values(cmdParaComInTypeUseLoginNameAdmin3);
constexpr ComparationTable comparationComInTypeUseLoginNameAdmin3 =
    Conditions(comparationItemComInTypeUseLoginNameAdmin3);

constexpr char prtfmtStrComInTypeUseLoginNameAdmin4[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaComInTypeUseLoginNameAdmin4[] = {Quote, Quote};
constexpr ComparationItem comparationItemComInTypeUseLoginNameAdmin4[] = {AdminMode, AdminStoredSettings,
                                                                          AdminUseLoginName, AnyInfoList, NameHidden};
constexpr CmdParaTable symParaComInTypeUseLoginNameAdmin4 = Values(cmdParaComInTypeUseLoginNameAdmin4);
constexpr ComparationTable comparationComInTypeUseLoginNameAdmin4 =
    Conditions(comparationItemComInTypeUseLoginNameAdmin4);

constexpr char prtfmtStrComInTypeUseEnterNameAdmin[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseEnterNameAdmin[] = {Quote, option.adminUserID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseEnterNameAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseEnteredName, NotEmpty(option.adminUserID)};
constexpr CmdParaTable symParaComInTypeUseEnterNameAdmin = Values(cmdParaComInTypeUseEnterNameAdmin);
constexpr ComparationTable comparationComInTypeUseEnterNameAdmin =
    Conditions(comparationItemComInTypeUseEnterNameAdmin);

// @JOEP: the user's password
constexpr char prtfmtStrComInUserEnterPassword1Admin[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword1Admin[] = {Quote, option.adminUserPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword1Admin[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), NotEmpty(option.adminUserPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword1Admin = Values(cmdParaComInUserEnterPassword1Admin);
constexpr ComparationTable comparationComInUserEnterPassword1Admin =
    Conditions(comparationItemComInUserEnterPassword1Admin);

constexpr char prtfmtStrComInUserEnterPassword1NULLAdmin[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword1NULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword1NULLAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), Empty(option.adminUserPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword1NULLAdmin = Values(cmdParaComInUserEnterPassword1NULLAdmin);
constexpr ComparationTable comparationComInUserEnterPassword1NULLAdmin =
    Conditions(comparationItemComInUserEnterPassword1NULLAdmin);

constexpr char prtfmtStrComInUserEnterPassword2Admin[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword2Admin[] = {Quote, option.adminUserPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword2Admin[] = {
    AdminMode, AdminStoredSettings, AdminUseEnteredName, NotEmpty(option.adminUserID),
    NotEmpty(option.adminUserPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword2Admin = Values(cmdParaComInUserEnterPassword2Admin);
constexpr ComparationTable comparationComInUserEnterPassword2Admin =
    Conditions(comparationItemComInUserEnterPassword2Admin);

constexpr char prtfmtStrComInUserEnterPassword2NULLAdmin[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword2NULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword2NULLAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseEnteredName, NotEmpty(option.adminUserID), Empty(option.adminUserPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword2NULLAdmin = Values(cmdParaComInUserEnterPassword2NULLAdmin);
constexpr ComparationTable comparationComInUserEnterPassword2NULLAdmin =
    Conditions(comparationItemComInUserEnterPassword2NULLAdmin);

// @JOAD: the user's domain
constexpr char prtfmtStrComInTypeDomainNameAdmin[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
constexpr const void *cmdParaComInTypeDomainNameAdmin[] = {Quote, option.adminDomainName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeDomainNameAdmin[] = {AdminMode, AdminStoredSettings,
                                                                       NotEmpty(option.adminDomainName)};
constexpr CmdParaTable symParaComInTypeDomainNameAdmin = Values(cmdParaComInTypeDomainNameAdmin);
constexpr ComparationTable comparationComInTypeDomainNameAdmin = Conditions(comparationItemComInTypeDomainNameAdmin);

// @DAID: the account
constexpr char prtfmtStrComInAccountAdmin[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
constexpr const void *cmdParaComInAccountAdmin[] = {Quote, option.adminAccountID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccountAdmin[] = {AdminMode, AdminStoredSettings,
                                                                NotEmpty(option.adminAccountID)};
constexpr CmdParaTable symParaComInAccountAdmin = Values(cmdParaComInAccountAdmin);
constexpr ComparationTable comparationComInAccountAdmin = Conditions(comparationItemComInAccountAdmin);

constexpr char prtfmtStrComInAccountNULLAdmin[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaComInAccountNULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccountNULLAdmin[] = {AdminMode, AdminStoredSettings,
                                                                    Empty(option.adminAccountID)};
constexpr CmdParaTable symParaComInAccountNULLAdmin = Values(cmdParaComInAccountNULLAdmin);
constexpr ComparationTable comparationComInAccountNULLAdmin = Conditions(comparationItemComInAccountNULLAdmin);

// @ACID: the storage
constexpr char prtfmtStrComInAccumulationIDAdmin[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
constexpr const void *cmdParaComInAccumulationIDAdmin[] = {Quote, option.adminStorageID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationIDAdmin[] = {AdminMode, AdminStoredSettings,
                                                                       NotEmpty(option.adminStorageID)};
constexpr CmdParaTable symParaComInAccumulationIDAdmin = Values(cmdParaComInAccumulationIDAdmin);
constexpr ComparationTable comparationComInAccumulationIDAdmin = Conditions(comparationItemComInAccumulationIDAdmin);

// @ACNA: the name under which the document is stored
constexpr char prtfmtStrComInAccumulationDocumentNameAdmin[] = "@PJL SET JOBATTR=%c@ACNA=%s%c%c%c";
constexpr const void *cmdParaComInAccumulationDocumentNameAdmin[] = {Quote, StdDocumentName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationDocumentNameAdmin[] = {AdminMode, AdminStoredSettings,
                                                                                 NotEmpty(StdDocumentName)};
constexpr CmdParaTable symParaComInAccumulationDocumentNameAdmin = Values(cmdParaComInAccumulationDocumentNameAdmin);
constexpr ComparationTable comparationComInAccumulationDocumentNameAdmin =
    Conditions(comparationItemComInAccumulationDocumentNameAdmin);

// @ACEP: the storage's password
constexpr char prtfmtStrComInAccumulationPasswordAdmin[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
constexpr const void *cmdParaComInAccumulationPasswordAdmin[] = {Quote, option.adminStoragePassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationPasswordAdmin[] = {
    AdminMode, AdminStoredSettings, NotEmpty(option.adminStorageID), NotEmpty(option.adminStoragePassword)};
constexpr CmdParaTable symParaComInAccumulationPasswordAdmin = Values(cmdParaComInAccumulationPasswordAdmin);
constexpr ComparationTable comparationComInAccumulationPasswordAdmin =
    Conditions(comparationItemComInAccumulationPasswordAdmin);

constexpr char prtfmtStrComInAccumulationPasswordNULLAdmin[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
constexpr const void *cmdParaComInAccumulationPasswordNULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationPasswordNULLAdmin[] = {
    AdminMode, AdminStoredSettings, NotEmpty(option.adminStorageID), Empty(option.adminStoragePassword)};
constexpr CmdParaTable symParaComInAccumulationPasswordNULLAdmin = Values(cmdParaComInAccumulationPasswordNULLAdmin);
constexpr ComparationTable comparationComInAccumulationPasswordNULLAdmin =
    Conditions(comparationItemComInAccumulationPasswordNULLAdmin);

// What was entered for this job.

// @JOAU: the user to authenticate
constexpr char prtfmtStrJobInUseEnterName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaJobInUseEnterNameAdmin[] = {Quote, option.inputUserID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterNameAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                     NotEmpty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUseEnterNameAdmin = Values(cmdParaJobInUseEnterNameAdmin);
constexpr ComparationTable comparationJobInUseEnterNameAdmin = Conditions(comparationItemJobInUseEnterNameAdmin);

constexpr char prtfmtStrJobInUseEnterName1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
constexpr const void *cmdParaJobInUseEnterName1Admin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterName1Admin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                      NameHidden};
constexpr CmdParaTable symParaJobInUseEnterName1Admin = Values(cmdParaJobInUseEnterName1Admin);
constexpr ComparationTable comparationJobInUseEnterName1Admin = Conditions(comparationItemJobInUseEnterName1Admin);

constexpr char prtfmtStrJobInUseEnterName2[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
constexpr const void *cmdParaJobInUseEnterName2Admin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterName2Admin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                      Empty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUseEnterName2Admin = Values(cmdParaJobInUseEnterName2Admin);
constexpr ComparationTable comparationJobInUseEnterName2Admin = Conditions(comparationItemJobInUseEnterName2Admin);

// @JOEP: the user's password
constexpr char prtfmtStrJobInUserEnterPassword[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaJobInUserEnterPasswordAdmin[] = {Quote, option.inputUserPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPasswordAdmin[] = {
    AdminMode, AdminJobSettings, JobPassword, NotEmpty(option.inputUserID), NotEmpty(option.inputUserPassword),
    NameShown};
constexpr CmdParaTable symParaJobInUserEnterPasswordAdmin = Values(cmdParaJobInUserEnterPasswordAdmin);
constexpr ComparationTable comparationJobInUserEnterPasswordAdmin =
    Conditions(comparationItemJobInUserEnterPasswordAdmin);

constexpr char prtfmtStrJobInUserEnterPassword1[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPassword1Admin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPassword1Admin[] = {AdminMode, AdminJobSettings, JobPassword,
                                                                           NameHidden};
constexpr CmdParaTable symParaJobInUserEnterPassword1Admin = Values(cmdParaJobInUserEnterPassword1Admin);
constexpr ComparationTable comparationJobInUserEnterPassword1Admin =
    Conditions(comparationItemJobInUserEnterPassword1Admin);

constexpr char prtfmtStrJobInUserEnterPasswordNULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPasswordNULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPasswordNULLAdmin[] = {
    AdminMode, AdminJobSettings, JobPassword, Empty(option.inputUserPassword), NotEmpty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUserEnterPasswordNULLAdmin = Values(cmdParaJobInUserEnterPasswordNULLAdmin);
constexpr ComparationTable comparationJobInUserEnterPasswordNULLAdmin =
    Conditions(comparationItemJobInUserEnterPasswordNULLAdmin);

constexpr char prtfmtStrJobInUserEnterPassword1NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPassword1NULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPassword1NULLAdmin[] = {AdminMode, AdminJobSettings, JobPassword,
                                                                               Empty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUserEnterPassword1NULLAdmin = Values(cmdParaJobInUserEnterPassword1NULLAdmin);
constexpr ComparationTable comparationJobInUserEnterPassword1NULLAdmin =
    Conditions(comparationItemJobInUserEnterPassword1NULLAdmin);

// @JOAD: the user's domain
constexpr char prtfmtStrJobInDomainName[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
constexpr const void *cmdParaJobInDomainNameAdmin[] = {Quote, option.inputDomainName, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInDomainNameAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                   NotEmpty(option.inputDomainName)};
constexpr CmdParaTable symParaJobInDomainNameAdmin = Values(cmdParaJobInDomainNameAdmin);
constexpr ComparationTable comparationJobInDomainNameAdmin = Conditions(comparationItemJobInDomainNameAdmin);

// @DAID: the account
constexpr char prtfmtStrJobInAccount[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
constexpr const void *cmdParaJobInAccountAdmin[] = {Quote, option.inputAccountID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccountAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                NotEmpty(option.inputAccountID), NameShown};
constexpr CmdParaTable symParaJobInAccountAdmin = Values(cmdParaJobInAccountAdmin);
constexpr ComparationTable comparationJobInAccountAdmin = Conditions(comparationItemJobInAccountAdmin);

constexpr char prtfmtStrJobInAccount1[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccount1Admin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccount1Admin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                 NotEmpty(option.inputAccountID), NameHidden};
constexpr CmdParaTable symParaJobInAccount1Admin = Values(cmdParaJobInAccount1Admin);
constexpr ComparationTable comparationJobInAccount1Admin = Conditions(comparationItemJobInAccount1Admin);

constexpr char prtfmtStrJobInAccountNULL[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccountNULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccountNULLAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                    Empty(option.inputAccountID)};
constexpr CmdParaTable symParaJobInAccountNULLAdmin = Values(cmdParaJobInAccountNULLAdmin);
constexpr ComparationTable comparationJobInAccountNULLAdmin = Conditions(comparationItemJobInAccountNULLAdmin);

constexpr char prtfmtStrJobInAccountNULL3[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccountNULL3Admin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccountNULL3Admin[] = {AdminMode, AdminJobSettings, JobStorage,
                                                                     AnyInfoList};
constexpr CmdParaTable symParaJobInAccountNULL3Admin = Values(cmdParaJobInAccountNULL3Admin);
constexpr ComparationTable comparationJobInAccountNULL3Admin = Conditions(comparationItemJobInAccountNULL3Admin);

// @ACID: the storage
constexpr char prtfmtStrJobInAccumulationID[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
constexpr const void *cmdParaJobInAccumulationIDAdmin[] = {Quote, option.inputStorageID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationIDAdmin[] = {AdminMode, AdminJobSettings, JobStorage,
                                                                       NotEmpty(option.inputStorageID)};
constexpr CmdParaTable symParaJobInAccumulationIDAdmin = Values(cmdParaJobInAccumulationIDAdmin);
constexpr ComparationTable comparationJobInAccumulationIDAdmin = Conditions(comparationItemJobInAccumulationIDAdmin);

// @ACNA: the name under which the document is stored
constexpr char prtfmtStrJobInAccumulationDocumentName[] = "@PJL SET JOBATTR=%c@ACNA=%s%c%c%c";
constexpr const void *cmdParaJobInAccumulationDocumentNameAdmin[] = {Quote, StdDocumentName, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationDocumentNameAdmin[] = {AdminMode, AdminJobSettings,
                                                                                 NotEmpty(StdDocumentName)};
constexpr CmdParaTable symParaJobInAccumulationDocumentNameAdmin = Values(cmdParaJobInAccumulationDocumentNameAdmin);
constexpr ComparationTable comparationJobInAccumulationDocumentNameAdmin =
    Conditions(comparationItemJobInAccumulationDocumentNameAdmin);

// @JOAU: the user to authenticate
constexpr char prtfmtStrJobInUserNameAccumulation[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaJobInUserNameAccumulationAdmin[] = {Quote, Quote};
constexpr ComparationItem comparationItemJobInUserNameAccumulationAdmin[] = {AdminMode, AdminJobSettings, JobStorage};
constexpr CmdParaTable symParaJobInUserNameAccumulationAdmin = Values(cmdParaJobInUserNameAccumulationAdmin);
constexpr ComparationTable comparationJobInUserNameAccumulationAdmin =
    Conditions(comparationItemJobInUserNameAccumulationAdmin);

// @JOEP: the user's password
constexpr char prtfmtStrJobInUserPasswordAccumulation[] = "@PJL SET JOBATTR=%c@JOEP=%c\n";
constexpr const void *cmdParaJobInUserPasswordAccumulationAdmin[] = {Quote, Quote};
constexpr ComparationItem comparationItemJobInUserPasswordAccumulationAdmin[] = {AdminMode, AdminJobSettings,
                                                                                 JobStorage};
constexpr CmdParaTable symParaJobInUserPasswordAccumulationAdmin = Values(cmdParaJobInUserPasswordAccumulationAdmin);
constexpr ComparationTable comparationJobInUserPasswordAccumulationAdmin =
    Conditions(comparationItemJobInUserPasswordAccumulationAdmin);

// @ACEP: the storage's password
constexpr char prtfmtStrJobInAccumulationPassword[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
constexpr const void *cmdParaJobInAccumulationPasswordAdmin[] = {Quote, option.inputStoragePassword, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationPasswordAdmin[] = {
    AdminMode, AdminJobSettings, JobStorage, NotEmpty(option.inputStorageID), NotEmpty(option.inputStoragePassword)};
constexpr CmdParaTable symParaJobInAccumulationPasswordAdmin = Values(cmdParaJobInAccumulationPasswordAdmin);
constexpr ComparationTable comparationJobInAccumulationPasswordAdmin =
    Conditions(comparationItemJobInAccumulationPasswordAdmin);

constexpr char prtfmtStrJobInAccumulationPasswordNULL[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
constexpr const void *cmdParaJobInAccumulationPasswordNULLAdmin[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationPasswordNULLAdmin[] = {
    AdminMode, AdminJobSettings, JobStorage, NotEmpty(option.inputStorageID), Empty(option.inputStoragePassword)};
constexpr CmdParaTable symParaJobInAccumulationPasswordNULLAdmin = Values(cmdParaJobInAccumulationPasswordNULLAdmin);
constexpr ComparationTable comparationJobInAccumulationPasswordNULLAdmin =
    Conditions(comparationItemJobInAccumulationPasswordNULLAdmin);

const FmtTableRow JBAFmtTableAdmin[] = {
    Command(prtfmtStrComInTypeUseLoginNameAdmin, &symParaComInTypeUseLoginNameAdmin,
            &comparationComInTypeUseLoginNameAdmin),
    Command(prtfmtStrComInTypeUseLoginNameAdmin1, &symParaComInTypeUseLoginNameAdmin1,
            &comparationComInTypeUseLoginNameAdmin1),
    Command(prtfmtStrComInTypeUseLoginNameAdmin2, &symParaComInTypeUseLoginNameAdmin2,
            &comparationComInTypeUseLoginNameAdmin2),
    Command(prtfmtStrComInTypeUseLoginNameAdmin3, &symParaComInTypeUseLoginNameAdmin3,
            &comparationComInTypeUseLoginNameAdmin3),
    Command(prtfmtStrComInTypeUseLoginNameAdmin4, &symParaComInTypeUseLoginNameAdmin4,
            &comparationComInTypeUseLoginNameAdmin4),
    Command(prtfmtStrComInTypeUseEnterNameAdmin, &symParaComInTypeUseEnterNameAdmin,
            &comparationComInTypeUseEnterNameAdmin),
    Command(prtfmtStrComInUserEnterPassword1Admin, &symParaComInUserEnterPassword1Admin,
            &comparationComInUserEnterPassword1Admin),
    Command(prtfmtStrComInUserEnterPassword1NULLAdmin, &symParaComInUserEnterPassword1NULLAdmin,
            &comparationComInUserEnterPassword1NULLAdmin),
    Command(prtfmtStrComInUserEnterPassword2Admin, &symParaComInUserEnterPassword2Admin,
            &comparationComInUserEnterPassword2Admin),
    Command(prtfmtStrComInUserEnterPassword2NULLAdmin, &symParaComInUserEnterPassword2NULLAdmin,
            &comparationComInUserEnterPassword2NULLAdmin),
    Command(prtfmtStrComInTypeDomainNameAdmin, &symParaComInTypeDomainNameAdmin, &comparationComInTypeDomainNameAdmin),
    Command(prtfmtStrComInAccountAdmin, &symParaComInAccountAdmin, &comparationComInAccountAdmin),
    Command(prtfmtStrComInAccountNULLAdmin, &symParaComInAccountNULLAdmin, &comparationComInAccountNULLAdmin),
    Command(prtfmtStrComInAccumulationIDAdmin, &symParaComInAccumulationIDAdmin, &comparationComInAccumulationIDAdmin),
    Command(prtfmtStrComInAccumulationDocumentNameAdmin, &symParaComInAccumulationDocumentNameAdmin,
            &comparationComInAccumulationDocumentNameAdmin),
    Command(prtfmtStrComInAccumulationPasswordAdmin, &symParaComInAccumulationPasswordAdmin,
            &comparationComInAccumulationPasswordAdmin),
    Command(prtfmtStrComInAccumulationPasswordNULLAdmin, &symParaComInAccumulationPasswordNULLAdmin,
            &comparationComInAccumulationPasswordNULLAdmin),
    Command(prtfmtStrJobInUseEnterName, &symParaJobInUseEnterNameAdmin, &comparationJobInUseEnterNameAdmin),
    Command(prtfmtStrJobInUseEnterName1, &symParaJobInUseEnterName1Admin, &comparationJobInUseEnterName1Admin),
    Command(prtfmtStrJobInUseEnterName2, &symParaJobInUseEnterName2Admin, &comparationJobInUseEnterName2Admin),
    Command(prtfmtStrJobInUserEnterPassword, &symParaJobInUserEnterPasswordAdmin,
            &comparationJobInUserEnterPasswordAdmin),
    Command(prtfmtStrJobInUserEnterPassword1, &symParaJobInUserEnterPassword1Admin,
            &comparationJobInUserEnterPassword1Admin),
    Command(prtfmtStrJobInUserEnterPasswordNULL, &symParaJobInUserEnterPasswordNULLAdmin,
            &comparationJobInUserEnterPasswordNULLAdmin),
    Command(prtfmtStrJobInUserEnterPassword1NULL, &symParaJobInUserEnterPassword1NULLAdmin,
            &comparationJobInUserEnterPassword1NULLAdmin),
    Command(prtfmtStrJobInDomainName, &symParaJobInDomainNameAdmin, &comparationJobInDomainNameAdmin),
    Command(prtfmtStrJobInAccount, &symParaJobInAccountAdmin, &comparationJobInAccountAdmin),
    Command(prtfmtStrJobInAccount1, &symParaJobInAccount1Admin, &comparationJobInAccount1Admin),
    Command(prtfmtStrJobInAccountNULL, &symParaJobInAccountNULLAdmin, &comparationJobInAccountNULLAdmin),
    Command(prtfmtStrJobInAccountNULL3, &symParaJobInAccountNULL3Admin, &comparationJobInAccountNULL3Admin),
    Command(prtfmtStrJobInAccumulationID, &symParaJobInAccumulationIDAdmin, &comparationJobInAccumulationIDAdmin),
    Command(prtfmtStrJobInAccumulationDocumentName, &symParaJobInAccumulationDocumentNameAdmin,
            &comparationJobInAccumulationDocumentNameAdmin),
    Command(prtfmtStrJobInUserNameAccumulation, &symParaJobInUserNameAccumulationAdmin,
            &comparationJobInUserNameAccumulationAdmin),
    Command(prtfmtStrJobInUserPasswordAccumulation, &symParaJobInUserPasswordAccumulationAdmin,
            &comparationJobInUserPasswordAccumulationAdmin),
    Command(prtfmtStrJobInAccumulationPassword, &symParaJobInAccumulationPasswordAdmin,
            &comparationJobInAccumulationPasswordAdmin),
    Command(prtfmtStrJobInAccumulationPasswordNULL, &symParaJobInAccumulationPasswordNULLAdmin,
            &comparationJobInAccumulationPasswordNULLAdmin),
};
const int32_t JBAFmtTableAdminNum = static_cast<int32_t>(std::size(JBAFmtTableAdmin));
