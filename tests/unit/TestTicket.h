// TestTicket: a ticket read from options that hold nothing else.
#pragma once

#include "TicketReader.h"

#include <string>
#include <vector>

// Reads the ticket K of this value, "(absent)" for none, into the field; answers what the getter does.
static int32_t Read(TicketGetter getter, std::string value, std::vector<char> &field)
{
    char name[] = "K";
    cups_option_t option = {name, value.data()};
    return getter(name, value != "(absent)", &option, field.data(), static_cast<int32_t>(field.size()));
}
