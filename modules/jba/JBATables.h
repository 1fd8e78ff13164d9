// JBATables: what the common and the administrator's lines of job accounting share.
// Conditions that many lines have, and the formats and values that the administrator's lines take from the common ones.
#pragma once

#include "JBA.h"

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

static constexpr const JBAOptions &option = zpjlOptionJBA;

// The user's settings: stored in the dialog or for this job only.
constexpr ComparationItem UserMode = Equal(option.manageType, JBAModeListUser);
constexpr ComparationItem StoredSettings = Equal(option.userSetting, OptionUserInputTypeSelected);
constexpr ComparationItem UseLoginName = Equal(option.userIDList, OptionComInUserTypeUseLogin);
constexpr ComparationItem UseEnteredName = Equal(option.userIDList, OptionComInUserTypeEnterName);
constexpr ComparationItem JobSettings = Equal(option.userInput, OptionUserInputTypeSelected);

// The same of the administrator.
constexpr ComparationItem AdminMode = Equal(option.manageType, JBAModeListAdmin);
constexpr ComparationItem AdminStoredSettings = Equal(option.adminUserSetting, OptionUserInputTypeSelectedAdmin);
constexpr ComparationItem AdminUseLoginName = Equal(option.adminUserIDList, OptionComInUserTypeUseLoginAdmin);
constexpr ComparationItem AdminUseEnteredName = Equal(option.adminUserIDList, OptionComInUserTypeEnterNameAdmin);
constexpr ComparationItem AdminJobSettings = Equal(option.adminUserInput, OptionUserInputTypeSelectedAdmin);

// What was entered for the job: an identity, its password (the same button), a place in the storage.
constexpr ComparationItem JobIdentity = Equal(option.inputAuth, OptionUserInputTypeSelected);
constexpr ComparationItem JobPassword = Equal(option.inputAuth, OptionComInUserTypeUseLogin);
constexpr ComparationItem JobStorage = Equal(option.inputStorage, OptionUserInputTypeSelected);

// What the printer accounts by, and whether it may see who printed.
constexpr ComparationItem NoInfoList = Equal(option.infoList, JBAInfoListNotExist);
constexpr ComparationItem AnyInfoList = NotEqual(option.infoList, JBAInfoListNotExist);
constexpr ComparationItem UserAccount = Equal(option.infoList, JBAInfoListUserAccntSelect);
constexpr ComparationItem BillingOnly = Equal(option.infoList, JBAInfoListBillingSelect);
constexpr ComparationItem AllInfo = Equal(option.infoList, JBAInfoListAllSelect);
constexpr ComparationItem NameHidden = Equal(option.infoSetList, Case_8);
constexpr ComparationItem NameShown = NotEqual(option.infoSetList, Case_8);

// Formats of the common lines that the administrator's lines have too.
extern const char prtfmtStrComInTypeUseLoginName[];
extern const char prtfmtStrComInTypeUseLoginName1[];
extern const char prtfmtStrComInTypeUseLoginName2[];
extern const char prtfmtStrComInTypeUseLoginName3[];
extern const char prtfmtStrComInTypeUseLoginName4[];
extern const char prtfmtStrComInTypeUseEnterName[];
extern const char prtfmtStrComInUserEnterPassword1[];
extern const char prtfmtStrComInUserEnterPassword1NULL[];
extern const char prtfmtStrComInUserEnterPassword2[];
extern const char prtfmtStrComInUserEnterPassword2NULL[];
extern const char prtfmtStrComInDomainName[];
extern const char prtfmtStrComInAccount[];
extern const char prtfmtStrComInAccountNULL[];
extern const char prtfmtStrComInAccumulationID[];
extern const char prtfmtStrComInAccumulationPassword[];
extern const char prtfmtStrComInAccumulationPasswordNULL[];
extern const char prtfmtStrJobInUseEnterName[];
extern const char prtfmtStrJobInUseEnterName1[];
extern const char prtfmtStrJobInUseEnterName2[];
extern const char prtfmtStrJobInUserEnterPassword[];
extern const char prtfmtStrJobInUserEnterPassword1[];
extern const char prtfmtStrJobInUserEnterPasswordNULL[];
extern const char prtfmtStrJobInUserEnterPassword1NULL[];
extern const char prtfmtStrJobInDomainName[];
extern const char prtfmtStrJobInAccount[];
extern const char prtfmtStrJobInAccount1[];
extern const char prtfmtStrJobInAccountNULL[];
extern const char prtfmtStrJobInAccountNULL3[];
extern const char prtfmtStrJobInAccumulationID[];
extern const char prtfmtStrAccumulationDocumentName[];
extern const char prtfmtStrJobInUserNameAccumulation[];
extern const char prtfmtStrJobInUserPasswordAccumulation[];
extern const char prtfmtStrJobInAccumulationPassword[];
extern const char prtfmtStrJobInAccumulationPasswordNULL[];

// Values that are the same whoever's settings count.
extern CmdParaTable symParaComInTypeUseLoginName;
extern CmdParaTable symParaComInTypeUseLoginName1;
extern CmdParaTable symParaComInTypeUseLoginName2;
extern CmdParaTable symParaComInTypeUseLoginName3;
extern CmdParaTable symParaComInTypeUseLoginName4;
extern CmdParaTable symParaComInUserEnterPassword1NULL;
extern CmdParaTable symParaComInUserEnterPassword2NULL;
extern CmdParaTable symParaComInAccountNULL;
extern CmdParaTable symParaComInAccumulationPasswordNULL;
extern CmdParaTable symParaJobInUseEnterName;
extern CmdParaTable symParaJobInUseEnterName1;
extern CmdParaTable symParaJobInUseEnterName2;
extern CmdParaTable symParaJobInUserEnterPassword;
extern CmdParaTable symParaJobInUserEnterPassword1;
extern CmdParaTable symParaJobInUserEnterPasswordNULL;
extern CmdParaTable symParaJobInUserEnterPassword1NULL;
extern CmdParaTable symParaJobInDomainName;
extern CmdParaTable symParaJobInAccount;
extern CmdParaTable symParaJobInAccount1;
extern CmdParaTable symParaJobInAccountNULL;
extern CmdParaTable symParaJobInAccountNULL3;
extern CmdParaTable symParaJobInAccumulationID;
extern CmdParaTable symParaAccumulationDocumentName;
extern CmdParaTable symParaJobInUserNameAccumulation;
extern CmdParaTable symParaJobInUserPasswordAccumulation;
extern CmdParaTable symParaJobInAccumulationPassword;
extern CmdParaTable symParaJobInAccumulationPasswordNULL;
