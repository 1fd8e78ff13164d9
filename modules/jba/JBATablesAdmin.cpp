// The lines of administrator mode, in output order: what differs from the common line of the same kind.
// A line has the format of its counterpart and, where it sends no field of the administrator's, its values.
#include "JBATables.h"

#include "JobState.h"

#include <iterator>

// The stored settings.
static constexpr auto &prtfmtStrComInTypeUseLoginNameAdmin = prtfmtStrComInTypeUseLoginName;
const ComparationItem comparationItemComInTypeUseLoginNameAdmin[] = {AdminMode, AdminStoredSettings, AdminUseLoginName,
                                                                     NotEmpty(StdUserName), NoInfoList};
static ComparationTable comparationComInTypeUseLoginNameAdmin;

static constexpr auto &prtfmtStrComInTypeUseLoginNameAdmin1 = prtfmtStrComInTypeUseLoginName1;
const ComparationItem comparationItemComInTypeUseLoginNameAdmin1[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, AnyInfoList, BillingOnly, NameShown};
static ComparationTable comparationComInTypeUseLoginNameAdmin1;

static constexpr auto &prtfmtStrComInTypeUseLoginNameAdmin2 = prtfmtStrComInTypeUseLoginName2;
const ComparationItem comparationItemComInTypeUseLoginNameAdmin2[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), AnyInfoList, UserAccount, NameShown};
static ComparationTable comparationComInTypeUseLoginNameAdmin2;

static constexpr auto &prtfmtStrComInTypeUseLoginNameAdmin3 = prtfmtStrComInTypeUseLoginName3;
const ComparationItem comparationItemComInTypeUseLoginNameAdmin3[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), AnyInfoList, AllInfo, NameShown};
static ComparationTable comparationComInTypeUseLoginNameAdmin3;

static constexpr auto &prtfmtStrComInTypeUseLoginNameAdmin4 = prtfmtStrComInTypeUseLoginName4;
const ComparationItem comparationItemComInTypeUseLoginNameAdmin4[] = {AdminMode, AdminStoredSettings, AdminUseLoginName,
                                                                      AnyInfoList, NameHidden};
static ComparationTable comparationComInTypeUseLoginNameAdmin4;

static constexpr auto &prtfmtStrComInTypeUseEnterNameAdmin = prtfmtStrComInTypeUseEnterName;
const void *const cmdParaComInTypeUseEnterNameAdmin[] = {&CTRLSym_DOUBLE, option.adminUserID, &CTRLSym_DOUBLE,
                                                         &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInTypeUseEnterNameAdmin[] = {AdminMode, AdminStoredSettings,
                                                                     AdminUseEnteredName, NotEmpty(option.adminUserID)};
static CmdParaTable symParaComInTypeUseEnterNameAdmin;
static ComparationTable comparationComInTypeUseEnterNameAdmin;

static constexpr auto &prtfmtStrComInUserEnterPassword1Admin = prtfmtStrComInUserEnterPassword1;
const void *const cmdParaComInUserEnterPassword1Admin[] = {&CTRLSym_DOUBLE, option.adminUserPassword, &CTRLSym_DOUBLE,
                                                           &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword1Admin[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), NotEmpty(option.adminUserPassword)};
static CmdParaTable symParaComInUserEnterPassword1Admin;
static ComparationTable comparationComInUserEnterPassword1Admin;

static constexpr auto &prtfmtStrComInUserEnterPassword1NULLAdmin = prtfmtStrComInUserEnterPassword1NULL;
const ComparationItem comparationItemComInUserEnterPassword1NULLAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseLoginName, NotEmpty(StdUserName), Empty(option.adminUserPassword)};
static ComparationTable comparationComInUserEnterPassword1NULLAdmin;

