#include "QuantitiesDocument.h"

#include <fstream>

/// Writes docs/quantities.md, whose path is the argument.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::ofstream file(argv[1], std::ios::binary);
    file << vxtest::quantitiesDocument();
    return file.flush() ? 0 : 1;
}
