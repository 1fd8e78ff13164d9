// storepassword: reads a password and prints the ticket value that stores it, for tests and support.
// The value is good for a filter built with the same key material.

#include "PasswordTicket.h"
#include "Platform.h"

#include <cstdio>
#include <string>

int main()
{
    setvbuf(stdin, nullptr, _IONBF, 0); // no second place that holds the password
    char password[kStoredPasswordMaxLength + 2]; // with a line end, and one byte of what is too long
    size_t length = fread(password, 1, sizeof password, stdin);
    if (length > 0 && password[length - 1] == '\n')
        length--;
    const std::string value = StorePassword({password, length});
    PlatformWipe(password, sizeof password);
    if (value.empty()) {
        fprintf(stderr, "storepassword: %s\n",
                length == 0 ? "no password" : "no ticket value can carry this password; choose a shorter one");
        return 1;
    }
    if (puts(value.c_str()) < 0 || fflush(stdout) != 0) {
        fprintf(stderr, "storepassword: cannot write the ticket value\n");
        return 1;
    }
    return 0;
}
