// The lines of the print type, in output order: format, values, conditions, descriptors.
// The printers take the hold lines with LF and those that carry a value with CR LF.
#include "PrintType.h"

#include "JobState.h"

#include <iterator>

// Values of printType.
const int32_t OptionSecurePrintNone = 1;
const int32_t OptionSecurePrint = 2;
const int32_t OptionSamplePrint = 3;
const int32_t OptionDelayPrint = 4;
const int32_t OptionMBN = 5;

// Values of documentNameType: the job's title, or a name typed in the dialog.
const int32_t OptionDocumentNameAutoRetrieve = 1;
const int32_t OptionDocumentNameEnterName = 2;

// A user name of secure print must be shorter.
const int32_t PRINTTYPEUSERNAMEDMAXLEN = 97;

static constexpr const PrintTypeOptions &option = zpjlOptionPrintType;

// Names are sent for every type that is not normal printing, also for none (-1).
constexpr ComparationItem NotNormalPrint = NotEqual(option.printType, OptionSecurePrintNone);
constexpr ComparationItem SecurePrint = Equal(option.printType, OptionSecurePrint);
constexpr ComparationItem SamplePrint = Equal(option.printType, OptionSamplePrint);
constexpr ComparationItem DelayPrint = Equal(option.printType, OptionDelayPrint);
constexpr ComparationItem NotDelayPrint = NotEqual(option.printType, OptionDelayPrint);
constexpr ComparationItem MailboxPrint = Equal(option.printType, OptionMBN);
constexpr ComparationItem NotMailboxPrint = NotEqual(option.printType, OptionMBN);

const char prtfmtStrSecurePrint[] = "@PJL SET HOLD=STORE\n";
const void *const cmdParaSecurePrint[] = {&CTRLSym_CR, &CTRLSym_LF}; // spare: the format ends the line
const ComparationItem comparationItemSecurePrint[] = {SecurePrint, NotEmpty(option.userName),
                                                      ShorterThan(option.userName, PRINTTYPEUSERNAMEDMAXLEN)};
static CmdParaTable symParaSecurePrint;
static ComparationTable comparationSecurePrint;
constexpr FmtTableRow rowSecurePrint = {prtfmtStrSecurePrint, &symParaSecurePrint, &comparationSecurePrint};

const char prtfmtStrSecurePrintHold[] = "@PJL SET HOLDTYPE=PRIVATE\n";
const ComparationItem comparationItemSecurePrintHold[] = {SecurePrint, NotEmpty(option.userName),
                                                          NotEmpty(option.password), NotEmpty(option.password)};
static ComparationTable comparationSecurePrintHold;
constexpr FmtTableRow rowSecurePrintHold = {prtfmtStrSecurePrintHold, nullptr, &comparationSecurePrintHold};

const char prtfmtStrSamplePrintHold[] = "@PJL SET HOLD=PROOF\n";
const ComparationItem comparationItemSamplePrintHold[] = {SamplePrint, NotEmpty(option.userName)};
static ComparationTable comparationSamplePrintHold;
constexpr FmtTableRow rowSamplePrintHold = {prtfmtStrSamplePrintHold, nullptr, &comparationSamplePrintHold};

const char prtfmtStrSMBPrintHold[] = "@PJL SET HOLD=BOXSTORE\n";
const ComparationItem comparationItemSMBPrintHold[] = {MailboxPrint};
static ComparationTable comparationSMBPrintHold;
constexpr FmtTableRow rowSMBPrintHold = {prtfmtStrSMBPrintHold, nullptr, &comparationSMBPrintHold};

const char prtfmtStrMBNumberPrintHold[] = "@PJL SET HOLDTYPE=PRIVATE\n";
const ComparationItem comparationItemMBNumberPrintHold[] = {MailboxPrint, NotEmpty(option.boxPassword)};
static ComparationTable comparationMBNumberPrintHold;
constexpr FmtTableRow rowMBNumberPrintHold = {prtfmtStrMBNumberPrintHold, nullptr, &comparationMBNumberPrintHold};

