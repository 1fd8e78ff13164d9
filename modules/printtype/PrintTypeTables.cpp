// The lines of the print type, in output order, and its tickets.
// The printers take the hold lines with LF and those that carry a value with CR LF.
#include "PrintType.h"

#include "JobState.h"

#include <iterator>

static constexpr PrintTypeOptions &option = zpjlOptionPrintType;

// The tickets. TypedText reads what the user typed as free text, in the encoding of the job.
template <TicketGetter TypedText>
static constexpr ticketData tickets[] = {
    IntegerTicket(kPrintTypeTicketKey, option.printType),
    TextTicket(kPrintTypeUserNameTicketKey, option.userName, TypedText),
    PasswordTicket(kPrintTypePasswordTicketKey, option.password),
    IntegerTicket(kDoucmentNameTypeTicketKey, option.documentNameType),
    TextTicket(kDoucmentNameTicketKey, option.documentName, TypedText),
    TextTicket(kPrintTyeDelayPrintTicketKey, option.delayPrintTime),
    TextTicket(kPrintTyperMBNTicketKey, option.boxNumber),
    PasswordTicket(kPrintTypeMBNPasswordTicketKey, option.boxPassword),
};
constinit const TicketTable PrintTypeticketData = tickets<GetTicketStringConvertedToPrtLang>;
constinit const TicketTable PrintTypeticketDataForUTF8 = tickets<GetTicketStringConvertedToPrtLangForUTF8>;

// Names are sent for every type that is not normal printing, also for none (-1).
constexpr ComparationItem NotNormalPrint = NotEqual(option.printType, OptionSecurePrintNone);
constexpr ComparationItem SecurePrint = Equal(option.printType, OptionSecurePrint);
constexpr ComparationItem SamplePrint = Equal(option.printType, OptionSamplePrint);
constexpr ComparationItem DelayPrint = Equal(option.printType, OptionDelayPrint);
constexpr ComparationItem NotDelayPrint = NotEqual(option.printType, OptionDelayPrint);
constexpr ComparationItem MailboxPrint = Equal(option.printType, OptionMBN);
constexpr ComparationItem NotMailboxPrint = NotEqual(option.printType, OptionMBN);

constexpr char prtfmtStrSecurePrint[] = "@PJL SET HOLD=STORE\n";
constexpr const void *cmdParaSecurePrint[] = {CR, LF}; // declared and not used
constexpr ComparationItem comparationItemSecurePrint[] = {SecurePrint, NotEmpty(option.userName),
                                                          ShorterThan(option.userName, PRINTTYPEUSERNAMEDMAXLEN)};
constexpr CmdParaTable symParaSecurePrint = Values(cmdParaSecurePrint);
constexpr ComparationTable comparationSecurePrint = Conditions(comparationItemSecurePrint);

constexpr char prtfmtStrSecurePrintHold[] = "@PJL SET HOLDTYPE=PRIVATE\n";
constexpr ComparationItem comparationItemSecurePrintHold[] = {SecurePrint, NotEmpty(option.userName),
                                                              NotEmpty(option.password), NotEmpty(option.password)};
constexpr ComparationTable comparationSecurePrintHold = Conditions(comparationItemSecurePrintHold);

constexpr char prtfmtStrSamplePrintHold[] = "@PJL SET HOLD=PROOF\n";
constexpr ComparationItem comparationItemSamplePrintHold[] = {SamplePrint, NotEmpty(option.userName)};
constexpr ComparationTable comparationSamplePrintHold = Conditions(comparationItemSamplePrintHold);

constexpr char prtfmtStrSMBPrintHold[] = "@PJL SET HOLD=BOXSTORE\n";
constexpr ComparationItem comparationItemSMBPrintHold[] = {MailboxPrint};
constexpr ComparationTable comparationSMBPrintHold = Conditions(comparationItemSMBPrintHold);

constexpr char prtfmtStrMBNumberPrintHold[] = "@PJL SET HOLDTYPE=PRIVATE\n";
constexpr ComparationItem comparationItemMBNumberPrintHold[] = {MailboxPrint, NotEmpty(option.boxPassword)};
constexpr ComparationTable comparationMBNumberPrintHold = Conditions(comparationItemMBNumberPrintHold);

constexpr char prtfmtStrSMBEnterNumber[] = "@PJL SET BOXNUMBER=%s%c%c";
constexpr const void *cmdParaSMBEnterNumber[] = {option.boxNumber, CR, LF};
constexpr ComparationItem comparationItemSMBEnterNumber[] = {MailboxPrint};
constexpr CmdParaTable symParaSMBEnterNumber = Values(cmdParaSMBEnterNumber);
constexpr ComparationTable comparationSMBEnterNumber = Conditions(comparationItemSMBEnterNumber);

constexpr char prtfmtStrSMBPassword[] = "@PJL SET BOXENCRYPTKEY=%c%s%c%c%c";
constexpr const void *cmdParaSMBPassword[] = {Quote, option.boxPassword, Quote, CR, LF};
constexpr ComparationItem comparationItemSMBPassword[] = {MailboxPrint, NotEmpty(option.boxPassword)};
constexpr CmdParaTable symParaSMBPassword = Values(cmdParaSMBPassword);
constexpr ComparationTable comparationParaSMBPassword = Conditions(comparationItemSMBPassword);

constexpr char prtfmtStrSecurePrintUserName[] = "@PJL SET USERNAME=%c%s%c%c%c";
constexpr const void *cmdParaSecureUserName[] = {Quote, option.userName, Quote, CR, LF};
constexpr ComparationItem comparationItemSecureUserName[] = {NotNormalPrint, NotDelayPrint, NotMailboxPrint,
                                                             NotEmpty(option.userName)};
