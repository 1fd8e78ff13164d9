// ModuleDispatch: the fixed orders in which the modules initialise, read their tickets, write and inject.
#pragma once

#include <cstdint>
#include <cstdio>

// Puts the modules' records back to the start of a job. Watermark, perfect binding and comment do it where they read
// their tickets.
void InializeDescriptionTableFromFilter();

// Has every module read its tickets; returns 1.
int32_t GetTicketFromPDE(const char *const *argv);

// Writes the table-driven lines of the header.
void OutputZPJLCommandFromFilter(const char *const *argv);

// Whether a module may have something for this event.
bool HasPSCommandFromFilter(int32_t event);

// Injects what the modules have for this event; pageNumber counts from 1 at page ends.
void OutputPSCommandFromFilter(int32_t event, int32_t pageNumber, FILE *out);
