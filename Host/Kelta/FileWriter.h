#pragma once

#include "Kelta/KeltaExport.h"

#include <QSaveFile>
#include <QString>
#include <QXmlStreamWriter>

namespace Kelta {

/// The host's XML file while it is written. The file changes only at commit, and whole; a writer that is destroyed
/// before leaves an earlier file as it was. Once something failed, nothing more is written, and commit says so: the
/// place is no file and cannot become one, the disk is full, a text has a control character.
class KELTA_EXPORT FileWriter
{
public:
    explicit FileWriter(const QString& path);
    FileWriter(const FileWriter&) = delete;
    FileWriter& operator=(const FileWriter&) = delete;
    ~FileWriter();

    void beginElement(const QString& name);
    void writeAttribute(const QString& name, const QString& value);
    void endElement();

    /// Ends the document, with the elements that are open, and puts it in its place; false when that cannot be done. The
    /// writer is then done with, and a second commit answers false.
    [[nodiscard]] bool commit();
    /// Why commit failed, with the path.
    QString errorText() const;

private:
    void beginDocument();
    void fail(const QString& reason);

    QSaveFile m_file;
    QXmlStreamWriter m_xml;
    QString m_reason;
};

} // namespace Kelta
