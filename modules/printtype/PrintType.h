// PrintType: secure, sample, delayed and mailbox printing, and the job's name.
// The first module of the header: reads its tickets into a record and contributes the lines that hold the job.
#pragma once

#include "CommandTable.h"
#include "PasswordTicket.h"
#include "TicketReader.h"

#include <cstdint>

// The tickets.
inline constexpr char kPrintTypeTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeTicketKey";
inline constexpr char kPrintTypeUserNameTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeUserNameTicketKey";
inline constexpr char kPrintTypePasswordTicketKey[] = "com.orvane.dlg.printsettings.PrintTypePasswordTicketKey";
inline constexpr char kDoucmentNameTypeTicketKey[] = "com.orvane.dlg.printsettings.DocumentNameTypeTicketKey";
inline constexpr char kDoucmentNameTicketKey[] = "com.orvane.dlg.printsettings.DocumentNameTicketKey";
inline constexpr char kPrintTyeDelayPrintTicketKey[] = "com.orvane.dlg.printsettings.DelayPrintTicketKey";
inline constexpr char kPrintTyperMBNTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeMBNTicketKey";
inline constexpr char kPrintTypeMBNPasswordTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeMBNPasswordTicketKey";

// Values of printType.
inline constexpr int32_t OptionSecurePrintNone = 1;
inline constexpr int32_t OptionSecurePrint = 2;
inline constexpr int32_t OptionSamplePrint = 3;
inline constexpr int32_t OptionDelayPrint = 4;
inline constexpr int32_t OptionMBN = 5;

// Values of documentNameType: the job's title, or a name typed in the dialog.
inline constexpr int32_t OptionDocumentNameAutoRetrieve = 1;
inline constexpr int32_t OptionDocumentNameEnterName = 2;

// A user name of secure print must be shorter.
inline constexpr int32_t PRINTTYPEUSERNAMEDMAXLEN = 97;

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

extern const TicketTable PrintTypeticketData;
extern const TicketTable PrintTypeticketDataForUTF8;

// All lines, and those for printers that know neither mailboxes nor delayed printing.
extern const FmtTableRow PrintTypeFmtTable[];
extern const int32_t PrintTypeFmtTableNum;
extern const FmtTableRow PrintTypeFmtPartTable[];
extern const int32_t PrintTypeFmtPartTableNum;

// Puts the record back to the start of a job.
void PrintTypeInializeDescriptionTableFromFilter();

// Reads the tickets; user and document names in the encoding of the job.
void PrintTypeGetTicketFromPDE(const char *const *argv);

// Writes the lines, from the table that fits the queue's PPD.
void PrintTypeOutputZPJLCommandFromFilter(const char *const *argv);
