// JobState: what the whole job shares: the name, host, layout and paper buffers.
// Filled at start and by the tickets, only read afterwards.
#pragma once

#include <csignal>
#include <cstddef>
#include <cstdint>

constexpr size_t kUserNameSize = 766; // 255 UTF-16 units of three bytes and a NUL
constexpr size_t kUserNameSizeLegacy = 255;
constexpr size_t kJBAUserNameSize = 97;
constexpr size_t kJBAUserNameSizeLegacy = 33;
constexpr size_t kDocumentNameSize = 255;
constexpr size_t kLayoutTextSize = 255;
constexpr size_t kHostNameSize = 97;
constexpr size_t kIPAddressSize = 40;

extern char StdUserName[kUserNameSize];
extern char StdJBAUserName[kJBAUserNameSize];
extern char StdDocumentName[kDocumentNameSize];
extern char PTStdDocumentName[kDocumentNameSize];

extern char StdNUpInfo[kLayoutTextSize];
extern char StdLayoutInfo[kLayoutTextSize];
extern char StdLayoutDirectionInfo[kLayoutTextSize];
extern char StdLayoutRowInfo[kLayoutTextSize];
extern char StdLayoutColumnInfo[kLayoutTextSize];
extern char StdPaperInfoRectOriginXKey[kLayoutTextSize];
extern char StdPaperInfoRectOriginYKey[kLayoutTextSize];
extern char StdPaperInfoRectHeightKey[kLayoutTextSize];
extern char StdPaperInfoRectWidthKey[kLayoutTextSize];
extern char StdAdobePaperInfoRectOriginXKey[kLayoutTextSize];
extern char StdAdobePaperInfoRectOriginYKey[kLayoutTextSize];
extern char StdAdobePaperInfoRectHeightKey[kLayoutTextSize];
extern char StdAdobePaperInfoRectWidthKey[kLayoutTextSize];

extern char HostNameStr[kHostNameSize];
extern char IPAddressStr[kIPAddressSize];

// What a user whose name is rejected is called.
extern const char defaultUserName[12];

// Set by the signal handlers: the job was cancelled, and the output pipe broke.
extern volatile sig_atomic_t CancelJob;
extern volatile sig_atomic_t CancelJobForPipe;

// Empties every buffer above and takes the cancellation back.
void ClearJobState();

// Pages on one sheet by the layout buffers, rows times columns; a text that is not a number counts as 0.
int64_t LayoutCount();
