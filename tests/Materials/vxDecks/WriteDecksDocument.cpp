#include "DecksDocument.h"

#include <fstream>
#include <iterator>

/// Replaces the tables of docs/decks.md, whose path is the argument.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    std::ifstream old(argv[1], std::ios::binary);
    const std::string document{std::istreambuf_iterator<char>(old), std::istreambuf_iterator<char>()};
    if (!old)
        return 1;
    std::ofstream file(argv[1], std::ios::binary);
    file << vxtest::withNewTables(document);
    return file.flush() ? 0 : 1;
}
