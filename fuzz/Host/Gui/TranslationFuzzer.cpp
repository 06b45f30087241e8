#include "Fuzzing.h"

#include "Gui/Translator.h"
#include "Kelta/MessageLog.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    vxfuzz::useNoDisplay();
    vxfuzz::enterOwnFolder();
    static int count = 1;
    static char name[] = "fuzzer";
    static char* arguments[] = {name, nullptr};
    new QCoreApplication(count, arguments); // lives as long as the process
    Gui::Translator::instance()->addFolder(QStringLiteral("."));
    return 0;
}

/// A translation file with any content is used or reported. Texts can be looked up in either case.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    vxfuzz::writeFile(QStringLiteral("texts_xx.qm"), vxfuzz::textOf(data, size));
    Gui::Translator::instance()->setLanguage(QStringLiteral("xx"));
    for (const int count : {-1, 0, 1, 2, 5})
        QCoreApplication::translate("desktop::ProjectFiles", "%n link(s) of \"%1\" cannot be made.", nullptr, count);
    QCoreApplication::translate("Gui::MainWindow", "&File");
    QCoreApplication::translate("MatGui", "Plasticity", "Plasticity");
    QCoreApplication::translate("", "");
    Gui::Translator::instance()->clear();
    Kelta::MessageLog::instance().clear();
    return 0;
}
