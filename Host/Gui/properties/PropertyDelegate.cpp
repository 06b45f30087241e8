#include "properties/PropertyDelegate.h"

#include "Obj/Project.h"
#include "Obj/Property.h"
#include "Obj/PropertyReference.h"
#include "properties/ColorChoice.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleValidator>
#include <QLineEdit>

#include <utility>

namespace Gui {

namespace {

QString shownWord(const std::string& word)
{
    return QCoreApplication::translate("Property", word.c_str());
}

QString labelOf(const Obj::ProjectObject& object)
{
    return QString::fromStdString(object.label.getValue());
}

QString shownReference(const Obj::PropertyReference& property)
{
    const Obj::ProjectObject* const object = property.getValue();
    return object != nullptr ? labelOf(*object) : PropertyDelegate::tr("None");
}

/// Returns the objects to which a reference can refer: all objects of the project except the owner of the property.
std::vector<const Obj::ProjectObject*> targetsOf(const Obj::PropertyReference& property)
{
    const auto* const owner = dynamic_cast<const Obj::ProjectObject*>(property.getOwner());
    const auto* const project =
        owner != nullptr ? owner->get_project() : dynamic_cast<const Obj::Project*>(property.getOwner());
    std::vector<const Obj::ProjectObject*> targets;
    if (project != nullptr)
        for (const Obj::ProjectObject* const object : project->getObjects())
            if (object != owner)
                targets.push_back(object);
    return targets;
}

/// A line edit that accepts only real numbers, with a decimal point in every locale.
QLineEdit* makeNumberLine(QWidget* parent)
{
    auto* const line = new QLineEdit(parent);
    auto* const validator = new QDoubleValidator(line);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    line->setValidator(validator);
    return line;
}

} // namespace

PropertyDelegate::PropertyDelegate(PropertyAt propertyAt, QObject* parent)
    : QStyledItemDelegate(parent), m_propertyAt(std::move(propertyAt))
{}

PropertyDelegate::~PropertyDelegate() = default;

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const Obj::Property* const property = m_propertyAt(index);
    if (property == nullptr)
        return nullptr;
    if (const auto* const choice = dynamic_cast<const Obj::PropertyChoice*>(property))
        return makeChoice(parent, *choice);
    if (const auto* const reference = dynamic_cast<const Obj::PropertyReference*>(property))
        return makeReference(parent, *reference);
    if (dynamic_cast<const Obj::PropertyReal*>(property) != nullptr)
        return makeNumberLine(parent);
    return new QLineEdit(parent);
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString value = index.data(valueRole).toString();
    if (auto* const list = qobject_cast<QComboBox*>(editor))
        list->setCurrentIndex(list->findData(value));
    else if (auto* const line = qobject_cast<QLineEdit*>(editor))
        line->setText(value);
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const list = qobject_cast<const QComboBox*>(editor))
        model->setData(index, list->currentData(), valueRole);
    else if (const auto* const line = qobject_cast<const QLineEdit*>(editor))
        model->setData(index, line->text(), valueRole);
}

QString PropertyDelegate::shownText(const Obj::Property& property)
{
    if (const auto* const choice = dynamic_cast<const Obj::PropertyChoice*>(&property))
        return shownWord(choice->getWord());
    if (const auto* const reference = dynamic_cast<const Obj::PropertyReference*>(&property))
        return shownReference(*reference);
    if (const auto* const color = dynamic_cast<const Obj::PropertyColor*>(&property))
        return toQColor(*color).name();
    return QString::fromStdString(property.toText());
}

/// A list that applies a choice at once.
QComboBox* PropertyDelegate::makeList(QWidget* parent) const
{
    auto* const list = new QComboBox(parent);
    auto* const self = const_cast<PropertyDelegate*>(this);
    connect(list, QOverload<int>::of(&QComboBox::activated), self, [self, list] {
        Q_EMIT self->commitData(list);
        Q_EMIT self->closeEditor(list);
    });
    return list;
}

QComboBox* PropertyDelegate::makeChoice(QWidget* parent, const Obj::PropertyChoice& property) const
{
    QComboBox* const list = makeList(parent);
    for (const std::string& word : property.getWords())
        list->addItem(shownWord(word), QString::fromStdString(word));
    return list;
}

QComboBox* PropertyDelegate::makeReference(QWidget* parent, const Obj::PropertyReference& property) const
{
    QComboBox* const list = makeList(parent);
    list->addItem(tr("None"), QString());
    for (const Obj::ProjectObject* const object : targetsOf(property))
        list->addItem(labelOf(*object), QString::fromUtf8(object->get_name_in_project()));
    return list;
}

} // namespace Gui
