// The lines of user mode and those that every job sends, in output order, and the tickets that are not the
// administrator's. Line ends differ from row to row (LF, CR LF, "\n" in the format), as the printers take them. "ComIn"
// rows send the settings stored in the dialog, "JobIn" rows what was entered for this job.
#include "JBAConditions.h"

#include "JobState.h"

#include <iterator>

// A ticket of the system's print settings fills the first bytes of a buffer that modules share.
constexpr ticketData LayoutTicket(const char *key, char (&buffer)[kLayoutTextSize],
                                  TicketGetter getter = GetTicketStringConvertedToPrtLang)
{
    return {key, buffer, 10, getter};
}
constexpr ticketData PaperTicket(const char *key, char (&buffer)[kLayoutTextSize])
{
    return {key, buffer, 20, GetTicketStringConvertedToPrtLang};
}

// The tickets. TypedText reads what the user typed as free text, in the encoding of the job.
template <TicketGetter TypedText>
static constexpr ticketData tickets[] = {
    TextTicket(kJBAHostName, option.hostName),
    TextTicket(kJBAIPAddressStringTicketKey, option.ipAddress),
    IntegerTicket(kJBAInfoListTicketKey, option.infoList),
    IntegerTicket(kJBAInfoSetLboxTicketKey, option.infoSetList),

    LayoutTicket(kNumberUpTicketKey, StdNUpInfo, GetNumberUpTicketString),
    LayoutTicket(kNumberUpTicketKey, StdLayoutInfo),
    LayoutTicket(kLayoutDirectionTicketKey, StdLayoutDirectionInfo),
    LayoutTicket(kLayoutRowCountTicketKey, StdLayoutRowInfo),
    LayoutTicket(kLayoutColumnCountTicketKey, StdLayoutColumnInfo),
    PaperTicket(KPaperInfoRectOriginXTicketKey, StdPaperInfoRectOriginXKey),
    PaperTicket(KPaperInfoRectOriginYTicketKey, StdPaperInfoRectOriginYKey),
    PaperTicket(KPaperInfoRectHeightTicketKey, StdPaperInfoRectHeightKey),
    PaperTicket(KPaperInfoRectWidthTicketKey, StdPaperInfoRectWidthKey),
    PaperTicket(KAdobePaperInfoRectOriginXTicketKey, StdAdobePaperInfoRectOriginXKey),
    PaperTicket(KAdobePaperInfoRectOriginYTicketKey, StdAdobePaperInfoRectOriginYKey),
    PaperTicket(KAdobePaperInfoRectHeightTicketKey, StdAdobePaperInfoRectHeightKey),
    PaperTicket(KAdobePaperInfoRectWidthTicketKey, StdAdobePaperInfoRectWidthKey),

    IntegerTicket(kJBAMngTypeListBoxTicketKey, option.manageType),
    IntegerTicket(kJBAJobInfoRadioBtnTicketKey, option.userSetting),
    IntegerTicket(kJBAUserIDListCtrlTicketKey, option.userIDList),
    IntegerTicket(kJBAUserIDTextEditTicketKey, option.userIDTicketAbsent, CheckTicketKey),
    TextTicket(kJBAUserIDTextEditTicketKey, option.userID, TypedText),
    PasswordTicket(kJBAUserIDPasswordTextEditTicketKey, option.userPassword),
    TextTicket(kJBADomainNameTicketKey, option.domainName),
    TextTicket(kJBAInputDomainNameTicketKey, option.inputDomainName),
    TextTicket(kJBAAccountIDTextEditTicketKey, option.accountID),
    TextTicket(kJBAStorageIDTextEditTicketKey, option.storageID, TypedText),
    PasswordTicket(kJBAStoragePasswordTextEditTicketKey, option.storagePassword),
    IntegerTicket(kJBAJobInputRadioBtnTicketKey, option.userInput),
    IntegerTicket(kJBAInputAuthRadioBtnTicketKey, option.inputAuth),
    IntegerTicket(kJBAInputStrgRadioBtnTicketKey, option.inputStorage),
    TextTicket(kJBAInputStorageIDTextEditTicketKey, option.inputStorageID, TypedText),
    PasswordTicket(kJBAInputStoragePasswordTextEditTicketKey, option.inputStoragePassword),
    TextTicket(kJBAInputUserIDTextEditTicketKey, option.inputUserID, TypedText),
    PasswordTicket(kJBAInputUserIDPasswordTextEditTicketKey, option.inputUserPassword),
    TextTicket(kJBAInputAccountIDTextEditTicketKey, option.inputAccountID),
};
constinit const TicketTable JBAticketDataCommon = tickets<GetTicketStringConvertedToPrtLang>;
constinit const TicketTable JBAticketDataCommonForUTF8 = tickets<GetTicketStringConvertedToPrtLangForUTF8>;
const int32_t JBATicketDataNumCommon = static_cast<int32_t>(JBAticketDataCommon.size());

