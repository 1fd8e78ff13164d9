#include "FilterFrame.h"

int main(int argc, char **argv)
{
    return FilterMain(argc, argv);
}
