// The least that a job with a password costs: opens the PPD and encrypts once.

#include "PPDLookup.h"
#include "secblobenc.h"

int main()
{
    static const unsigned char password[] = {'s', 'e', 'c', 'r', 'e', 't'};
    unsigned char blob[2000];
    uint32_t length = sizeof blob;
    if (!JobPPD() || Encode_Random(password, sizeof password, blob, &length) != 0)
        return 1;
    CloseJobPPD();
    return 0;
}