const char prtfmtStrSMBEnterNumber[] = "@PJL SET BOXNUMBER=%s%c%c";
const void *const cmdParaSMBEnterNumber[] = {option.boxNumber, &CTRLSym_CR, &CTRLSym_LF};
const ComparationItem comparationItemSMBEnterNumber[] = {MailboxPrint};
static CmdParaTable symParaSMBEnterNumber;
static ComparationTable comparationSMBEnterNumber;
constexpr FmtTableRow rowSMBEnterNumber = {prtfmtStrSMBEnterNumber, &symParaSMBEnterNumber, &comparationSMBEnterNumber};

const char prtfmtStrSMBPassword[] = "@PJL SET BOXENCRYPTKEY=%c%s%c%c%c";
const void *const cmdParaSMBPassword[] = {&CTRLSym_DOUBLE, option.boxPassword, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                          &CTRLSym_LF};
const ComparationItem comparationItemSMBPassword[] = {MailboxPrint, NotEmpty(option.boxPassword)};
static CmdParaTable symParaSMBPassword;
static ComparationTable comparationParaSMBPassword;
constexpr FmtTableRow rowSMBPassword = {prtfmtStrSMBPassword, &symParaSMBPassword, &comparationParaSMBPassword};

const char prtfmtStrSecurePrintUserName[] = "@PJL SET USERNAME=%c%s%c%c%c";
const void *const cmdParaSecureUserName[] = {&CTRLSym_DOUBLE, option.userName, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                             &CTRLSym_LF};
const ComparationItem comparationItemSecureUserName[] = {NotNormalPrint, NotDelayPrint, NotMailboxPrint,
                                                         NotEmpty(option.userName)};
static CmdParaTable symParaSecureUserName;
static ComparationTable comparationSecureUserName;
constexpr FmtTableRow rowSecurePrintUserName = {prtfmtStrSecurePrintUserName, &symParaSecureUserName,
                                                &comparationSecureUserName};

const char prtfmtStrSecurePrintPassword[] = "@PJL SET HOLDENCRYPTKEY=%c%s%c%c%c";
const void *const cmdParaSecurePrintPassword[] = {&CTRLSym_DOUBLE, option.password, &CTRLSym_DOUBLE, &CTRLSym_CR,
                                                  &CTRLSym_LF};
const ComparationItem comparationItemSecurePrintPassword[] = {SecurePrint, NotEmpty(option.userName),
                                                              NotEmpty(option.password)};
static CmdParaTable symParaSecurePrintPassword;
static ComparationTable comparationParaSecurePrintPassword;
constexpr FmtTableRow rowSecurePrintPassword = {prtfmtStrSecurePrintPassword, &symParaSecurePrintPassword,
                                                &comparationParaSecurePrintPassword};

const char prtfmtStrDocumentNameAutoRetrieve[] = "@PJL SET JOBNAME=%c%s%c\r\n";
const void *const cmdParaDocumentNameAutoRetrieve[] = {&CTRLSym_DOUBLE, PTStdDocumentName, &CTRLSym_DOUBLE};
const ComparationItem comparationItemDocumentNameAutoRetrieve[] = {
    NotNormalPrint, Equal(option.documentNameType, OptionDocumentNameAutoRetrieve), NotEmpty(PTStdDocumentName)};
static CmdParaTable symParaDocumentNameAutoRetrieve;
static ComparationTable comparationDocumentNameAutoRetrieve;
constexpr FmtTableRow rowDocumentNameAutoRetrieve = {
    prtfmtStrDocumentNameAutoRetrieve, &symParaDocumentNameAutoRetrieve, &comparationDocumentNameAutoRetrieve};

const char prtfmtStrDocumentNameEnterName[] = "@PJL SET JOBNAME=%c%s%c\r\n";
const void *const cmdParaDocumentNameEnterName[] = {&CTRLSym_DOUBLE, option.documentName, &CTRLSym_DOUBLE};
const ComparationItem comparationItemDocumentNameEnterName[] = {
    NotNormalPrint, Equal(option.documentNameType, OptionDocumentNameEnterName), NotEmpty(option.documentName)};
