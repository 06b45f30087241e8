#include "Kelta/XMLFileReader.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Kelta {

XMLFileReader::XMLFileReader(const QString& path) : m_file(path)
{
    const QFileInfo source(path);
    // Opening a pipe would block until its writer opens it.
    if (source.exists() && !source.isFile())
        m_xml.raiseError(QCoreApplication::translate("Kelta", "this is not a file"));
    else if (m_file.open(QIODevice::ReadOnly))
        m_xml.setDevice(&m_file);
    else
        m_xml.raiseError(m_file.errorString());
}

XMLFileReader::~XMLFileReader() = default;

QString XMLFileReader::errorText() const
{
    if (!m_xml.hasError())
        return {};
    if (!m_file.isOpen())
        return QStringLiteral("%1: %2").arg(m_file.fileName(), m_xml.errorString());
    return QStringLiteral("%1:%2: %3").arg(m_file.fileName(), QString::number(m_xml.lineNumber()), m_xml.errorString());
}

} // namespace Kelta
