#include "Kelta/FileWriter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <utility>

namespace Kelta {

FileWriter::FileWriter(QString path) : m_path(std::move(path)), m_xml(&m_document)
{
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
}

FileWriter::~FileWriter() = default;

bool FileWriter::commit()
{
    m_xml.writeEndDocument();
    m_reason = m_xml.hasError() ? QCoreApplication::translate("Kelta", "a text has a character that XML cannot hold")
                                : write();
    return m_reason.isEmpty();
}

/// Returns the reason if the file cannot be written; empty if it was written.
QString FileWriter::write() const
{
    // A device or a pipe would be replaced by a file of the same name.
    const QFileInfo target(m_path);
    if (target.exists() && !target.isFile())
        return QCoreApplication::translate("Kelta", "this is not a file");
    QSaveFile file(m_path);
    errno = 0;
    // flush detects a full disk; commit alone does not, and the file then reports no reason.
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(m_document) == m_document.size() && file.flush() && file.commit();
    if (written)
        return {};
    return errno != 0 ? qt_error_string(errno) : file.errorString();
}

QString FileWriter::errorText() const
{
    return QStringLiteral("%1: %2").arg(m_path, m_reason);
}

} // namespace Kelta
