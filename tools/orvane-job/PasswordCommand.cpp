// password: the stored form of a password, which a ticket carries.
#include "Commands.h"

#include "PasswordTicket.h"
#include "Platform.h"

#include <cstdio>
#include <string>

int PasswordCommand(int argc, char **)
{
    if (argc > 1)
        return kWrongUsage;
    setvbuf(stdin, nullptr, _IONBF, 0);          // no second place that holds the password
    char password[kStoredPasswordMaxLength + 2]; // with a line end, and one byte of what is too long
    size_t length = fread(password, 1, sizeof password, stdin);
    if (length > 0 && password[length - 1] == '\n')
        length--;
    const std::string value = StorePassword({password, length});
    PlatformWipe(password, sizeof password);
    if (value.empty()) {
        fprintf(stderr, "orvane-job: %s\n",
                length == 0 ? "no password" : "no ticket value can carry this password; choose a shorter one");
        return kTrouble;
    }
    if (puts(value.c_str()) < 0 || fflush(stdout) != 0) {
        fprintf(stderr, "orvane-job: cannot write the ticket value\n");
        return kTrouble;
    }
    return kFine;
}
