// JBAConditions: conditions that many lines of job accounting have, the user's and the administrator's.
#pragma once

#include "JBA.h"

static constexpr JBAOptions &option = zpjlOptionJBA;

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
