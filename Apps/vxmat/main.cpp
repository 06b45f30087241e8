#include "CommandLine.h"

int main(int argc, char** argv)
{
    return vxmat::run(argc, argv);
}
