#include "projectfile/ProjectStore.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <string>

namespace {

void saveFrom(const QString& source, const QString& target)
{
    projectfile::writeFile(target, projectfile::readFile(source));
    std::putchar('s');
    std::fflush(stdout);
}

} // namespace

/// Saves the content of SOURCE to TARGET once. With two sources, saves their contents to TARGET alternately until it is
/// killed. Prints a letter after each save.
///
///     save_loop TARGET SOURCE [SOURCE]
int main(int argc, char** argv)
try {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 && arguments.size() != 4)
        return 2;
    do {
        for (int source = 2; source < arguments.size(); ++source)
            saveFrom(arguments[source], arguments[1]);
    } while (arguments.size() == 4);
    return 0;
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
