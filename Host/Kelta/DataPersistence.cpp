#include "Kelta/DataPersistence.h"

#include "Kelta/FileWriter.h"
#include "Kelta/MessageLog.h"
#include "Kelta/XMLFileReader.h"

namespace Kelta {

namespace {

const QString objectElement = QStringLiteral("object");

/// Reads the file to its end, so that one that is cut off is found before anything is set from it.
QString reasonNotToLoad(const QString& path, const QString& className)
{
    XMLFileReader reader(path);
    const bool hasObject = reader.nextElement(objectElement);
    const QString itsClass = reader.attribute(QStringLiteral("class"));
    reader.leaveTo(0);
    const bool hasFurther = hasObject && reader.nextElement(objectElement);
    if (reader.failed())
        return reader.errorText();
    if (!hasObject || hasFurther)
        return QStringLiteral("%1: this file holds no object of the application").arg(path);
    if (itsClass != className)
        return QStringLiteral("%1: this file holds an object of class \"%2\"; one of \"%3\" is needed")
            .arg(path, itsClass, className);
    return {};
}

} // namespace

KELTA_REGISTER_ABSTRACT_CLASS(Kelta::DataPersistence, Kelta::RootClass)

std::size_t DataPersistence::get_memory_usage() const
{
    return sizeof(*this);
}

void DataPersistence::save(FileWriter&) const {}

void DataPersistence::load(XMLFileReader&) {}

bool DataPersistence::save_to_file(const QString& path) const
{
    FileWriter writer(path);
    writer.beginElement(objectElement);
    writer.writeAttribute(QStringLiteral("class"), QString::fromUtf8(getTypeId().get_name()));
    save(writer);
    writer.endElement();
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
    if (reader.nextElement(objectElement))
        load(reader);
    return true;
}

} // namespace Kelta
