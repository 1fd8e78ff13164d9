#include "JobState.h"

#include <algorithm>
#include <cstdlib>
#include <span>

char StdUserName[kUserNameSize];
char StdJBAUserName[kJBAUserNameSize];
char StdDocumentName[kDocumentNameSize];
char PTStdDocumentName[kDocumentNameSize];

char StdNUpInfo[kLayoutTextSize];
char StdLayoutInfo[kLayoutTextSize];
char StdLayoutDirectionInfo[kLayoutTextSize];
char StdLayoutRowInfo[kLayoutTextSize];
char StdLayoutColumnInfo[kLayoutTextSize];
char StdPaperInfoRectOriginXKey[kLayoutTextSize];
char StdPaperInfoRectOriginYKey[kLayoutTextSize];
char StdPaperInfoRectHeightKey[kLayoutTextSize];
char StdPaperInfoRectWidthKey[kLayoutTextSize];
char StdAdobePaperInfoRectOriginXKey[kLayoutTextSize];
char StdAdobePaperInfoRectOriginYKey[kLayoutTextSize];
char StdAdobePaperInfoRectHeightKey[kLayoutTextSize];
char StdAdobePaperInfoRectWidthKey[kLayoutTextSize];

char HostNameStr[kHostNameSize];
char IPAddressStr[kIPAddressSize];

const char defaultUserName[12] = "UnknownUser";

volatile sig_atomic_t CancelJob = 0;
volatile sig_atomic_t CancelJobForPipe = 0;

static const std::span<char> jobBuffers[] = {
    StdUserName,
    StdJBAUserName,
    StdDocumentName,
    PTStdDocumentName,
    StdNUpInfo,
    StdLayoutInfo,
    StdLayoutDirectionInfo,
    StdLayoutRowInfo,
    StdLayoutColumnInfo,
    StdPaperInfoRectOriginXKey,
    StdPaperInfoRectOriginYKey,
    StdPaperInfoRectHeightKey,
    StdPaperInfoRectWidthKey,
    StdAdobePaperInfoRectOriginXKey,
    StdAdobePaperInfoRectOriginYKey,
    StdAdobePaperInfoRectHeightKey,
    StdAdobePaperInfoRectWidthKey,
    HostNameStr,
    IPAddressStr,
};

void ClearJobState()
{
    for (std::span<char> buffer : jobBuffers)
        std::ranges::fill(buffer, '\0');
    CancelJob = 0;
    CancelJobForPipe = 0;
}

int64_t LayoutCount()
{
    return int64_t{atoi(StdLayoutRowInfo)} * atoi(StdLayoutColumnInfo);
}
