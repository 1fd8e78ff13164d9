// JBA: job accounting: who sent the job, from where, on which account, and where the printer stores it.
// Reads the user's and the administrator's settings into a record and writes them as job attributes.
#pragma once

#include "CommandTable.h"
#include "PasswordTicket.h"

#include <cstdint>

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

// The lines of administrator mode, and those of user mode with what every job sends.
extern const FmtTableRow JBAFmtTableAdmin[];
extern const int32_t JBAFmtTableAdminNum;
extern const FmtTableRow JBAFmtTableCommon[];
extern const int32_t JBAFmtTableCommonNum;

// Fills the descriptors of the tables, from the four that follow.
void JBAInializeDescriptionTableFromFilter();
void JBAInitializeCmdParaTableForUser();
void JBAInitializeCmdParaTableForAdmin();
void JBAInitializeCaparationTableForUser();
void JBAInitializeCaparationTableForAdmin();

// Reads the tickets, user and storage IDs in the encoding of the job, and the layout and paper tickets that other
// modules ask for.
void JBAGetTicketFromPDE(const char *const *argv);

// Writes the administrator's lines, then the common ones.
void JBAOutputZPJLCommandFromFilter(const char *const *argv);