// What every job sends.

// @CNAM: the host
constexpr char prtfmtStrHoseName[] = "@PJL SET JOBATTR=%c@CNAM=%s%c%c";
constexpr const void *cmdParaHoseName[] = {Quote, HostNameStr, Quote, LF};
constexpr ComparationItem comparationItemHoseName[] = {NotEmpty(HostNameStr)};
constexpr CmdParaTable symParaHoseName = Values(cmdParaHoseName);
constexpr ComparationTable comparationHoseName = Conditions(comparationItemHoseName);

constexpr char prtfmtStrHostNameAccumulation[] = "@PJL SET JOBATTR=%c@CNAM=UnknownHost%c\n";
constexpr const void *cmdParaHostNameAccumulation[] = {Quote, Quote};
constexpr ComparationItem comparationItemHostNameAccumulation[] = {Empty(HostNameStr)};
constexpr CmdParaTable symParaHostNameAccumulation = Values(cmdParaHostNameAccumulation);
constexpr ComparationTable comparationHostNameAccumulation = Conditions(comparationItemHostNameAccumulation);

// @LUNA: the login user
constexpr char prtfmtStrJBALoginUserName[] = "@PJL SET JOBATTR=%c@LUNA=%s%c%c";
constexpr const void *cmdParaJBALoginUserName[] = {Quote, StdUserName, Quote, LF};
constexpr ComparationItem comparationItemJBALoginUserName[] = {NotEmpty(StdUserName)};
constexpr CmdParaTable symParaJBALoginUserName = Values(cmdParaJBALoginUserName);
constexpr ComparationTable comparationJBALoginUserName = Conditions(comparationItemJBALoginUserName);

constexpr char prtfmtStrJBALoginUserNameAccumulation[] = "@PJL SET JOBATTR=%c@LUNA=UnknownUser%c\n";
constexpr const void *cmdParaJBALoginUserNameAccumulation[] = {Quote, Quote};
constexpr ComparationItem comparationItemJBALoginUserNameAccumulation[] = {Empty(StdUserName)};
constexpr CmdParaTable symParaJBALoginUserNameAccumulation = Values(cmdParaJBALoginUserNameAccumulation);
constexpr ComparationTable comparationJBALoginUserNameAccumulation =
    Conditions(comparationItemJBALoginUserNameAccumulation);

// @HOAD: the host's address
constexpr char prtfmtStrJBAIPAddress[] = "@PJL SET JOBATTR=%c@HOAD=%s%c%c";
constexpr const void *cmdParaJBAIPAddress[] = {Quote, option.ipAddress, Quote, LF};
constexpr ComparationItem comparationItemJBAIPAddress[] = {NotEmpty(option.ipAddress)};
constexpr CmdParaTable symParaJBAIPAddress = Values(cmdParaJBAIPAddress);
constexpr ComparationTable comparationJBAIPAddress = Conditions(comparationItemJBAIPAddress);

