#include "Kelta/FileWriter.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace Kelta {

namespace {

/// What an XML document cannot hold, not even in an escaped form.
bool hasForbiddenCharacter(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        const bool isControl =
            c < QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n') && c != QLatin1Char('\r');
        return isControl || c == QChar(0xFFFE) || c == QChar(0xFFFF);
    });
}

} // namespace

FileWriter::FileWriter(const QString& path) : m_file(path)
{
    const QFileInfo target(path);
    // A device or a pipe would be replaced by a file of its name.
    if (target.exists() && !target.isFile())
        fail(QStringLiteral("this is not a file"));
    else if (!m_file.open(QIODevice::WriteOnly))
        fail(m_file.errorString());
    else
        beginDocument();
}

FileWriter::~FileWriter() = default;

void FileWriter::beginElement(const QString& name)
{
    if (m_xml.device() != nullptr)
        m_xml.writeStartElement(name);
}

void FileWriter::writeAttribute(const QString& name, const QString& value)
{
    if (m_xml.device() == nullptr)
        return;
    if (hasForbiddenCharacter(value))
        return fail(
            QStringLiteral("the value of \"%1\" has a control character, which no XML file can hold").arg(name));
    m_xml.writeAttribute(name, value);
}

void FileWriter::endElement()
{
    if (m_xml.device() != nullptr)
        m_xml.writeEndElement();
}

bool FileWriter::commit()
{
    if (m_xml.device() == nullptr)
        return false;
    m_xml.writeEndDocument();
    // A write that falls short is only found by flushing; commit alone would miss it.
    errno = 0;
    const bool written = !m_xml.hasError() && m_file.flush() && m_file.commit();
    // Of a flush that fails the file itself does not say why.
    if (!written)
        fail(errno != 0 ? qt_error_string(errno) : m_file.errorString());
    m_xml.setDevice(nullptr);
    return written;
}

void FileWriter::beginDocument()
{
    m_xml.setDevice(&m_file);
    m_xml.setAutoFormatting(true);
    m_xml.writeStartDocument();
}

void FileWriter::fail(const QString& reason)
{
    m_reason = reason;
    m_xml.setDevice(nullptr);
}

QString FileWriter::errorText() const
{
    return QStringLiteral("%1: %2").arg(m_file.fileName(), m_reason);
}

} // namespace Kelta