static constexpr auto &prtfmtStrComInUserEnterPassword2Admin = prtfmtStrComInUserEnterPassword2;
const void *const cmdParaComInUserEnterPassword2Admin[] = {&CTRLSym_DOUBLE, option.adminUserPassword, &CTRLSym_DOUBLE,
                                                           &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInUserEnterPassword2Admin[] = {
    AdminMode, AdminStoredSettings, AdminUseEnteredName, NotEmpty(option.adminUserID),
    NotEmpty(option.adminUserPassword)};
static CmdParaTable symParaComInUserEnterPassword2Admin;
static ComparationTable comparationComInUserEnterPassword2Admin;

static constexpr auto &prtfmtStrComInUserEnterPassword2NULLAdmin = prtfmtStrComInUserEnterPassword2NULL;
const ComparationItem comparationItemComInUserEnterPassword2NULLAdmin[] = {
    AdminMode, AdminStoredSettings, AdminUseEnteredName, NotEmpty(option.adminUserID), Empty(option.adminUserPassword)};
static ComparationTable comparationComInUserEnterPassword2NULLAdmin;

static constexpr auto &prtfmtStrComInTypeDomainNameAdmin = prtfmtStrComInDomainName;
const void *const cmdParaComInTypeDomainNameAdmin[] = {&CTRLSym_DOUBLE, option.adminDomainName, &CTRLSym_DOUBLE,
                                                       &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInTypeDomainNameAdmin[] = {AdminMode, AdminStoredSettings,
                                                                   NotEmpty(option.adminDomainName)};
static CmdParaTable symParaComInTypeDomainNameAdmin;
static ComparationTable comparationComInTypeDomainNameAdmin;

static constexpr auto &prtfmtStrComInAccountAdmin = prtfmtStrComInAccount;
const void *const cmdParaComInAccountAdmin[] = {&CTRLSym_DOUBLE, option.adminAccountID, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                &CTRLSym_LF};
const ComparationItem comparationItemComInAccountAdmin[] = {AdminMode, AdminStoredSettings,
                                                            NotEmpty(option.adminAccountID)};
static CmdParaTable symParaComInAccountAdmin;
static ComparationTable comparationComInAccountAdmin;

static constexpr auto &prtfmtStrComInAccountNULLAdmin = prtfmtStrComInAccountNULL;
const ComparationItem comparationItemComInAccountNULLAdmin[] = {AdminMode, AdminStoredSettings,
                                                                Empty(option.adminAccountID)};
static ComparationTable comparationComInAccountNULLAdmin;

static constexpr auto &prtfmtStrComInAccumulationIDAdmin = prtfmtStrComInAccumulationID;
const void *const cmdParaComInAccumulationIDAdmin[] = {&CTRLSym_DOUBLE, option.adminStorageID, &CTRLSym_DOUBLE,
                                                       &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInAccumulationIDAdmin[] = {AdminMode, AdminStoredSettings,
                                                                   NotEmpty(option.adminStorageID)};
static CmdParaTable symParaComInAccumulationIDAdmin;
static ComparationTable comparationComInAccumulationIDAdmin;

static constexpr auto &prtfmtStrComInAccumulationDocumentNameAdmin = prtfmtStrAccumulationDocumentName;
const ComparationItem comparationItemComInAccumulationDocumentNameAdmin[] = {AdminMode, AdminStoredSettings,
                                                                             NotEmpty(StdDocumentName)};
static ComparationTable comparationComInAccumulationDocumentNameAdmin;

static constexpr auto &prtfmtStrComInAccumulationPasswordAdmin = prtfmtStrComInAccumulationPassword;
const void *const cmdParaComInAccumulationPasswordAdmin[] = {&CTRLSym_DOUBLE, option.adminStoragePassword,
                                                             &CTRLSym_DOUBLE, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemComInAccumulationPasswordAdmin[] = {
    AdminMode, AdminStoredSettings, NotEmpty(option.adminStorageID), NotEmpty(option.adminStoragePassword)};
static CmdParaTable symParaComInAccumulationPasswordAdmin;
static ComparationTable comparationComInAccumulationPasswordAdmin;

static constexpr auto &prtfmtStrComInAccumulationPasswordNULLAdmin = prtfmtStrComInAccumulationPasswordNULL;
const ComparationItem comparationItemComInAccumulationPasswordNULLAdmin[] = {
    AdminMode, AdminStoredSettings, NotEmpty(option.adminStorageID), Empty(option.adminStoragePassword)};
static ComparationTable comparationComInAccumulationPasswordNULLAdmin;

// What was entered for this job: formats and values are those of the common lines.
const ComparationItem comparationItemJobInUseEnterNameAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                 NotEmpty(option.inputUserID), NameShown};
static ComparationTable comparationJobInUseEnterNameAdmin;

const ComparationItem comparationItemJobInUseEnterName1Admin[] = {AdminMode, AdminJobSettings, JobIdentity, NameHidden};
static ComparationTable comparationJobInUseEnterName1Admin;

const ComparationItem comparationItemJobInUseEnterName2Admin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                  Empty(option.inputUserID), NameShown};
static ComparationTable comparationJobInUseEnterName2Admin;

const ComparationItem comparationItemJobInUserEnterPasswordAdmin[] = {
    AdminMode, AdminJobSettings, JobPassword, NotEmpty(option.inputUserID), NotEmpty(option.inputUserPassword),
    NameShown};
static ComparationTable comparationJobInUserEnterPasswordAdmin;

const ComparationItem comparationItemJobInUserEnterPassword1Admin[] = {AdminMode, AdminJobSettings, JobPassword,
                                                                       NameHidden};
static ComparationTable comparationJobInUserEnterPassword1Admin;

const ComparationItem comparationItemJobInUserEnterPasswordNULLAdmin[] = {
    AdminMode, AdminJobSettings, JobPassword, Empty(option.inputUserPassword), NotEmpty(option.inputUserID), NameShown};
static ComparationTable comparationJobInUserEnterPasswordNULLAdmin;

const ComparationItem comparationItemJobInUserEnterPassword1NULLAdmin[] = {AdminMode, AdminJobSettings, JobPassword,
                                                                           Empty(option.inputUserID), NameShown};
static ComparationTable comparationJobInUserEnterPassword1NULLAdmin;

const ComparationItem comparationItemJobInDomainNameAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                               NotEmpty(option.inputDomainName)};
static ComparationTable comparationJobInDomainNameAdmin;

const ComparationItem comparationItemJobInAccountAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                            NotEmpty(option.inputAccountID), NameShown};
static ComparationTable comparationJobInAccountAdmin;

