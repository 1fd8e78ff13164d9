// PPDTickets: what the queue's PPD says that choices of its options mean (*OVTicket), and the defaults that it wants
// sent (*OVSendDefaults). docs/ppd-tickets.md has both for those who write PPDs.
#pragma once

#include "TicketReader.h"

#include <string>
#include <string_view>

// Adds to the job's options (argument 5, parsed) what the rows of the PPD give for them. Returns a word for each option
// added: a blank and its name, which has "no" before it where the value is false. A PPD without these attributes, or
// none at all, adds nothing.
std::string AddPPDTickets(const char *const *argv, JobOptions &options);

// Longest string of PostScript that a line of the watermark takes, its parentheses included, in bytes.
extern const size_t kPostScriptStringMaxLength;

// UTF-8 text as a string of PostScript (PostScript Language Reference, 3.2.2) in ASCII, other bytes as \ooo: ISO 8859-1
// where that has all of its characters, else Shift-JIS, which drops those that it lacks. Cut after a whole character;
// "()" when the text is not valid UTF-8.
std::string PostScriptString(std::string_view text);

// The text as it may stand in a ticket: without control characters and double quotes.
std::string WithoutControls(std::string_view text);
