#include "SpecialPage.h"

#include <iterator>

SpecialPageOptions psOptionSpecialPage;

constexpr ticketData tickets[] = {
    IntegerTicket("com.orvane.dlg.printsettings.ZPIFCoverCountTicket", psOptionSpecialPage.coverCount),
    IntegerTicket("com.orvane.dlg.printsettings.ZPIFInsertionCountTicket", psOptionSpecialPage.insertionCount),
    IntegerTicket("com.orvane.dlg.printsettings.ZPIFExceptionCountTicket", psOptionSpecialPage.exceptionCount),
};
constinit const TicketTable SpecialPageTicketData = tickets;

const char CustomPapertyeSelectNumber[] = "33";

// clang-format off
const char *const CoverTypeZPJLComm[] = {
    "print-none", "PRINTNONE",
    "print-front", "PRINTFRONT",
    "print-back", "PRINTBACK",
    "print-both", "PRINTBOTH",
};
const int32_t CoverTypeZPJLCommValueCount = std::size(CoverTypeZPJLComm);

const char *const MediaColorZPJLComm[] = {
    "white", "WHITE",
    "blue", "BLUE",
    "buff", "BUFF",
    "goldenrod", "GOLDENROD",
    "gray", "GRAY",
    "green", "GREEN",
    "ivory", "IVORY",
    "orange", "ORANGE",
    "pink", "PINK",
    "red", "RED",
    "yellow", "YELLOW",
    "no-color", "CLEAR",
    "custom_1", "CUSTOM1",
    "custom_2", "CUSTOM2",
    "custom_3", "CUSTOM3",
    "custom_4", "CUSTOM4",
    "custom_5", "CUSTOM5",
    "other", "OTHER",
};
const int32_t MediaColorZPJLCommValueCount = std::size(MediaColorZPJLComm);

const char *const SidesZPJLComm[] = {
    "one-sided", "SIMPLEX",
    "two-sided-long-edge", "DUPLEX",
    "two-sided-short-edge", "TUMBLE",
};
const int32_t SidesZPJLCommValueCount = std::size(SidesZPJLComm);
// clang-format on
