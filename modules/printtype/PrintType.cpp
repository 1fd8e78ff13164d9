#include "PrintType.h"

#include "PPDLookup.h"
#include "TicketReader.h"

#include <array>

PrintTypeOptions zpjlOptionPrintType;

static const char kPrintTypeTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeTicketKey";
static const char kPrintTypeUserNameTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeUserNameTicketKey";
static const char kPrintTypePasswordTicketKey[] = "com.orvane.dlg.printsettings.PrintTypePasswordTicketKey";
static const char kDoucmentNameTypeTicketKey[] = "com.orvane.dlg.printsettings.DocumentNameTypeTicketKey";
static const char kDoucmentNameTicketKey[] = "com.orvane.dlg.printsettings.DocumentNameTicketKey";
static const char kPrintTyeDelayPrintTicketKey[] = "com.orvane.dlg.printsettings.DelayPrintTicketKey";
static const char kPrintTyperMBNTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeMBNTicketKey";
static const char kPrintTypeMBNPasswordTicketKey[] = "com.orvane.dlg.printsettings.PrintTypeMBNPasswordTicketKey";

// The tickets in the order in which they are read; `typedText` reads what the user typed as free text.
static constexpr auto PrintTypeTickets(TicketGetter typedText)
{
    constexpr PrintTypeOptions &option = zpjlOptionPrintType;
    constexpr TicketGetter text = GetTicketStringConvertedToPrtLang;
    constexpr TicketGetter password = GetTicketPasswordStringConvertedToEncryption;
    return std::to_array<ticketData>({
        {kPrintTypeTicketKey, &option.printType, sizeof option.printType, GetTicketInteger},
        {kPrintTypeUserNameTicketKey, option.userName, sizeof option.userName, typedText},
        {kPrintTypePasswordTicketKey, option.password, sizeof option.password, password},
        {kDoucmentNameTypeTicketKey, &option.documentNameType, sizeof option.documentNameType, GetTicketInteger},
        {kDoucmentNameTicketKey, option.documentName, sizeof option.documentName, typedText},
        {kPrintTyeDelayPrintTicketKey, option.delayPrintTime, sizeof option.delayPrintTime, text},
        {kPrintTyperMBNTicketKey, option.boxNumber, sizeof option.boxNumber, text},
        {kPrintTypeMBNPasswordTicketKey, option.boxPassword, sizeof option.boxPassword, password},
    });
}
static constexpr auto PrintTypeticketData = PrintTypeTickets(GetTicketStringConvertedToPrtLang);
static constexpr auto PrintTypeticketDataForUTF8 = PrintTypeTickets(GetTicketStringConvertedToPrtLangForUTF8);

void PrintTypeInializeDescriptionTableFromFilter()
{
    PrintTypeInitializeCmdParaTable();
    PrintTypeInitialzieComparationTable();
}

void PrintTypeGetTicketFromPDE(const char *const *argv)
{
    const auto &tickets = IsUTF8Mode() ? PrintTypeticketDataForUTF8 : PrintTypeticketData;
    GetTicketFromArray(argv, tickets.data(), static_cast<int32_t>(tickets.size()));
}

void PrintTypeOutputZPJLCommandFromFilter(const char *const *argv)
{
    if (IsUTF8Mode() && CheckIfPPDKeywordSupported(JobPPD(), "QBXPrintTypeSettings", "Default04"))
        OutputZPJLCommandFromArray(argv, PrintTypeFmtPartTable, PrintTypeFmtPartTableNum);
    else
        OutputZPJLCommandFromArray(argv, PrintTypeFmtTable, PrintTypeFmtTableNum);
}
