// Booklet: how a booklet is imposed, bound and divided, as job attributes.
// Reads the comment record.
#pragma once

// Writes the lines; nothing unless the job is in UTF-8 mode.
void OutputZPJLCommandforBooklet();