constexpr CmdParaTable symParaSecureUserName = Values(cmdParaSecureUserName);
constexpr ComparationTable comparationSecureUserName = Conditions(comparationItemSecureUserName);

constexpr char prtfmtStrSecurePrintPassword[] = "@PJL SET HOLDENCRYPTKEY=%c%s%c%c%c";
constexpr const void *cmdParaSecurePrintPassword[] = {Quote, option.password, Quote, CR, LF};
constexpr ComparationItem comparationItemSecurePrintPassword[] = {SecurePrint, NotEmpty(option.userName),
                                                                  NotEmpty(option.password)};
constexpr CmdParaTable symParaSecurePrintPassword = Values(cmdParaSecurePrintPassword);
constexpr ComparationTable comparationParaSecurePrintPassword = Conditions(comparationItemSecurePrintPassword);

constexpr char prtfmtStrDocumentNameAutoRetrieve[] = "@PJL SET JOBNAME=%c%s%c\r\n";
constexpr const void *cmdParaDocumentNameAutoRetrieve[] = {Quote, PTStdDocumentName, Quote};
constexpr ComparationItem comparationItemDocumentNameAutoRetrieve[] = {
    NotNormalPrint, Equal(option.documentNameType, OptionDocumentNameAutoRetrieve), NotEmpty(PTStdDocumentName)};
constexpr CmdParaTable symParaDocumentNameAutoRetrieve = Values(cmdParaDocumentNameAutoRetrieve);
constexpr ComparationTable comparationDocumentNameAutoRetrieve = Conditions(comparationItemDocumentNameAutoRetrieve);

constexpr char prtfmtStrDocumentNameEnterName[] = "@PJL SET JOBNAME=%c%s%c\r\n";
constexpr const void *cmdParaDocumentNameEnterName[] = {Quote, option.documentName, Quote};
constexpr ComparationItem comparationItemDocumentNameEnterName[] = {
    NotNormalPrint, Equal(option.documentNameType, OptionDocumentNameEnterName), NotEmpty(option.documentName)};
constexpr CmdParaTable symParaDocumentNameEnterName = Values(cmdParaDocumentNameEnterName);
constexpr ComparationTable comparationDocumentNameEnterName = Conditions(comparationItemDocumentNameEnterName);

constexpr char prtfmtStrDelayPrint[] = "@PJL SET JOBATTR=%c@PRTM=%s%c\r\n";
constexpr const void *cmdParaDelayPrint[] = {Quote, option.delayPrintTime, Quote};
constexpr ComparationItem comparationItemDelayPrint[] = {DelayPrint, NotEmpty(option.delayPrintTime)};
constexpr CmdParaTable symParaDelayPrint = Values(cmdParaDelayPrint);
constexpr ComparationTable comparationDelayPrint = Conditions(comparationItemDelayPrint);

const FmtTableRow PrintTypeFmtTable[] = {
    {prtfmtStrSecurePrint, &symParaSecurePrint, &comparationSecurePrint},
    Command(prtfmtStrSecurePrintHold, nullptr, &comparationSecurePrintHold),
    Command(prtfmtStrSamplePrintHold, nullptr, &comparationSamplePrintHold),
    Command(prtfmtStrSMBPrintHold, nullptr, &comparationSMBPrintHold),
    Command(prtfmtStrMBNumberPrintHold, nullptr, &comparationMBNumberPrintHold),
    Command(prtfmtStrSMBEnterNumber, &symParaSMBEnterNumber, &comparationSMBEnterNumber),
    Command(prtfmtStrSMBPassword, &symParaSMBPassword, &comparationParaSMBPassword),
    Command(prtfmtStrSecurePrintUserName, &symParaSecureUserName, &comparationSecureUserName),
    Command(prtfmtStrSecurePrintPassword, &symParaSecurePrintPassword, &comparationParaSecurePrintPassword),
    Command(prtfmtStrDocumentNameAutoRetrieve, &symParaDocumentNameAutoRetrieve, &comparationDocumentNameAutoRetrieve),
    Command(prtfmtStrDocumentNameEnterName, &symParaDocumentNameEnterName, &comparationDocumentNameEnterName),
    Command(prtfmtStrDelayPrint, &symParaDelayPrint, &comparationDelayPrint),
};
const int32_t PrintTypeFmtTableNum = static_cast<int32_t>(std::size(PrintTypeFmtTable));

const FmtTableRow PrintTypeFmtPartTable[] = {
    {prtfmtStrSecurePrint, &symParaSecurePrint, &comparationSecurePrint},
    Command(prtfmtStrSecurePrintHold, nullptr, &comparationSecurePrintHold),
    Command(prtfmtStrSamplePrintHold, nullptr, &comparationSamplePrintHold),
    Command(prtfmtStrSecurePrintUserName, &symParaSecureUserName, &comparationSecureUserName),
    Command(prtfmtStrSecurePrintPassword, &symParaSecurePrintPassword, &comparationParaSecurePrintPassword),
    Command(prtfmtStrDocumentNameAutoRetrieve, &symParaDocumentNameAutoRetrieve, &comparationDocumentNameAutoRetrieve),
    Command(prtfmtStrDocumentNameEnterName, &symParaDocumentNameEnterName, &comparationDocumentNameEnterName),
};
const int32_t PrintTypeFmtPartTableNum = static_cast<int32_t>(std::size(PrintTypeFmtPartTable));
