#include "plugin/TabsLibrary.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <dlfcn.h>
#include <stdexcept>

namespace vxInspector {

namespace {

/// Returns the folder of the library that has this function.
QString ownFolder()
{
    static const char place = 0;
    Dl_info info{};
    return dladdr(&place, &info) != 0 ? QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath() : QString();
}

MakeContent* load()
{
    const QString path = ownFolder() + QLatin1Char('/') + QLatin1String(tabsLibrary);
    if (!QFileInfo::exists(path))
        throw std::runtime_error(
            QCoreApplication::translate("vxInspector::TabsLibrary", "the file %1 is missing").arg(path).toStdString());
    QLibrary library(path);
    const QFunctionPointer entry = library.resolve(tabsEntry);
    if (entry == nullptr)
        throw std::runtime_error(library.errorString().toStdString());
    return reinterpret_cast<MakeContent*>(entry);
}

} // namespace

MakeContent& loadedTabs()
{
    static MakeContent* const entry = load();
    return *entry;
}

} // namespace vxInspector
