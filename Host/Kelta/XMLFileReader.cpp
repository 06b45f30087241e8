#include "Kelta/XMLFileReader.h"

#include <algorithm>

namespace Kelta {

XMLFileReader::XMLFileReader(const QString& path) : m_file(path)
{
    if (m_file.open(QIODevice::ReadOnly))
        m_xml.setDevice(&m_file);
    else
        m_xml.raiseError(m_file.errorString());
}

XMLFileReader::~XMLFileReader() = default;

bool XMLFileReader::nextElement(const QString& name)
{
    while (readStartElement()) {
        if (m_xml.name() == name) {
            m_attributes = m_xml.attributes();
            ++m_depth;
            return true;
        }
        m_xml.skipCurrentElement();
    }
    // Around the root there is no element to be left.
    m_depth = std::max(0, m_depth - 1);
    return false;
}

bool XMLFileReader::readStartElement()
{
    // The library's own operation takes the end of the document for an error.
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement)
            return token == QXmlStreamReader::StartElement;
    }
    return false;
}

void XMLFileReader::leaveElement()
{
    if (!m_xml.atEnd())
        m_xml.skipCurrentElement();
    m_depth = std::max(0, m_depth - 1);
}

void XMLFileReader::leaveTo(int depth)
{
    while (m_depth > depth)
        leaveElement();
}

QString XMLFileReader::attribute(const QString& name) const
{
    return m_attributes.value(name).toString();
}

bool XMLFileReader::failed() const
{
    return m_xml.hasError();
}

QString XMLFileReader::errorText() const
{
    if (!m_file.isOpen())
        return QStringLiteral("%1: %2").arg(m_file.fileName(), m_xml.errorString());
    return QStringLiteral("%1:%2: %3").arg(m_file.fileName(), QString::number(m_xml.lineNumber()), m_xml.errorString());
}

} // namespace Kelta