static CmdParaTable symParaDocumentNameEnterName;
static ComparationTable comparationDocumentNameEnterName;
constexpr FmtTableRow rowDocumentNameEnterName = {prtfmtStrDocumentNameEnterName, &symParaDocumentNameEnterName,
                                                  &comparationDocumentNameEnterName};

const char prtfmtStrDelayPrint[] = "@PJL SET JOBATTR=%c@PRTM=%s%c\r\n";
const void *const cmdParaDelayPrint[] = {&CTRLSym_DOUBLE, option.delayPrintTime, &CTRLSym_DOUBLE};
const ComparationItem comparationItemDelayPrint[] = {DelayPrint, NotEmpty(option.delayPrintTime)};
static CmdParaTable symParaDelayPrint;
static ComparationTable comparationDelayPrint;
constexpr FmtTableRow rowDelayPrint = {prtfmtStrDelayPrint, &symParaDelayPrint, &comparationDelayPrint};

// clang-format off
const FmtTableRow PrintTypeFmtTable[] = {
    rowSecurePrint,
    rowSecurePrintHold,
    rowSamplePrintHold,
    rowSMBPrintHold,
    rowMBNumberPrintHold,
    rowSMBEnterNumber,
    rowSMBPassword,
    rowSecurePrintUserName,
    rowSecurePrintPassword,
    rowDocumentNameAutoRetrieve,
    rowDocumentNameEnterName,
    rowDelayPrint,
};
// clang-format on
const int32_t PrintTypeFmtTableNum = static_cast<int32_t>(std::size(PrintTypeFmtTable));

// clang-format off
const FmtTableRow PrintTypeFmtPartTable[] = {
    rowSecurePrint,
    rowSecurePrintHold,
    rowSamplePrintHold,
    rowSecurePrintUserName,
    rowSecurePrintPassword,
    rowDocumentNameAutoRetrieve,
    rowDocumentNameEnterName,
};
// clang-format on
const int32_t PrintTypeFmtPartTableNum = static_cast<int32_t>(std::size(PrintTypeFmtPartTable));

void PrintTypeInitializeCmdParaTable()
{
    InitializeCmdParaTable(symParaSecurePrint, cmdParaSecurePrint);
    InitializeCmdParaTable(symParaSMBEnterNumber, cmdParaSMBEnterNumber);
    InitializeCmdParaTable(symParaSMBPassword, cmdParaSMBPassword);
    InitializeCmdParaTable(symParaSecureUserName, cmdParaSecureUserName);
    InitializeCmdParaTable(symParaSecurePrintPassword, cmdParaSecurePrintPassword);
    InitializeCmdParaTable(symParaDocumentNameAutoRetrieve, cmdParaDocumentNameAutoRetrieve);
    InitializeCmdParaTable(symParaDocumentNameEnterName, cmdParaDocumentNameEnterName);
    InitializeCmdParaTable(symParaDelayPrint, cmdParaDelayPrint);
}

void PrintTypeInitialzieComparationTable()
{
    InitializeComparationTable(comparationSecurePrint, comparationItemSecurePrint);
    InitializeComparationTable(comparationSecurePrintHold, comparationItemSecurePrintHold);
    InitializeComparationTable(comparationSamplePrintHold, comparationItemSamplePrintHold);
    InitializeComparationTable(comparationSMBPrintHold, comparationItemSMBPrintHold);
    InitializeComparationTable(comparationMBNumberPrintHold, comparationItemMBNumberPrintHold);
    InitializeComparationTable(comparationSMBEnterNumber, comparationItemSMBEnterNumber);
    InitializeComparationTable(comparationParaSMBPassword, comparationItemSMBPassword);
    InitializeComparationTable(comparationSecureUserName, comparationItemSecureUserName);
    InitializeComparationTable(comparationParaSecurePrintPassword, comparationItemSecurePrintPassword);
    InitializeComparationTable(comparationDocumentNameAutoRetrieve, comparationItemDocumentNameAutoRetrieve);
    InitializeComparationTable(comparationDocumentNameEnterName, comparationItemDocumentNameEnterName);
    InitializeComparationTable(comparationDelayPrint, comparationItemDelayPrint);
}
