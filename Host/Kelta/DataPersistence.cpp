#include "Kelta/DataPersistence.h"

#include "Kelta/FileWriter.h"
#include "Kelta/MessageLog.h"
#include "Kelta/XMLFileReader.h"

#include <QCoreApplication>

#include <algorithm>

namespace Kelta {

namespace {

const QString objectElement = QStringLiteral("object");
const QString classAttribute = QStringLiteral("class");

QString tr(const char* text)
{
    return QCoreApplication::translate("Kelta::DataPersistence", text);
}

/// Reads the file to its end, so that a truncated file is detected before it sets anything.
QString reasonNotToLoad(const QString& path, const QString& className)
{
    XMLFileReader reader(path);
    QXmlStreamReader& xml = reader.xml();
    const bool hasObject = xml.readNextStartElement() && xml.name() == objectElement;
    const QString foundClass = xml.attributes().value(classAttribute).toString();
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        return reader.errorText();
    if (!hasObject)
        return tr("%1: this file does not hold an object of the application").arg(path);
    if (foundClass != className)
        return tr(R"(%1: this file holds an object of class "%2"; one of "%3" is needed)")
            .arg(path, foundClass, className);
    return {};
}

} // namespace

KELTA_REGISTER_ABSTRACT_CLASS(Kelta::DataPersistence, Kelta::RootClass)

std::size_t DataPersistence::get_memory_usage() const
{
    return std::max(sizeof(*this), getTypeId().getObjectSize());
}

void DataPersistence::save(FileWriter&) const {}

void DataPersistence::load(XMLFileReader&) {}

bool DataPersistence::save_to_file(const QString& path) const
{
    FileWriter writer(path);
    writer.xml().writeStartElement(objectElement);
    writer.xml().writeAttribute(classAttribute, QString::fromUtf8(getTypeId().get_name()));
    save(writer);
    if (writer.commit())
        return true;
    MessageLog::error(writer.errorText());
    return false;
}

bool DataPersistence::load_from_file(const QString& path)
{
    const QString reason = reasonNotToLoad(path, QString::fromUtf8(getTypeId().get_name()));
    if (!reason.isEmpty()) {
        MessageLog::error(reason);
        return false;
    }
    XMLFileReader reader(path);
    if (reader.xml().readNextStartElement())
        load(reader);
    return true;
}

} // namespace Kelta
