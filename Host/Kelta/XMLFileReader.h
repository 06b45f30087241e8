#pragma once

#include "Kelta/KeltaExport.h"

#include <QFile>
#include <QString>
#include <QXmlStreamReader>

namespace Kelta {

/// The host's XML file while it is read, element by element.
///
///     while (reader.nextElement("property")) {
///         use(reader.attribute("name"));
///         reader.leaveElement();
///     }
class KELTA_EXPORT XMLFileReader
{
public:
    explicit XMLFileReader(const QString& path);
    XMLFileReader(const XMLFileReader&) = delete;
    XMLFileReader& operator=(const XMLFileReader&) = delete;
    ~XMLFileReader();

    /// Goes into the next element of this name inside the one where the reader stands, passing over others. False when
    /// there is none: the reader has then left the element around them.
    [[nodiscard]] bool nextElement(const QString& name);
    /// Leaves the element that nextElement went into, and all that is in it.
    void leaveElement();
    /// How many elements the reader is in that nextElement went into.
    int depth() const { return m_depth; }
    /// Leaves elements until the reader is in `depth` of them: whoever has others read inside an element is then sure to
    /// stand behind it.
    void leaveTo(int depth);
    /// An attribute of the element that nextElement went into; empty when it has none of this name.
    QString attribute(const QString& name) const;

    bool failed() const;
    /// What is wrong with the file: "PATH:LINE: why", without the line when the file cannot be opened.
    QString errorText() const;

private:
    bool readStartElement();

    QFile m_file;
    QXmlStreamReader m_xml;
    QXmlStreamAttributes m_attributes;
    int m_depth = 0;
};

} // namespace Kelta