constexpr char prtfmtStrJBAIPAddressIsNull[] = "@PJL SET JOBATTR=%c@HOAD=%s%c%c";
constexpr const void *cmdParaJBAIPAddressIsNull[] = {Quote, IPAddressStr, Quote, LF};
constexpr ComparationItem comparationItemJBAIPAddressIsNull[] = {Empty(option.ipAddress), NotEmpty(IPAddressStr)};
constexpr CmdParaTable symParaJBAIPAddressIsNull = Values(cmdParaJBAIPAddressIsNull);
constexpr ComparationTable comparationJBAIPAddressIsNull = Conditions(comparationItemJBAIPAddressIsNull);

// @NLPP: pages per sheet
constexpr char prtfmtStrNUpInfo[] = "@PJL SET JOBATTR=%c@NLPP=%s%c%c";
constexpr const void *cmdParaNUpInfo[] = {Quote, StdNUpInfo, Quote, LF};
constexpr ComparationItem comparationItemNUpInfo[] = {NotEmpty(StdNUpInfo)};
constexpr CmdParaTable symParaNUpInfo = Values(cmdParaNUpInfo);
constexpr ComparationTable comparationNUpInfo = Conditions(comparationItemNUpInfo);

// The stored settings: identity, password, domain, account, storage.

// @JOAU: the user to authenticate
constexpr char prtfmtStrComInTypeUseLoginName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginName[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginName[] = {UserMode, StoredSettings, UseLoginName,
                                                                    NotEmpty(StdUserName), NoInfoList};
constexpr CmdParaTable symParaComInTypeUseLoginName = Values(cmdParaComInTypeUseLoginName);
constexpr ComparationTable comparationComInTypeUseLoginName = Conditions(comparationItemComInTypeUseLoginName);

constexpr char prtfmtStrComInTypeUseLoginName1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaComInTypeUseLoginName1[] = {Quote, Quote};
constexpr ComparationItem comparationItemComInTypeUseLoginName1[] = {UserMode,    StoredSettings, UseLoginName,
                                                                     AnyInfoList, BillingOnly,    NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginName1 = Values(cmdParaComInTypeUseLoginName1);
constexpr ComparationTable comparationComInTypeUseLoginName1 = Conditions(comparationItemComInTypeUseLoginName1);

constexpr char prtfmtStrComInTypeUseLoginName2[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginName2[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginName2[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), AnyInfoList, UserAccount, NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginName2 = Values(cmdParaComInTypeUseLoginName2);
constexpr ComparationTable comparationComInTypeUseLoginName2 = Conditions(comparationItemComInTypeUseLoginName2);

constexpr char prtfmtStrComInTypeUseLoginName3[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginName3[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginName3[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), AnyInfoList, AllInfo, NameShown};
constexpr CmdParaTable symParaComInTypeUseLoginName3 = Values(cmdParaComInTypeUseLoginName3);
constexpr ComparationTable comparationComInTypeUseLoginName3 = Conditions(comparationItemComInTypeUseLoginName3);

constexpr char prtfmtStrComInTypeUseLoginName4[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaComInTypeUseLoginName4[] = {Quote, Quote};
constexpr ComparationItem comparationItemComInTypeUseLoginName4[] = {UserMode, StoredSettings, UseLoginName,
                                                                     AnyInfoList, NameHidden};
constexpr CmdParaTable symParaComInTypeUseLoginName4 = Values(cmdParaComInTypeUseLoginName4);
constexpr ComparationTable comparationComInTypeUseLoginName4 = Conditions(comparationItemComInTypeUseLoginName4);

// A job that did not pass through the dialog.
constexpr char prtfmtStrComInTypeUseLoginName5[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseLoginName5[] = {Quote, StdJBAUserName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseLoginName5[] = {
    Equal(option.userIDTicketAbsent, JBAUserNameNotExist)};
constexpr CmdParaTable symParaComInTypeUseLoginName5 = Values(cmdParaComInTypeUseLoginName5);
constexpr ComparationTable comparationComInTypeUseLoginName5 = Conditions(comparationItemComInTypeUseLoginName5);

constexpr char prtfmtStrComInTypeUseEnterName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaComInTypeUseEnterName[] = {Quote, option.userID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInTypeUseEnterName[] = {UserMode, StoredSettings, UseEnteredName,
                                                                    NotEmpty(option.userID)};
constexpr CmdParaTable symParaComInTypeUseEnterName = Values(cmdParaComInTypeUseEnterName);
constexpr ComparationTable comparationComInTypeUseEnterName = Conditions(comparationItemComInTypeUseEnterName);

// @JOEP: the user's password
constexpr char prtfmtStrComInUserEnterPassword1[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword1[] = {Quote, option.userPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword1[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), NotEmpty(option.userPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword1 = Values(cmdParaComInUserEnterPassword1);
constexpr ComparationTable comparationComInUserEnterPassword1 = Conditions(comparationItemComInUserEnterPassword1);

constexpr char prtfmtStrComInUserEnterPassword1NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword1NULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword1NULL[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), Empty(option.userPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword1NULL = Values(cmdParaComInUserEnterPassword1NULL);
constexpr ComparationTable comparationComInUserEnterPassword1NULL =
    Conditions(comparationItemComInUserEnterPassword1NULL);

constexpr char prtfmtStrComInUserEnterPassword2[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword2[] = {Quote, option.userPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword2[] = {
    UserMode, StoredSettings, UseEnteredName, NotEmpty(option.userID), NotEmpty(option.userPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword2 = Values(cmdParaComInUserEnterPassword2);
constexpr ComparationTable comparationComInUserEnterPassword2 = Conditions(comparationItemComInUserEnterPassword2);

constexpr char prtfmtStrComInUserEnterPassword2NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaComInUserEnterPassword2NULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInUserEnterPassword2NULL[] = {
    UserMode, StoredSettings, UseEnteredName, NotEmpty(option.userID), Empty(option.userPassword)};
constexpr CmdParaTable symParaComInUserEnterPassword2NULL = Values(cmdParaComInUserEnterPassword2NULL);
constexpr ComparationTable comparationComInUserEnterPassword2NULL =
    Conditions(comparationItemComInUserEnterPassword2NULL);

// @JOAD: the user's domain
constexpr char prtfmtStrComInDomainName[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
constexpr const void *cmdParaComInDomainName[] = {Quote, option.domainName, Quote, CR, LF};
constexpr ComparationItem comparationItemComInDomainName[] = {UserMode, StoredSettings, NotEmpty(option.domainName)};
constexpr CmdParaTable symParaComInDomainName = Values(cmdParaComInDomainName);
constexpr ComparationTable comparationComInDomainName = Conditions(comparationItemComInDomainName);

// @DAID: the account
constexpr char prtfmtStrComInAccount[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
constexpr const void *cmdParaComInAccount[] = {Quote, option.accountID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccount[] = {UserMode, StoredSettings, NotEmpty(option.accountID)};
constexpr CmdParaTable symParaComInAccount = Values(cmdParaComInAccount);
constexpr ComparationTable comparationComInAccount = Conditions(comparationItemComInAccount);

constexpr char prtfmtStrComInAccountNULL[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaComInAccountNULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccountNULL[] = {UserMode, StoredSettings, Empty(option.accountID)};
constexpr CmdParaTable symParaComInAccountNULL = Values(cmdParaComInAccountNULL);
constexpr ComparationTable comparationComInAccountNULL = Conditions(comparationItemComInAccountNULL);

// @ACID: the storage
constexpr char prtfmtStrComInAccumulationID[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
constexpr const void *cmdParaComInAccumulationID[] = {Quote, option.storageID, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationID[] = {UserMode, StoredSettings, NotEmpty(option.storageID)};
constexpr CmdParaTable symParaComInAccumulationID = Values(cmdParaComInAccumulationID);
constexpr ComparationTable comparationComInAccumulationID = Conditions(comparationItemComInAccumulationID);

// @ACEP: the storage's password
constexpr char prtfmtStrComInAccumulationPassword[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
constexpr const void *cmdParaComInAccumulationPassword[] = {Quote, option.storagePassword, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationPassword[] = {
    UserMode, StoredSettings, NotEmpty(option.storageID), NotEmpty(option.storagePassword)};
constexpr CmdParaTable symParaComInAccumulationPassword = Values(cmdParaComInAccumulationPassword);
constexpr ComparationTable comparationComInAccumulationPassword = Conditions(comparationItemComInAccumulationPassword);

constexpr char prtfmtStrComInAccumulationPasswordNULL[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
constexpr const void *cmdParaComInAccumulationPasswordNULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemComInAccumulationPasswordNULL[] = {
    UserMode, StoredSettings, NotEmpty(option.storageID), Empty(option.storagePassword)};
constexpr CmdParaTable symParaComInAccumulationPasswordNULL = Values(cmdParaComInAccumulationPasswordNULL);
constexpr ComparationTable comparationComInAccumulationPasswordNULL =
    Conditions(comparationItemComInAccumulationPasswordNULL);

// What was entered for this job: identity, password, domain, account.

// @JOAU: the user to authenticate
constexpr char prtfmtStrJobInUseEnterName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
constexpr const void *cmdParaJobInUseEnterName[] = {Quote, option.inputUserID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterName[] = {UserMode, JobSettings, JobIdentity,
                                                                NotEmpty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUseEnterName = Values(cmdParaJobInUseEnterName);
constexpr ComparationTable comparationJobInUseEnterName = Conditions(comparationItemJobInUseEnterName);

constexpr char prtfmtStrJobInUseEnterName1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
constexpr const void *cmdParaJobInUseEnterName1[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterName1[] = {UserMode, JobSettings, JobIdentity, NameHidden};
constexpr CmdParaTable symParaJobInUseEnterName1 = Values(cmdParaJobInUseEnterName1);
constexpr ComparationTable comparationJobInUseEnterName1 = Conditions(comparationItemJobInUseEnterName1);

constexpr char prtfmtStrJobInUseEnterName2[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
constexpr const void *cmdParaJobInUseEnterName2[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUseEnterName2[] = {UserMode, JobSettings, JobIdentity,
                                                                 Empty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUseEnterName2 = Values(cmdParaJobInUseEnterName2);
constexpr ComparationTable comparationJobInUseEnterName2 = Conditions(comparationItemJobInUseEnterName2);

// @JOEP: the user's password
constexpr char prtfmtStrJobInUserEnterPassword[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
constexpr const void *cmdParaJobInUserEnterPassword[] = {Quote, option.inputUserPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPassword[] = {
    UserMode, JobSettings, JobPassword, NotEmpty(option.inputUserID), NotEmpty(option.inputUserPassword), NameShown};
constexpr CmdParaTable symParaJobInUserEnterPassword = Values(cmdParaJobInUserEnterPassword);
constexpr ComparationTable comparationJobInUserEnterPassword = Conditions(comparationItemJobInUserEnterPassword);

constexpr char prtfmtStrJobInUserEnterPassword1[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPassword1[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPassword1[] = {UserMode, JobSettings, JobPassword, NameHidden};
constexpr CmdParaTable symParaJobInUserEnterPassword1 = Values(cmdParaJobInUserEnterPassword1);
constexpr ComparationTable comparationJobInUserEnterPassword1 = Conditions(comparationItemJobInUserEnterPassword1);

constexpr char prtfmtStrJobInUserEnterPasswordNULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPasswordNULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPasswordNULL[] = {
    UserMode, JobSettings, JobPassword, Empty(option.inputUserPassword), NotEmpty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUserEnterPasswordNULL = Values(cmdParaJobInUserEnterPasswordNULL);
constexpr ComparationTable comparationJobInUserEnterPasswordNULL =
    Conditions(comparationItemJobInUserEnterPasswordNULL);

constexpr char prtfmtStrJobInUserEnterPassword1NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
constexpr const void *cmdParaJobInUserEnterPassword1NULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInUserEnterPassword1NULL[] = {UserMode, JobSettings, JobPassword,
                                                                          Empty(option.inputUserID), NameShown};
constexpr CmdParaTable symParaJobInUserEnterPassword1NULL = Values(cmdParaJobInUserEnterPassword1NULL);
constexpr ComparationTable comparationJobInUserEnterPassword1NULL =
    Conditions(comparationItemJobInUserEnterPassword1NULL);

// @JOAD: the user's domain
constexpr char prtfmtStrJobInDomainName[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
constexpr const void *cmdParaJobInDomainName[] = {Quote, option.inputDomainName, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInDomainName[] = {UserMode, JobSettings, JobIdentity,
                                                              NotEmpty(option.inputDomainName)};
constexpr CmdParaTable symParaJobInDomainName = Values(cmdParaJobInDomainName);
constexpr ComparationTable comparationJobInDomainName = Conditions(comparationItemJobInDomainName);

// @DAID: the account
constexpr char prtfmtStrJobInAccount[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
constexpr const void *cmdParaJobInAccount[] = {Quote, option.inputAccountID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccount[] = {UserMode, JobSettings, JobIdentity,
                                                           NotEmpty(option.inputAccountID), NameShown};
constexpr CmdParaTable symParaJobInAccount = Values(cmdParaJobInAccount);
constexpr ComparationTable comparationJobInAccount = Conditions(comparationItemJobInAccount);

constexpr char prtfmtStrJobInAccount1[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccount1[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccount1[] = {UserMode, JobSettings, JobIdentity,
                                                            NotEmpty(option.inputAccountID), NameHidden};
constexpr CmdParaTable symParaJobInAccount1 = Values(cmdParaJobInAccount1);
constexpr ComparationTable comparationJobInAccount1 = Conditions(comparationItemJobInAccount1);

constexpr char prtfmtStrJobInAccountNULL[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccountNULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccountNULL[] = {UserMode, JobSettings, JobIdentity,
                                                               Empty(option.inputAccountID)};
constexpr CmdParaTable symParaJobInAccountNULL = Values(cmdParaJobInAccountNULL);
constexpr ComparationTable comparationJobInAccountNULL = Conditions(comparationItemJobInAccountNULL);

// What was entered for this job: storage. The document's name is sent with every job.

// @DAID: the account
constexpr char prtfmtStrJobInAccountNULL3[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
constexpr const void *cmdParaJobInAccountNULL3[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccountNULL3[] = {UserMode, JobSettings, JobStorage, AnyInfoList};
constexpr CmdParaTable symParaJobInAccountNULL3 = Values(cmdParaJobInAccountNULL3);
constexpr ComparationTable comparationJobInAccountNULL3 = Conditions(comparationItemJobInAccountNULL3);

// @ACID: the storage
constexpr char prtfmtStrJobInAccumulationID[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
constexpr const void *cmdParaJobInAccumulationID[] = {Quote, option.inputStorageID, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationID[] = {UserMode, JobSettings, JobStorage,
                                                                  NotEmpty(option.inputStorageID)};
constexpr CmdParaTable symParaJobInAccumulationID = Values(cmdParaJobInAccumulationID);
constexpr ComparationTable comparationJobInAccumulationID = Conditions(comparationItemJobInAccumulationID);

// @ACNA: the name under which the document is stored
constexpr char prtfmtStrAccumulationDocumentName[] = "@PJL SET JOBATTR=%c@ACNA=%s%c%c%c";
constexpr const void *cmdParaAccumulationDocumentName[] = {Quote, StdDocumentName, Quote, CR, LF};
constexpr ComparationItem comparationItemAccumulationDocumentName[] = {NotEmpty(StdDocumentName)};
constexpr CmdParaTable symParaAccumulationDocumentName = Values(cmdParaAccumulationDocumentName);
constexpr ComparationTable comparationAccumulationDocumentName = Conditions(comparationItemAccumulationDocumentName);

// @JOAU: the user to authenticate
constexpr char prtfmtStrJobInUserNameAccumulation[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
constexpr const void *cmdParaJobInUserNameAccumulation[] = {Quote, Quote};
constexpr ComparationItem comparationItemJobInUserNameAccumulation[] = {UserMode, JobSettings, JobStorage};
constexpr CmdParaTable symParaJobInUserNameAccumulation = Values(cmdParaJobInUserNameAccumulation);
constexpr ComparationTable comparationJobInUserNameAccumulation = Conditions(comparationItemJobInUserNameAccumulation);

// @JOEP: the user's password
constexpr char prtfmtStrJobInUserPasswordAccumulation[] = "@PJL SET JOBATTR=%c@JOEP=%c\n";
constexpr const void *cmdParaJobInUserPasswordAccumulation[] = {Quote, Quote};
constexpr ComparationItem comparationItemJobInUserPasswordAccumulation[] = {UserMode, JobSettings, JobStorage};
constexpr CmdParaTable symParaJobInUserPasswordAccumulation = Values(cmdParaJobInUserPasswordAccumulation);
constexpr ComparationTable comparationJobInUserPasswordAccumulation =
    Conditions(comparationItemJobInUserPasswordAccumulation);

// @ACEP: the storage's password
constexpr char prtfmtStrJobInAccumulationPassword[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
constexpr const void *cmdParaJobInAccumulationPassword[] = {Quote, option.inputStoragePassword, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationPassword[] = {
    UserMode, JobSettings, JobStorage, NotEmpty(option.inputStorageID), NotEmpty(option.inputStoragePassword)};
constexpr CmdParaTable symParaJobInAccumulationPassword = Values(cmdParaJobInAccumulationPassword);
constexpr ComparationTable comparationJobInAccumulationPassword = Conditions(comparationItemJobInAccumulationPassword);

constexpr char prtfmtStrJobInAccumulationPasswordNULL[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
constexpr const void *cmdParaJobInAccumulationPasswordNULL[] = {Quote, Quote, CR, LF};
constexpr ComparationItem comparationItemJobInAccumulationPasswordNULL[] = {
    UserMode, JobSettings, JobStorage, NotEmpty(option.inputStorageID), Empty(option.inputStoragePassword)};
constexpr CmdParaTable symParaJobInAccumulationPasswordNULL = Values(cmdParaJobInAccumulationPasswordNULL);
constexpr ComparationTable comparationJobInAccumulationPasswordNULL =
    Conditions(comparationItemJobInAccumulationPasswordNULL);

const FmtTableRow JBAFmtTableCommon[] = {
    Command(prtfmtStrHoseName, &symParaHoseName, &comparationHoseName),
    Command(prtfmtStrHostNameAccumulation, &symParaHostNameAccumulation, &comparationHostNameAccumulation),
    Command(prtfmtStrJBALoginUserName, &symParaJBALoginUserName, &comparationJBALoginUserName),
    Command(prtfmtStrJBALoginUserNameAccumulation, &symParaJBALoginUserNameAccumulation,
            &comparationJBALoginUserNameAccumulation),
    Command(prtfmtStrJBAIPAddress, &symParaJBAIPAddress, &comparationJBAIPAddress),
    Command(prtfmtStrJBAIPAddressIsNull, &symParaJBAIPAddressIsNull, &comparationJBAIPAddressIsNull),
    Command(prtfmtStrNUpInfo, &symParaNUpInfo, &comparationNUpInfo),
    Command(prtfmtStrComInTypeUseLoginName, &symParaComInTypeUseLoginName, &comparationComInTypeUseLoginName),
    Command(prtfmtStrComInTypeUseLoginName1, &symParaComInTypeUseLoginName1, &comparationComInTypeUseLoginName1),
    Command(prtfmtStrComInTypeUseLoginName2, &symParaComInTypeUseLoginName2, &comparationComInTypeUseLoginName2),
    Command(prtfmtStrComInTypeUseLoginName3, &symParaComInTypeUseLoginName3, &comparationComInTypeUseLoginName3),
    Command(prtfmtStrComInTypeUseLoginName4, &symParaComInTypeUseLoginName4, &comparationComInTypeUseLoginName4),
    Command(prtfmtStrComInTypeUseLoginName5, &symParaComInTypeUseLoginName5, &comparationComInTypeUseLoginName5),
    Command(prtfmtStrComInTypeUseEnterName, &symParaComInTypeUseEnterName, &comparationComInTypeUseEnterName),
    Command(prtfmtStrComInUserEnterPassword1, &symParaComInUserEnterPassword1, &comparationComInUserEnterPassword1),
    Command(prtfmtStrComInUserEnterPassword1NULL, &symParaComInUserEnterPassword1NULL,
            &comparationComInUserEnterPassword1NULL),
    Command(prtfmtStrComInUserEnterPassword2, &symParaComInUserEnterPassword2, &comparationComInUserEnterPassword2),
    Command(prtfmtStrComInUserEnterPassword2NULL, &symParaComInUserEnterPassword2NULL,
            &comparationComInUserEnterPassword2NULL),
    Command(prtfmtStrComInDomainName, &symParaComInDomainName, &comparationComInDomainName),
    Command(prtfmtStrComInAccount, &symParaComInAccount, &comparationComInAccount),
    Command(prtfmtStrComInAccountNULL, &symParaComInAccountNULL, &comparationComInAccountNULL),
    Command(prtfmtStrComInAccumulationID, &symParaComInAccumulationID, &comparationComInAccumulationID),
    Command(prtfmtStrComInAccumulationPassword, &symParaComInAccumulationPassword,
            &comparationComInAccumulationPassword),
    Command(prtfmtStrComInAccumulationPasswordNULL, &symParaComInAccumulationPasswordNULL,
            &comparationComInAccumulationPasswordNULL),
    Command(prtfmtStrJobInUseEnterName, &symParaJobInUseEnterName, &comparationJobInUseEnterName),
    Command(prtfmtStrJobInUseEnterName1, &symParaJobInUseEnterName1, &comparationJobInUseEnterName1),
    Command(prtfmtStrJobInUseEnterName2, &symParaJobInUseEnterName2, &comparationJobInUseEnterName2),
    Command(prtfmtStrJobInUserEnterPassword, &symParaJobInUserEnterPassword, &comparationJobInUserEnterPassword),
    Command(prtfmtStrJobInUserEnterPassword1, &symParaJobInUserEnterPassword1, &comparationJobInUserEnterPassword1),
    Command(prtfmtStrJobInUserEnterPasswordNULL, &symParaJobInUserEnterPasswordNULL,
            &comparationJobInUserEnterPasswordNULL),
    Command(prtfmtStrJobInUserEnterPassword1NULL, &symParaJobInUserEnterPassword1NULL,
            &comparationJobInUserEnterPassword1NULL),
    Command(prtfmtStrJobInDomainName, &symParaJobInDomainName, &comparationJobInDomainName),
    Command(prtfmtStrJobInAccount, &symParaJobInAccount, &comparationJobInAccount),
    Command(prtfmtStrJobInAccount1, &symParaJobInAccount1, &comparationJobInAccount1),
    Command(prtfmtStrJobInAccountNULL, &symParaJobInAccountNULL, &comparationJobInAccountNULL),
    Command(prtfmtStrJobInAccountNULL3, &symParaJobInAccountNULL3, &comparationJobInAccountNULL3),
    Command(prtfmtStrJobInAccumulationID, &symParaJobInAccumulationID, &comparationJobInAccumulationID),
    Command(prtfmtStrAccumulationDocumentName, &symParaAccumulationDocumentName, &comparationAccumulationDocumentName),
    Command(prtfmtStrJobInUserNameAccumulation, &symParaJobInUserNameAccumulation,
            &comparationJobInUserNameAccumulation),
    Command(prtfmtStrJobInUserPasswordAccumulation, &symParaJobInUserPasswordAccumulation,
            &comparationJobInUserPasswordAccumulation),
    Command(prtfmtStrJobInAccumulationPassword, &symParaJobInAccumulationPassword,
            &comparationJobInAccumulationPassword),
    Command(prtfmtStrJobInAccumulationPasswordNULL, &symParaJobInAccumulationPasswordNULL,
            &comparationJobInAccumulationPasswordNULL),
};
const int32_t JBAFmtTableCommonNum = static_cast<int32_t>(std::size(JBAFmtTableCommon));
