// PrintType: secure, sample, delayed and mailbox printing, and the job's name.
// The first module of the header: reads its tickets into a record and contributes the lines that hold the job.
#pragma once

#include "CommandTable.h"
#include "PasswordTicket.h"

#include <cstdint>

// Integers are -1 and texts empty when their ticket is absent.
struct PrintTypeOptions {
    int32_t printType;
    char userName[97];
    char password[kEncryptedPasswordSize];
    int32_t documentNameType;
    char documentName[193];
    char delayPrintTime[17];
    char boxNumber[5];
    char boxPassword[kEncryptedPasswordSize];
};
extern PrintTypeOptions zpjlOptionPrintType;

// All lines, and those for printers that know neither mailboxes nor delayed printing.
extern const FmtTableRow PrintTypeFmtTable[];
extern const int32_t PrintTypeFmtTableNum;
extern const FmtTableRow PrintTypeFmtPartTable[];
extern const int32_t PrintTypeFmtPartTableNum;

// Fills the descriptors of the tables, from the two that follow.
void PrintTypeInializeDescriptionTableFromFilter();
void PrintTypeInitializeCmdParaTable();
void PrintTypeInitialzieComparationTable();

// Reads the tickets; user and document names in the encoding of the job.
void PrintTypeGetTicketFromPDE(const char *const *argv);

// Writes the lines, from the table that fits the queue's PPD.
void PrintTypeOutputZPJLCommandFromFilter(const char *const *argv);
