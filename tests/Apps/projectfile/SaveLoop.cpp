#include "projectfile/ProjectStore.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <exception>
#include <string>

/// Saves the content of two files to a third in turns, until it is killed. It prints a letter after it has begun.
///
///     save_loop TARGET FIRST SECOND
int main(int argc, char** argv)
try {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    const std::string first = projectfile::readFile(arguments[2]);
    const std::string second = projectfile::readFile(arguments[3]);
    std::putchar('b');
    std::fflush(stdout);
    while (true) {
        projectfile::writeFile(arguments[1], first);
        projectfile::writeFile(arguments[1], second);
    }
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