const ComparationItem comparationItemJobInAccount1Admin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                             NotEmpty(option.inputAccountID), NameHidden};
static ComparationTable comparationJobInAccount1Admin;

const ComparationItem comparationItemJobInAccountNULLAdmin[] = {AdminMode, AdminJobSettings, JobIdentity,
                                                                Empty(option.inputAccountID)};
static ComparationTable comparationJobInAccountNULLAdmin;

const ComparationItem comparationItemJobInAccountNULL3Admin[] = {AdminMode, AdminJobSettings, JobStorage, AnyInfoList};
static ComparationTable comparationJobInAccountNULL3Admin;

const ComparationItem comparationItemJobInAccumulationIDAdmin[] = {AdminMode, AdminJobSettings, JobStorage,
                                                                   NotEmpty(option.inputStorageID)};
static ComparationTable comparationJobInAccumulationIDAdmin;

static constexpr auto &prtfmtStrJobInAccumulationDocumentName = prtfmtStrAccumulationDocumentName;
const ComparationItem comparationItemJobInAccumulationDocumentNameAdmin[] = {AdminMode, AdminJobSettings,
                                                                             NotEmpty(StdDocumentName)};
static ComparationTable comparationJobInAccumulationDocumentNameAdmin;

const ComparationItem comparationItemJobInUserNameAccumulationAdmin[] = {AdminMode, AdminJobSettings, JobStorage};
static ComparationTable comparationJobInUserNameAccumulationAdmin;

const ComparationItem comparationItemJobInUserPasswordAccumulationAdmin[] = {AdminMode, AdminJobSettings, JobStorage};
static ComparationTable comparationJobInUserPasswordAccumulationAdmin;

