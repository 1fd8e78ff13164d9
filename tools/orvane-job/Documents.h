// Documents: docs/lines.md and docs/tickets.md as the build found them.
#pragma once

extern const char kLinesDocument[];
extern const char kTicketsDocument[];
