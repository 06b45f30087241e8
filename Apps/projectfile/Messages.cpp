#include "Messages.h"

#include "vxMaterial/json/JsonWriter.h"
#include "vxMaterial/json/Utf8.h"

#include <QCoreApplication>

#include <utility>

namespace projectfile {

ContentError::ContentError(const std::string& message, int line, int column)
    : std::runtime_error(message), m_line(line), m_column(column)
{}

ContentError::ContentError(const std::string& message, std::string member)
    : std::runtime_error(message), m_member(std::move(member))
{}

ContentError::~ContentError() = default;

namespace detail {

namespace {

QString reasonOf(const vxjson::JsonError& error)
{
    return QCoreApplication::translate("vxjson::JsonError", error.reason)
        .replace(QLatin1String("%1"), toQString(error.shown));
}

} // namespace

QString tr(const char* text)
{
    return QCoreApplication::translate("projectfile::ProjectFile", text);
}

QString quoted(std::string_view utf8)
{
    vxjson::JsonWriter writer;
    writer.text(vxjson::shortened(utf8));
    return toQString(writer.take());
}

QString shown(const vxjson::JsonNode& value)
{
    if (value.isObject())
        return tr("an object");
    if (value.isArray())
        return tr("an array");
    vxjson::JsonWriter writer;
    writer.any(value.toJsonValue());
    return toQString(vxjson::shortened(writer.take()));
}

void refuseText(const vxjson::JsonError& error)
{
    if (error.line == 0)
        throw ContentError(reasonOf(error).toStdString());
    throw ContentError(tr("line %1, column %2: %3")
                           .arg(QString::number(error.line), QString::number(error.column), reasonOf(error))
                           .toStdString(),
                       error.line, error.column);
}

void refuseValue(const vxjson::JsonError& fault)
{
    throw ContentError(reasonOf(fault).toStdString(), fault.shown);
}

} // namespace detail

} // namespace projectfile
