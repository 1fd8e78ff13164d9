#include "FilterFrame.h"

#include <cstdio>
#include <unistd.h>

int main(int argc, char **argv)
{
    const int status = FilterMain(argc, argv);
#ifdef __SANITIZE_ADDRESS__
    return status; // what leaked is looked for after main
#else
    // What libraries would tidy up costs a small job a twentieth of its time. A cancelled job's spool file is still
    // open.
    fflush(nullptr);
    _exit(status);
#endif
}
