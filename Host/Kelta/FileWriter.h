#pragma once

#include "Kelta/KeltaExport.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamWriter>

namespace Kelta {

/// An XML file that is being written. The hooks `Save` of a project and `save` of an object take it. The host itself
/// keeps projects in JSON files and writes nothing here.
///
/// The document is built in memory. Only commit changes the file, and replaces it as a whole.
class KELTA_EXPORT FileWriter
{
public:
    explicit FileWriter(QString path);
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    ~FileWriter();

    /// Writes the elements of the document.
    QXmlStreamWriter& xml() { return m_xml; }

    /// Ends the open elements and writes the file. Returns false, with the reason in errorText, if a text has a
    /// character that XML does not allow, or if the file cannot be written; an earlier file is then kept.
    [[nodiscard]] bool commit();
    /// Returns the reason why commit failed: "PATH: reason".
    QString errorText() const;

private:
    QString write() const;

    QString m_path;
    QByteArray m_document;
    QXmlStreamWriter m_xml;
    QString m_reason;
};

} // namespace Kelta
