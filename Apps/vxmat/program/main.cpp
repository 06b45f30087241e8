#include "program/CommandLine.h"

int main(int argc, char** argv)
{
    return commandline::run(argc, argv);
}