const ComparationItem comparationItemJobInAccumulationPasswordAdmin[] = {
    AdminMode, AdminJobSettings, JobStorage, NotEmpty(option.inputStorageID), NotEmpty(option.inputStoragePassword)};
static ComparationTable comparationJobInAccumulationPasswordAdmin;

const ComparationItem comparationItemJobInAccumulationPasswordNULLAdmin[] = {
    AdminMode, AdminJobSettings, JobStorage, NotEmpty(option.inputStorageID), Empty(option.inputStoragePassword)};
static ComparationTable comparationJobInAccumulationPasswordNULLAdmin;

const FmtTableRow JBAFmtTableAdmin[] = {
    {prtfmtStrComInTypeUseLoginNameAdmin, &symParaComInTypeUseLoginName, &comparationComInTypeUseLoginNameAdmin},
    {prtfmtStrComInTypeUseLoginNameAdmin1, &symParaComInTypeUseLoginName1, &comparationComInTypeUseLoginNameAdmin1},
    {prtfmtStrComInTypeUseLoginNameAdmin2, &symParaComInTypeUseLoginName2, &comparationComInTypeUseLoginNameAdmin2},
    {prtfmtStrComInTypeUseLoginNameAdmin3, &symParaComInTypeUseLoginName3, &comparationComInTypeUseLoginNameAdmin3},
    {prtfmtStrComInTypeUseLoginNameAdmin4, &symParaComInTypeUseLoginName4, &comparationComInTypeUseLoginNameAdmin4},
    {prtfmtStrComInTypeUseEnterNameAdmin, &symParaComInTypeUseEnterNameAdmin, &comparationComInTypeUseEnterNameAdmin},
    {prtfmtStrComInUserEnterPassword1Admin, &symParaComInUserEnterPassword1Admin,
     &comparationComInUserEnterPassword1Admin},
    {prtfmtStrComInUserEnterPassword1NULLAdmin, &symParaComInUserEnterPassword1NULL,
     &comparationComInUserEnterPassword1NULLAdmin},
    {prtfmtStrComInUserEnterPassword2Admin, &symParaComInUserEnterPassword2Admin,
     &comparationComInUserEnterPassword2Admin},
    {prtfmtStrComInUserEnterPassword2NULLAdmin, &symParaComInUserEnterPassword2NULL,
     &comparationComInUserEnterPassword2NULLAdmin},
    {prtfmtStrComInTypeDomainNameAdmin, &symParaComInTypeDomainNameAdmin, &comparationComInTypeDomainNameAdmin},
    {prtfmtStrComInAccountAdmin, &symParaComInAccountAdmin, &comparationComInAccountAdmin},
    {prtfmtStrComInAccountNULLAdmin, &symParaComInAccountNULL, &comparationComInAccountNULLAdmin},
    {prtfmtStrComInAccumulationIDAdmin, &symParaComInAccumulationIDAdmin, &comparationComInAccumulationIDAdmin},
    {prtfmtStrComInAccumulationDocumentNameAdmin, &symParaAccumulationDocumentName,
     &comparationComInAccumulationDocumentNameAdmin},
    {prtfmtStrComInAccumulationPasswordAdmin, &symParaComInAccumulationPasswordAdmin,
     &comparationComInAccumulationPasswordAdmin},
    {prtfmtStrComInAccumulationPasswordNULLAdmin, &symParaComInAccumulationPasswordNULL,
     &comparationComInAccumulationPasswordNULLAdmin},
    {prtfmtStrJobInUseEnterName, &symParaJobInUseEnterName, &comparationJobInUseEnterNameAdmin},
    {prtfmtStrJobInUseEnterName1, &symParaJobInUseEnterName1, &comparationJobInUseEnterName1Admin},
    {prtfmtStrJobInUseEnterName2, &symParaJobInUseEnterName2, &comparationJobInUseEnterName2Admin},
    {prtfmtStrJobInUserEnterPassword, &symParaJobInUserEnterPassword, &comparationJobInUserEnterPasswordAdmin},
    {prtfmtStrJobInUserEnterPassword1, &symParaJobInUserEnterPassword1, &comparationJobInUserEnterPassword1Admin},
    {prtfmtStrJobInUserEnterPasswordNULL, &symParaJobInUserEnterPasswordNULL,
     &comparationJobInUserEnterPasswordNULLAdmin},
    {prtfmtStrJobInUserEnterPassword1NULL, &symParaJobInUserEnterPassword1NULL,
     &comparationJobInUserEnterPassword1NULLAdmin},
    {prtfmtStrJobInDomainName, &symParaJobInDomainName, &comparationJobInDomainNameAdmin},
    {prtfmtStrJobInAccount, &symParaJobInAccount, &comparationJobInAccountAdmin},
    {prtfmtStrJobInAccount1, &symParaJobInAccount1, &comparationJobInAccount1Admin},
    {prtfmtStrJobInAccountNULL, &symParaJobInAccountNULL, &comparationJobInAccountNULLAdmin},
    {prtfmtStrJobInAccountNULL3, &symParaJobInAccountNULL3, &comparationJobInAccountNULL3Admin},
    {prtfmtStrJobInAccumulationID, &symParaJobInAccumulationID, &comparationJobInAccumulationIDAdmin},
    {prtfmtStrJobInAccumulationDocumentName, &symParaAccumulationDocumentName,
     &comparationJobInAccumulationDocumentNameAdmin},
    {prtfmtStrJobInUserNameAccumulation, &symParaJobInUserNameAccumulation, &comparationJobInUserNameAccumulationAdmin},
    {prtfmtStrJobInUserPasswordAccumulation, &symParaJobInUserPasswordAccumulation,
     &comparationJobInUserPasswordAccumulationAdmin},
    {prtfmtStrJobInAccumulationPassword, &symParaJobInAccumulationPassword, &comparationJobInAccumulationPasswordAdmin},
    {prtfmtStrJobInAccumulationPasswordNULL, &symParaJobInAccumulationPasswordNULL,
     &comparationJobInAccumulationPasswordNULLAdmin},
};
const int32_t JBAFmtTableAdminNum = static_cast<int32_t>(std::size(JBAFmtTableAdmin));

