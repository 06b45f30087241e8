#pragma once

#include "Kelta/KeltaExport.h"

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

namespace Kelta {

/// An XML file that is being read. The hooks `Load` of a project and `load` of an object take it. The host itself keeps
/// projects in JSON files and reads nothing here.
class KELTA_EXPORT XMLFileReader
{
public:
    explicit XMLFileReader(const QString& path);
    XMLFileReader(const XMLFileReader&) = delete;
    XMLFileReader& operator=(const XMLFileReader&) = delete;
    ~XMLFileReader();

    /// Reads the elements of the document; it has an error if the file cannot be opened.
    QXmlStreamReader& xml() { return m_xml; }

    /// Returns the error of the file: "PATH:LINE: reason", without the line if the file cannot be opened; empty if the
    /// part that has been read is correct.
    QString errorText() const;

private:
    QFile m_file;
    QXmlStreamReader m_xml;
};

} // namespace Kelta
