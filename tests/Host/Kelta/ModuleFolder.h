#pragma once

#include "HostTesting.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vxtest {

/// A folder of modules that a test makes from the fixture libraries.
class ModuleFolder
{
public:
    QString path() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a descriptor unchanged.
    void addDescriptor(const QString& module, const QByteArray& text) const
    {
        writeFile(path(module + QStringLiteral(".module.json")), text.constData());
    }

    /// Copies a fixture library under the default library name of a module.
    void addLibrary(const QString& module, const QString& fixture) const
    {
        const QString library = QStringLiteral(VX_PLUGIN_FOLDER "/lib%1.so").arg(fixture);
        EXPECT_TRUE(QFile::copy(library, path(QStringLiteral("lib%1.so").arg(module)))) << library.toStdString();
    }

    /// Adds a module of version 1.0; `members` are further members of its descriptor.
    void add(const QString& module, const QString& fixture, const QByteArray& entries,
             const QByteArray& members = {}) const
    {
        addDescriptor(module, R"({"module": ")" + module.toUtf8() + R"(", "version": "1.0", "entries": )" + entries +
                                  members + "}");
        addLibrary(module, fixture);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace vxtest