void JBAInitializeCmdParaTableForAdmin()
{
    InitializeCmdParaTable(symParaComInTypeUseEnterNameAdmin, cmdParaComInTypeUseEnterNameAdmin);
    InitializeCmdParaTable(symParaComInUserEnterPassword1Admin, cmdParaComInUserEnterPassword1Admin);
    InitializeCmdParaTable(symParaComInUserEnterPassword2Admin, cmdParaComInUserEnterPassword2Admin);
    InitializeCmdParaTable(symParaComInTypeDomainNameAdmin, cmdParaComInTypeDomainNameAdmin);
    InitializeCmdParaTable(symParaComInAccountAdmin, cmdParaComInAccountAdmin);
    InitializeCmdParaTable(symParaComInAccumulationIDAdmin, cmdParaComInAccumulationIDAdmin);
    InitializeCmdParaTable(symParaComInAccumulationPasswordAdmin, cmdParaComInAccumulationPasswordAdmin);
}

void JBAInitializeCaparationTableForAdmin()
{
    InitializeComparationTable(comparationComInTypeUseLoginNameAdmin, comparationItemComInTypeUseLoginNameAdmin);
    InitializeComparationTable(comparationComInTypeUseLoginNameAdmin1, comparationItemComInTypeUseLoginNameAdmin1);
    InitializeComparationTable(comparationComInTypeUseLoginNameAdmin2, comparationItemComInTypeUseLoginNameAdmin2);
    InitializeComparationTable(comparationComInTypeUseLoginNameAdmin3, comparationItemComInTypeUseLoginNameAdmin3);
    InitializeComparationTable(comparationComInTypeUseLoginNameAdmin4, comparationItemComInTypeUseLoginNameAdmin4);
    InitializeComparationTable(comparationComInTypeUseEnterNameAdmin, comparationItemComInTypeUseEnterNameAdmin);
    InitializeComparationTable(comparationComInUserEnterPassword1Admin, comparationItemComInUserEnterPassword1Admin);
    InitializeComparationTable(comparationComInUserEnterPassword1NULLAdmin,
                               comparationItemComInUserEnterPassword1NULLAdmin);
    InitializeComparationTable(comparationComInUserEnterPassword2Admin, comparationItemComInUserEnterPassword2Admin);
    InitializeComparationTable(comparationComInUserEnterPassword2NULLAdmin,
                               comparationItemComInUserEnterPassword2NULLAdmin);
    InitializeComparationTable(comparationComInTypeDomainNameAdmin, comparationItemComInTypeDomainNameAdmin);
    InitializeComparationTable(comparationComInAccountAdmin, comparationItemComInAccountAdmin);
    InitializeComparationTable(comparationComInAccountNULLAdmin, comparationItemComInAccountNULLAdmin);
    InitializeComparationTable(comparationComInAccumulationIDAdmin, comparationItemComInAccumulationIDAdmin);
    InitializeComparationTable(comparationComInAccumulationDocumentNameAdmin,
                               comparationItemComInAccumulationDocumentNameAdmin);
    InitializeComparationTable(comparationComInAccumulationPasswordAdmin,
                               comparationItemComInAccumulationPasswordAdmin);
    InitializeComparationTable(comparationComInAccumulationPasswordNULLAdmin,
                               comparationItemComInAccumulationPasswordNULLAdmin);
    InitializeComparationTable(comparationJobInUseEnterNameAdmin, comparationItemJobInUseEnterNameAdmin);
    InitializeComparationTable(comparationJobInUseEnterName1Admin, comparationItemJobInUseEnterName1Admin);
    InitializeComparationTable(comparationJobInUseEnterName2Admin, comparationItemJobInUseEnterName2Admin);
    InitializeComparationTable(comparationJobInUserEnterPasswordAdmin, comparationItemJobInUserEnterPasswordAdmin);
    InitializeComparationTable(comparationJobInUserEnterPassword1Admin, comparationItemJobInUserEnterPassword1Admin);
    InitializeComparationTable(comparationJobInUserEnterPasswordNULLAdmin,
                               comparationItemJobInUserEnterPasswordNULLAdmin);
    InitializeComparationTable(comparationJobInUserEnterPassword1NULLAdmin,
                               comparationItemJobInUserEnterPassword1NULLAdmin);
    InitializeComparationTable(comparationJobInDomainNameAdmin, comparationItemJobInDomainNameAdmin);
    InitializeComparationTable(comparationJobInAccountAdmin, comparationItemJobInAccountAdmin);
    InitializeComparationTable(comparationJobInAccount1Admin, comparationItemJobInAccount1Admin);
    InitializeComparationTable(comparationJobInAccountNULLAdmin, comparationItemJobInAccountNULLAdmin);
    InitializeComparationTable(comparationJobInAccountNULL3Admin, comparationItemJobInAccountNULL3Admin);
    InitializeComparationTable(comparationJobInAccumulationIDAdmin, comparationItemJobInAccumulationIDAdmin);
    InitializeComparationTable(comparationJobInAccumulationDocumentNameAdmin,
                               comparationItemJobInAccumulationDocumentNameAdmin);
    InitializeComparationTable(comparationJobInUserNameAccumulationAdmin,
                               comparationItemJobInUserNameAccumulationAdmin);
    InitializeComparationTable(comparationJobInUserPasswordAccumulationAdmin,
                               comparationItemJobInUserPasswordAccumulationAdmin);
    InitializeComparationTable(comparationJobInAccumulationPasswordAdmin,
                               comparationItemJobInAccumulationPasswordAdmin);
    InitializeComparationTable(comparationJobInAccumulationPasswordNULLAdmin,
                               comparationItemJobInAccumulationPasswordNULLAdmin);
}
