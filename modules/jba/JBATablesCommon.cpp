// The lines of user mode and those that every job sends, in output order: format, values, conditions, descriptors.
// Line ends differ from row to row (LF, CR LF, "\n" in the format), as the printers take them. "ComIn" rows send the
// settings stored in the dialog, "JobIn" rows what was entered for this job.
#include "JBATables.h"

#include "JobState.h"

#include <iterator>

// What every job sends.
const char prtfmtStrHoseName[] = "@PJL SET JOBATTR=%c@CNAM=%s%c%c";
const void *const cmdParaHoseName[] = {&CTRLSym_DOUBLE, HostNameStr, &CTRLSym_DOUBLE, &CTRLSym_LF};
const ComparationItem comparationItemHoseName[] = {NotEmpty(HostNameStr)};
static CmdParaTable symParaHoseName;
static ComparationTable comparationHoseName;

const char prtfmtStrHostNameAccumulation[] = "@PJL SET JOBATTR=%c@CNAM=UnknownHost%c\n";
const void *const cmdParaHostNameAccumulation[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemHostNameAccumulation[] = {Empty(HostNameStr)};
static CmdParaTable symParaHostNameAccumulation;
static ComparationTable comparationHostNameAccumulation;

const char prtfmtStrJBALoginUserName[] = "@PJL SET JOBATTR=%c@LUNA=%s%c%c";
const void *const cmdParaJBALoginUserName[] = {&CTRLSym_DOUBLE, StdUserName, &CTRLSym_DOUBLE, &CTRLSym_LF};
const ComparationItem comparationItemJBALoginUserName[] = {NotEmpty(StdUserName)};
static CmdParaTable symParaJBALoginUserName;
static ComparationTable comparationJBALoginUserName;

const char prtfmtStrJBALoginUserNameAccumulation[] = "@PJL SET JOBATTR=%c@LUNA=UnknownUser%c\n";
const void *const cmdParaJBALoginUserNameAccumulation[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemJBALoginUserNameAccumulation[] = {Empty(StdUserName)};
static CmdParaTable symParaJBALoginUserNameAccumulation;
static ComparationTable comparationJBALoginUserNameAccumulation;

const char prtfmtStrJBAIPAddress[] = "@PJL SET JOBATTR=%c@HOAD=%s%c%c";
const void *const cmdParaJBAIPAddress[] = {&CTRLSym_DOUBLE, option.ipAddress, &CTRLSym_DOUBLE, &CTRLSym_LF};
const ComparationItem comparationItemJBAIPAddress[] = {NotEmpty(option.ipAddress)};
static CmdParaTable symParaJBAIPAddress;
static ComparationTable comparationJBAIPAddress;

const char prtfmtStrJBAIPAddressIsNull[] = "@PJL SET JOBATTR=%c@HOAD=%s%c%c";
const void *const cmdParaJBAIPAddressIsNull[] = {&CTRLSym_DOUBLE, IPAddressStr, &CTRLSym_DOUBLE, &CTRLSym_LF};
const ComparationItem comparationItemJBAIPAddressIsNull[] = {Empty(option.ipAddress), NotEmpty(IPAddressStr)};
static CmdParaTable symParaJBAIPAddressIsNull;
static ComparationTable comparationJBAIPAddressIsNull;

const char prtfmtStrNUpInfo[] = "@PJL SET JOBATTR=%c@NLPP=%s%c%c";
const void *const cmdParaNUpInfo[] = {&CTRLSym_DOUBLE, StdNUpInfo, &CTRLSym_DOUBLE, &CTRLSym_LF};
const ComparationItem comparationItemNUpInfo[] = {NotEmpty(StdNUpInfo)};
static CmdParaTable symParaNUpInfo;
static ComparationTable comparationNUpInfo;

// The stored settings: identity, password, domain, account, storage.
const char prtfmtStrComInTypeUseLoginName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaComInTypeUseLoginName[] = {&CTRLSym_DOUBLE, StdJBAUserName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                    &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseLoginName[] = {UserMode, StoredSettings, UseLoginName,
                                                                NotEmpty(StdUserName), NoInfoList};
CmdParaTable symParaComInTypeUseLoginName;
static ComparationTable comparationComInTypeUseLoginName;

const char prtfmtStrComInTypeUseLoginName1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
const void *const cmdParaComInTypeUseLoginName1[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemComInTypeUseLoginName1[] = {UserMode,    StoredSettings, UseLoginName,
                                                                 AnyInfoList, BillingOnly,    NameShown};
CmdParaTable symParaComInTypeUseLoginName1;
static ComparationTable comparationComInTypeUseLoginName1;

const char prtfmtStrComInTypeUseLoginName2[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaComInTypeUseLoginName2[] = {&CTRLSym_DOUBLE, StdJBAUserName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                     &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseLoginName2[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), AnyInfoList, UserAccount, NameShown};
CmdParaTable symParaComInTypeUseLoginName2;
static ComparationTable comparationComInTypeUseLoginName2;

const char prtfmtStrComInTypeUseLoginName3[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaComInTypeUseLoginName3[] = {&CTRLSym_DOUBLE, StdJBAUserName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                     &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseLoginName3[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), AnyInfoList, AllInfo, NameShown};
CmdParaTable symParaComInTypeUseLoginName3;
static ComparationTable comparationComInTypeUseLoginName3;

const char prtfmtStrComInTypeUseLoginName4[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
const void *const cmdParaComInTypeUseLoginName4[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemComInTypeUseLoginName4[] = {UserMode, StoredSettings, UseLoginName, AnyInfoList,
                                                                 NameHidden};
CmdParaTable symParaComInTypeUseLoginName4;
static ComparationTable comparationComInTypeUseLoginName4;

// A job that did not pass through the dialog.
const char prtfmtStrComInTypeUseLoginName5[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaComInTypeUseLoginName5[] = {&CTRLSym_DOUBLE, StdJBAUserName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                     &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseLoginName5[] = {Equal(option.userIDTicketAbsent, JBAUserNameNotExist)};
static CmdParaTable symParaComInTypeUseLoginName5;
static ComparationTable comparationComInTypeUseLoginName5;

const char prtfmtStrComInTypeUseEnterName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaComInTypeUseEnterName[] = {&CTRLSym_DOUBLE, option.userID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                    &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseEnterName[] = {UserMode, StoredSettings, UseEnteredName,
                                                                NotEmpty(option.userID)};
static CmdParaTable symParaComInTypeUseEnterName;
static ComparationTable comparationComInTypeUseEnterName;

const char prtfmtStrComInUserEnterPassword1[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
const void *const cmdParaComInUserEnterPassword1[] = {&CTRLSym_DOUBLE, option.userPassword, &CTRLSym_DOUBLE,
                                                      &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword1[] = {UserMode, StoredSettings, UseLoginName,
                                                                  NotEmpty(StdUserName), NotEmpty(option.userPassword)};
static CmdParaTable symParaComInUserEnterPassword1;
static ComparationTable comparationComInUserEnterPassword1;

const char prtfmtStrComInUserEnterPassword1NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
const void *const cmdParaComInUserEnterPassword1NULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword1NULL[] = {
    UserMode, StoredSettings, UseLoginName, NotEmpty(StdUserName), Empty(option.userPassword)};
CmdParaTable symParaComInUserEnterPassword1NULL;
static ComparationTable comparationComInUserEnterPassword1NULL;

const char prtfmtStrComInUserEnterPassword2[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
const void *const cmdParaComInUserEnterPassword2[] = {&CTRLSym_DOUBLE, option.userPassword, &CTRLSym_DOUBLE,
                                                      &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword2[] = {
    UserMode, StoredSettings, UseEnteredName, NotEmpty(option.userID), NotEmpty(option.userPassword)};
static CmdParaTable symParaComInUserEnterPassword2;
static ComparationTable comparationComInUserEnterPassword2;

const char prtfmtStrComInUserEnterPassword2NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
const void *const cmdParaComInUserEnterPassword2NULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword2NULL[] = {
    UserMode, StoredSettings, UseEnteredName, NotEmpty(option.userID), Empty(option.userPassword)};
CmdParaTable symParaComInUserEnterPassword2NULL;
static ComparationTable comparationComInUserEnterPassword2NULL;

const char prtfmtStrComInDomainName[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
const void *const cmdParaComInDomainName[] = {&CTRLSym_DOUBLE, option.domainName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                              &CTRLSym_LF};
const ComparationItem comparationItemComInDomainName[] = {UserMode, StoredSettings, NotEmpty(option.domainName)};
static CmdParaTable symParaComInDomainName;
static ComparationTable comparationComInDomainName;

const char prtfmtStrComInAccount[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
const void *const cmdParaComInAccount[] = {&CTRLSym_DOUBLE, option.accountID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                           &CTRLSym_LF};
const ComparationItem comparationItemComInAccount[] = {UserMode, StoredSettings, NotEmpty(option.accountID)};
static CmdParaTable symParaComInAccount;
static ComparationTable comparationComInAccount;

const char prtfmtStrComInAccountNULL[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
const void *const cmdParaComInAccountNULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInAccountNULL[] = {UserMode, StoredSettings, Empty(option.accountID)};
CmdParaTable symParaComInAccountNULL;
static ComparationTable comparationComInAccountNULL;

const char prtfmtStrComInAccumulationID[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
const void *const cmdParaComInAccumulationID[] = {&CTRLSym_DOUBLE, option.storageID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                  &CTRLSym_LF};
const ComparationItem comparationItemComInAccumulationID[] = {UserMode, StoredSettings, NotEmpty(option.storageID)};
static CmdParaTable symParaComInAccumulationID;
static ComparationTable comparationComInAccumulationID;

const char prtfmtStrComInAccumulationPassword[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
const void *const cmdParaComInAccumulationPassword[] = {&CTRLSym_DOUBLE, option.storagePassword, &CTRLSym_DOUBLE,
                                                        &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInAccumulationPassword[] = {
    UserMode, StoredSettings, NotEmpty(option.storageID), NotEmpty(option.storagePassword)};
static CmdParaTable symParaComInAccumulationPassword;
static ComparationTable comparationComInAccumulationPassword;

const char prtfmtStrComInAccumulationPasswordNULL[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
const void *const cmdParaComInAccumulationPasswordNULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInAccumulationPasswordNULL[] = {
    UserMode, StoredSettings, NotEmpty(option.storageID), Empty(option.storagePassword)};
CmdParaTable symParaComInAccumulationPasswordNULL;
static ComparationTable comparationComInAccumulationPasswordNULL;

// What was entered for this job: identity, password, domain, account.
const char prtfmtStrJobInUseEnterName[] = "@PJL SET JOBATTR=%c@JOAU=%s%c%c%c";
const void *const cmdParaJobInUseEnterName[] = {&CTRLSym_DOUBLE, option.inputUserID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                &CTRLSym_LF};
const ComparationItem comparationItemJobInUseEnterName[] = {UserMode, JobSettings, JobIdentity,
                                                            NotEmpty(option.inputUserID), NameShown};
CmdParaTable symParaJobInUseEnterName;
static ComparationTable comparationJobInUseEnterName;

const char prtfmtStrJobInUseEnterName1[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
const void *const cmdParaJobInUseEnterName1[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUseEnterName1[] = {UserMode, JobSettings, JobIdentity, NameHidden};
CmdParaTable symParaJobInUseEnterName1;
static ComparationTable comparationJobInUseEnterName1;

const char prtfmtStrJobInUseEnterName2[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c%c%c";
const void *const cmdParaJobInUseEnterName2[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUseEnterName2[] = {UserMode, JobSettings, JobIdentity,
                                                             Empty(option.inputUserID), NameShown};
CmdParaTable symParaJobInUseEnterName2;
static ComparationTable comparationJobInUseEnterName2;

const char prtfmtStrJobInUserEnterPassword[] = "@PJL SET JOBATTR=%c@JOEP=%s%c%c%c";
const void *const cmdParaJobInUserEnterPassword[] = {&CTRLSym_DOUBLE, option.inputUserPassword, &CTRLSym_DOUBLE,
                                                     &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUserEnterPassword[] = {
    UserMode, JobSettings, JobPassword, NotEmpty(option.inputUserID), NotEmpty(option.inputUserPassword), NameShown};
CmdParaTable symParaJobInUserEnterPassword;
static ComparationTable comparationJobInUserEnterPassword;

const char prtfmtStrJobInUserEnterPassword1[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
const void *const cmdParaJobInUserEnterPassword1[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUserEnterPassword1[] = {UserMode, JobSettings, JobPassword, NameHidden};
CmdParaTable symParaJobInUserEnterPassword1;
static ComparationTable comparationJobInUserEnterPassword1;

const char prtfmtStrJobInUserEnterPasswordNULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
const void *const cmdParaJobInUserEnterPasswordNULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUserEnterPasswordNULL[] = {
    UserMode, JobSettings, JobPassword, Empty(option.inputUserPassword), NotEmpty(option.inputUserID), NameShown};
CmdParaTable symParaJobInUserEnterPasswordNULL;
static ComparationTable comparationJobInUserEnterPasswordNULL;

const char prtfmtStrJobInUserEnterPassword1NULL[] = "@PJL SET JOBATTR=%c@JOEP=%c%c%c";
const void *const cmdParaJobInUserEnterPassword1NULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInUserEnterPassword1NULL[] = {UserMode, JobSettings, JobPassword,
                                                                      Empty(option.inputUserID), NameShown};
CmdParaTable symParaJobInUserEnterPassword1NULL;
static ComparationTable comparationJobInUserEnterPassword1NULL;

const char prtfmtStrJobInDomainName[] = "@PJL SET JOBATTR=%c@JOAD=%s%c%c%c";
const void *const cmdParaJobInDomainName[] = {&CTRLSym_DOUBLE, option.inputDomainName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                              &CTRLSym_LF};
const ComparationItem comparationItemJobInDomainName[] = {UserMode, JobSettings, JobIdentity,
                                                          NotEmpty(option.inputDomainName)};
CmdParaTable symParaJobInDomainName;
static ComparationTable comparationJobInDomainName;

const char prtfmtStrJobInAccount[] = "@PJL SET JOBATTR=%c@DAID=%s%c%c%c";
const void *const cmdParaJobInAccount[] = {&CTRLSym_DOUBLE, option.inputAccountID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                           &CTRLSym_LF};
const ComparationItem comparationItemJobInAccount[] = {UserMode, JobSettings, JobIdentity,
                                                       NotEmpty(option.inputAccountID), NameShown};
CmdParaTable symParaJobInAccount;
static ComparationTable comparationJobInAccount;

const char prtfmtStrJobInAccount1[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
const void *const cmdParaJobInAccount1[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInAccount1[] = {UserMode, JobSettings, JobIdentity,
                                                        NotEmpty(option.inputAccountID), NameHidden};
CmdParaTable symParaJobInAccount1;
static ComparationTable comparationJobInAccount1;

const char prtfmtStrJobInAccountNULL[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
const void *const cmdParaJobInAccountNULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInAccountNULL[] = {UserMode, JobSettings, JobIdentity,
                                                           Empty(option.inputAccountID)};
CmdParaTable symParaJobInAccountNULL;
static ComparationTable comparationJobInAccountNULL;

// What was entered for this job: storage. The document's name is sent with every job.
const char prtfmtStrJobInAccountNULL3[] = "@PJL SET JOBATTR=%c@DAID=%c%c%c";
const void *const cmdParaJobInAccountNULL3[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInAccountNULL3[] = {UserMode, JobSettings, JobStorage, AnyInfoList};
CmdParaTable symParaJobInAccountNULL3;
static ComparationTable comparationJobInAccountNULL3;

const char prtfmtStrJobInAccumulationID[] = "@PJL SET JOBATTR=%c@ACID=%s%c%c%c";
const void *const cmdParaJobInAccumulationID[] = {&CTRLSym_DOUBLE, option.inputStorageID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                  &CTRLSym_LF};
const ComparationItem comparationItemJobInAccumulationID[] = {UserMode, JobSettings, JobStorage,
                                                              NotEmpty(option.inputStorageID)};
CmdParaTable symParaJobInAccumulationID;
static ComparationTable comparationJobInAccumulationID;

const char prtfmtStrAccumulationDocumentName[] = "@PJL SET JOBATTR=%c@ACNA=%s%c%c%c";
const void *const cmdParaAccumulationDocumentName[] = {&CTRLSym_DOUBLE, StdDocumentName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                       &CTRLSym_LF};
const ComparationItem comparationItemAccumulationDocumentName[] = {NotEmpty(StdDocumentName)};
CmdParaTable symParaAccumulationDocumentName;
static ComparationTable comparationAccumulationDocumentName;

const char prtfmtStrJobInUserNameAccumulation[] = "@PJL SET JOBATTR=%c@JOAU=UnknownUser%c\n";
const void *const cmdParaJobInUserNameAccumulation[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemJobInUserNameAccumulation[] = {UserMode, JobSettings, JobStorage};
CmdParaTable symParaJobInUserNameAccumulation;
static ComparationTable comparationJobInUserNameAccumulation;

const char prtfmtStrJobInUserPasswordAccumulation[] = "@PJL SET JOBATTR=%c@JOEP=%c\n";
const void *const cmdParaJobInUserPasswordAccumulation[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE};
const ComparationItem comparationItemJobInUserPasswordAccumulation[] = {UserMode, JobSettings, JobStorage};
CmdParaTable symParaJobInUserPasswordAccumulation;
static ComparationTable comparationJobInUserPasswordAccumulation;

const char prtfmtStrJobInAccumulationPassword[] = "@PJL SET JOBATTR=%c@ACEP=%s%c%c%c";
const void *const cmdParaJobInAccumulationPassword[] = {&CTRLSym_DOUBLE, option.inputStoragePassword, &CTRLSym_DOUBLE,
                                                        &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInAccumulationPassword[] = {
    UserMode, JobSettings, JobStorage, NotEmpty(option.inputStorageID), NotEmpty(option.inputStoragePassword)};
CmdParaTable symParaJobInAccumulationPassword;
static ComparationTable comparationJobInAccumulationPassword;

const char prtfmtStrJobInAccumulationPasswordNULL[] = "@PJL SET JOBATTR=%c@ACEP=%c%c%c";
const void *const cmdParaJobInAccumulationPasswordNULL[] = {&CTRLSym_DOUBLE, &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemJobInAccumulationPasswordNULL[] = {
    UserMode, JobSettings, JobStorage, NotEmpty(option.inputStorageID), Empty(option.inputStoragePassword)};
CmdParaTable symParaJobInAccumulationPasswordNULL;
static ComparationTable comparationJobInAccumulationPasswordNULL;

const FmtTableRow JBAFmtTableCommon[] = {
    {prtfmtStrHoseName, &symParaHoseName, &comparationHoseName},
    {prtfmtStrHostNameAccumulation, &symParaHostNameAccumulation, &comparationHostNameAccumulation},
    {prtfmtStrJBALoginUserName, &symParaJBALoginUserName, &comparationJBALoginUserName},
    {prtfmtStrJBALoginUserNameAccumulation, &symParaJBALoginUserNameAccumulation,
     &comparationJBALoginUserNameAccumulation},
    {prtfmtStrJBAIPAddress, &symParaJBAIPAddress, &comparationJBAIPAddress},
    {prtfmtStrJBAIPAddressIsNull, &symParaJBAIPAddressIsNull, &comparationJBAIPAddressIsNull},
    {prtfmtStrNUpInfo, &symParaNUpInfo, &comparationNUpInfo},
    {prtfmtStrComInTypeUseLoginName, &symParaComInTypeUseLoginName, &comparationComInTypeUseLoginName},
    {prtfmtStrComInTypeUseLoginName1, &symParaComInTypeUseLoginName1, &comparationComInTypeUseLoginName1},
    {prtfmtStrComInTypeUseLoginName2, &symParaComInTypeUseLoginName2, &comparationComInTypeUseLoginName2},
    {prtfmtStrComInTypeUseLoginName3, &symParaComInTypeUseLoginName3, &comparationComInTypeUseLoginName3},
    {prtfmtStrComInTypeUseLoginName4, &symParaComInTypeUseLoginName4, &comparationComInTypeUseLoginName4},
    {prtfmtStrComInTypeUseLoginName5, &symParaComInTypeUseLoginName5, &comparationComInTypeUseLoginName5},
    {prtfmtStrComInTypeUseEnterName, &symParaComInTypeUseEnterName, &comparationComInTypeUseEnterName},
    {prtfmtStrComInUserEnterPassword1, &symParaComInUserEnterPassword1, &comparationComInUserEnterPassword1},
    {prtfmtStrComInUserEnterPassword1NULL, &symParaComInUserEnterPassword1NULL,
     &comparationComInUserEnterPassword1NULL},
    {prtfmtStrComInUserEnterPassword2, &symParaComInUserEnterPassword2, &comparationComInUserEnterPassword2},
    {prtfmtStrComInUserEnterPassword2NULL, &symParaComInUserEnterPassword2NULL,
     &comparationComInUserEnterPassword2NULL},
    {prtfmtStrComInDomainName, &symParaComInDomainName, &comparationComInDomainName},
    {prtfmtStrComInAccount, &symParaComInAccount, &comparationComInAccount},
    {prtfmtStrComInAccountNULL, &symParaComInAccountNULL, &comparationComInAccountNULL},
    {prtfmtStrComInAccumulationID, &symParaComInAccumulationID, &comparationComInAccumulationID},
    {prtfmtStrComInAccumulationPassword, &symParaComInAccumulationPassword, &comparationComInAccumulationPassword},
    {prtfmtStrComInAccumulationPasswordNULL, &symParaComInAccumulationPasswordNULL,
     &comparationComInAccumulationPasswordNULL},
    {prtfmtStrJobInUseEnterName, &symParaJobInUseEnterName, &comparationJobInUseEnterName},
    {prtfmtStrJobInUseEnterName1, &symParaJobInUseEnterName1, &comparationJobInUseEnterName1},
    {prtfmtStrJobInUseEnterName2, &symParaJobInUseEnterName2, &comparationJobInUseEnterName2},
    {prtfmtStrJobInUserEnterPassword, &symParaJobInUserEnterPassword, &comparationJobInUserEnterPassword},
    {prtfmtStrJobInUserEnterPassword1, &symParaJobInUserEnterPassword1, &comparationJobInUserEnterPassword1},
    {prtfmtStrJobInUserEnterPasswordNULL, &symParaJobInUserEnterPasswordNULL, &comparationJobInUserEnterPasswordNULL},
    {prtfmtStrJobInUserEnterPassword1NULL, &symParaJobInUserEnterPassword1NULL,
     &comparationJobInUserEnterPassword1NULL},
    {prtfmtStrJobInDomainName, &symParaJobInDomainName, &comparationJobInDomainName},
    {prtfmtStrJobInAccount, &symParaJobInAccount, &comparationJobInAccount},
    {prtfmtStrJobInAccount1, &symParaJobInAccount1, &comparationJobInAccount1},
    {prtfmtStrJobInAccountNULL, &symParaJobInAccountNULL, &comparationJobInAccountNULL},
    {prtfmtStrJobInAccountNULL3, &symParaJobInAccountNULL3, &comparationJobInAccountNULL3},
    {prtfmtStrJobInAccumulationID, &symParaJobInAccumulationID, &comparationJobInAccumulationID},
    {prtfmtStrAccumulationDocumentName, &symParaAccumulationDocumentName, &comparationAccumulationDocumentName},
    {prtfmtStrJobInUserNameAccumulation, &symParaJobInUserNameAccumulation, &comparationJobInUserNameAccumulation},
    {prtfmtStrJobInUserPasswordAccumulation, &symParaJobInUserPasswordAccumulation,
     &comparationJobInUserPasswordAccumulation},
    {prtfmtStrJobInAccumulationPassword, &symParaJobInAccumulationPassword, &comparationJobInAccumulationPassword},
    {prtfmtStrJobInAccumulationPasswordNULL, &symParaJobInAccumulationPasswordNULL,
     &comparationJobInAccumulationPasswordNULL},
};
const int32_t JBAFmtTableCommonNum = static_cast<int32_t>(std::size(JBAFmtTableCommon));

void JBAInitializeCmdParaTableForUser()
{
    InitializeCmdParaTable(symParaHoseName, cmdParaHoseName);
    InitializeCmdParaTable(symParaHostNameAccumulation, cmdParaHostNameAccumulation);
    InitializeCmdParaTable(symParaJBALoginUserName, cmdParaJBALoginUserName);
    InitializeCmdParaTable(symParaJBALoginUserNameAccumulation, cmdParaJBALoginUserNameAccumulation);
    InitializeCmdParaTable(symParaJBAIPAddress, cmdParaJBAIPAddress);
    InitializeCmdParaTable(symParaJBAIPAddressIsNull, cmdParaJBAIPAddressIsNull);
    InitializeCmdParaTable(symParaNUpInfo, cmdParaNUpInfo);
    InitializeCmdParaTable(symParaComInTypeUseLoginName, cmdParaComInTypeUseLoginName);
    InitializeCmdParaTable(symParaComInTypeUseLoginName1, cmdParaComInTypeUseLoginName1);
    InitializeCmdParaTable(symParaComInTypeUseLoginName2, cmdParaComInTypeUseLoginName2);
    InitializeCmdParaTable(symParaComInTypeUseLoginName3, cmdParaComInTypeUseLoginName3);
    InitializeCmdParaTable(symParaComInTypeUseLoginName4, cmdParaComInTypeUseLoginName4);
    InitializeCmdParaTable(symParaComInTypeUseLoginName5, cmdParaComInTypeUseLoginName5);
    InitializeCmdParaTable(symParaComInTypeUseEnterName, cmdParaComInTypeUseEnterName);
    InitializeCmdParaTable(symParaComInUserEnterPassword1, cmdParaComInUserEnterPassword1);
    InitializeCmdParaTable(symParaComInUserEnterPassword1NULL, cmdParaComInUserEnterPassword1NULL);
    InitializeCmdParaTable(symParaComInUserEnterPassword2, cmdParaComInUserEnterPassword2);
    InitializeCmdParaTable(symParaComInUserEnterPassword2NULL, cmdParaComInUserEnterPassword2NULL);
    InitializeCmdParaTable(symParaComInDomainName, cmdParaComInDomainName);
    InitializeCmdParaTable(symParaComInAccount, cmdParaComInAccount);
    InitializeCmdParaTable(symParaComInAccountNULL, cmdParaComInAccountNULL);
    InitializeCmdParaTable(symParaComInAccumulationID, cmdParaComInAccumulationID);
    InitializeCmdParaTable(symParaComInAccumulationPassword, cmdParaComInAccumulationPassword);
    InitializeCmdParaTable(symParaComInAccumulationPasswordNULL, cmdParaComInAccumulationPasswordNULL);
    InitializeCmdParaTable(symParaJobInUseEnterName, cmdParaJobInUseEnterName);
    InitializeCmdParaTable(symParaJobInUseEnterName1, cmdParaJobInUseEnterName1);
    InitializeCmdParaTable(symParaJobInUseEnterName2, cmdParaJobInUseEnterName2);
    InitializeCmdParaTable(symParaJobInUserEnterPassword, cmdParaJobInUserEnterPassword);
    InitializeCmdParaTable(symParaJobInUserEnterPassword1, cmdParaJobInUserEnterPassword1);
    InitializeCmdParaTable(symParaJobInUserEnterPasswordNULL, cmdParaJobInUserEnterPasswordNULL);
    InitializeCmdParaTable(symParaJobInUserEnterPassword1NULL, cmdParaJobInUserEnterPassword1NULL);
    InitializeCmdParaTable(symParaJobInDomainName, cmdParaJobInDomainName);
    InitializeCmdParaTable(symParaJobInAccount, cmdParaJobInAccount);
    InitializeCmdParaTable(symParaJobInAccount1, cmdParaJobInAccount1);
    InitializeCmdParaTable(symParaJobInAccountNULL, cmdParaJobInAccountNULL);
    InitializeCmdParaTable(symParaJobInAccountNULL3, cmdParaJobInAccountNULL3);
    InitializeCmdParaTable(symParaJobInAccumulationID, cmdParaJobInAccumulationID);
    InitializeCmdParaTable(symParaAccumulationDocumentName, cmdParaAccumulationDocumentName);
    InitializeCmdParaTable(symParaJobInUserNameAccumulation, cmdParaJobInUserNameAccumulation);
    InitializeCmdParaTable(symParaJobInUserPasswordAccumulation, cmdParaJobInUserPasswordAccumulation);
    InitializeCmdParaTable(symParaJobInAccumulationPassword, cmdParaJobInAccumulationPassword);
    InitializeCmdParaTable(symParaJobInAccumulationPasswordNULL, cmdParaJobInAccumulationPasswordNULL);
}

void JBAInitializeCaparationTableForUser()
{
    InitializeComparationTable(comparationHoseName, comparationItemHoseName);
    InitializeComparationTable(comparationHostNameAccumulation, comparationItemHostNameAccumulation);
    InitializeComparationTable(comparationJBALoginUserName, comparationItemJBALoginUserName);
    InitializeComparationTable(comparationJBALoginUserNameAccumulation, comparationItemJBALoginUserNameAccumulation);
    InitializeComparationTable(comparationJBAIPAddress, comparationItemJBAIPAddress);
    InitializeComparationTable(comparationJBAIPAddressIsNull, comparationItemJBAIPAddressIsNull);
    InitializeComparationTable(comparationNUpInfo, comparationItemNUpInfo);
    InitializeComparationTable(comparationComInTypeUseLoginName, comparationItemComInTypeUseLoginName);
    InitializeComparationTable(comparationComInTypeUseLoginName1, comparationItemComInTypeUseLoginName1);
    InitializeComparationTable(comparationComInTypeUseLoginName2, comparationItemComInTypeUseLoginName2);
    InitializeComparationTable(comparationComInTypeUseLoginName3, comparationItemComInTypeUseLoginName3);
    InitializeComparationTable(comparationComInTypeUseLoginName4, comparationItemComInTypeUseLoginName4);
    InitializeComparationTable(comparationComInTypeUseLoginName5, comparationItemComInTypeUseLoginName5);
    InitializeComparationTable(comparationComInTypeUseEnterName, comparationItemComInTypeUseEnterName);
    InitializeComparationTable(comparationComInUserEnterPassword1, comparationItemComInUserEnterPassword1);
    InitializeComparationTable(comparationComInUserEnterPassword1NULL, comparationItemComInUserEnterPassword1NULL);
    InitializeComparationTable(comparationComInUserEnterPassword2, comparationItemComInUserEnterPassword2);
    InitializeComparationTable(comparationComInUserEnterPassword2NULL, comparationItemComInUserEnterPassword2NULL);
    InitializeComparationTable(comparationComInDomainName, comparationItemComInDomainName);
    InitializeComparationTable(comparationComInAccount, comparationItemComInAccount);
    InitializeComparationTable(comparationComInAccountNULL, comparationItemComInAccountNULL);
    InitializeComparationTable(comparationComInAccumulationID, comparationItemComInAccumulationID);
    InitializeComparationTable(comparationComInAccumulationPassword, comparationItemComInAccumulationPassword);
    InitializeComparationTable(comparationComInAccumulationPasswordNULL, comparationItemComInAccumulationPasswordNULL);
    InitializeComparationTable(comparationJobInUseEnterName, comparationItemJobInUseEnterName);
    InitializeComparationTable(comparationJobInUseEnterName1, comparationItemJobInUseEnterName1);
    InitializeComparationTable(comparationJobInUseEnterName2, comparationItemJobInUseEnterName2);
    InitializeComparationTable(comparationJobInUserEnterPassword, comparationItemJobInUserEnterPassword);
    InitializeComparationTable(comparationJobInUserEnterPassword1, comparationItemJobInUserEnterPassword1);
    InitializeComparationTable(comparationJobInUserEnterPasswordNULL, comparationItemJobInUserEnterPasswordNULL);
    InitializeComparationTable(comparationJobInUserEnterPassword1NULL, comparationItemJobInUserEnterPassword1NULL);
    InitializeComparationTable(comparationJobInDomainName, comparationItemJobInDomainName);
    InitializeComparationTable(comparationJobInAccount, comparationItemJobInAccount);
    InitializeComparationTable(comparationJobInAccount1, comparationItemJobInAccount1);
    InitializeComparationTable(comparationJobInAccountNULL, comparationItemJobInAccountNULL);
    InitializeComparationTable(comparationJobInAccountNULL3, comparationItemJobInAccountNULL3);
    InitializeComparationTable(comparationJobInAccumulationID, comparationItemJobInAccumulationID);
    InitializeComparationTable(comparationAccumulationDocumentName, comparationItemAccumulationDocumentName);
    InitializeComparationTable(comparationJobInUserNameAccumulation, comparationItemJobInUserNameAccumulation);
    InitializeComparationTable(comparationJobInUserPasswordAccumulation, comparationItemJobInUserPasswordAccumulation);
    InitializeComparationTable(comparationJobInAccumulationPassword, comparationItemJobInAccumulationPassword);
    InitializeComparationTable(comparationJobInAccumulationPasswordNULL, comparationItemJobInAccumulationPasswordNULL);
}
