// ImageQuality: toner saver, line weight, render mode and the code set of the job's texts.
// All but the code set come from the comment record.
#pragma once

// Writes the toner saver's mode and reduction rate.
void OutputZPJLCommandForTonerSaver();

// Writes line weight and render mode.
void OutputZPJLCommandOthers();

// Writes the code set; nothing unless the job is in UTF-8 mode.
void OutputZPJLCommandLanguageEncoding();
