#include "MaterialFilter.h"

#include "Gui/Contributions.h"
#include "Obj/Application.h"
#include "vxInspector/units/UnitTexts.h"
#include "vxMaterial/model/PropertyCatalogue.h"
#include "vxMaterial/project/MaterialObject.h"
#include "vxUnits/FilterCompletion.h"

#include <QCoreApplication>

namespace desktop {

namespace {

/// Returns the number of characters in the first bytes of a UTF-8 text.
int characters(const QByteArray& utf8, std::size_t bytes)
{
    return QString::fromUtf8(utf8.left(static_cast<int>(bytes))).size();
}

/// Returns the names of quantities that the user sees. Looked up for each text, because the language can change.
vxUnits::FilterNames translatedNames()
{
    vxUnits::FilterNames names;
    const auto add = [&names](const vxUnits::FilterQuantity& quantity, const QString& name) {
        if (name != QLatin1String(quantity.name()))
            names.push_back({quantity, name.toStdString()});
    };
    for (const vxMat::PropertyRecord& record : vxMat::propertyRecords())
        add({record.id, nullptr}, QCoreApplication::translate("vxMat::PropertyName", record.name));
    for (const vxUnits::DerivedQuantity& derived : vxUnits::derivedQuantities())
        add({0, &derived}, vxInspector::translatedWord(derived.name));
    return names;
}

std::string_view viewOf(const QByteArray& utf8)
{
    return {utf8.constData(), static_cast<std::size_t>(utf8.size())};
}

} // namespace

MaterialFilter::MaterialFilter()
{
    Obj::Application& projects = Obj::Application::instance();
    for (Obj::Project* const project : Obj::Application::get_projects())
        watch(*project);
    m_connections.emplace_back(projects.projectAdded.connect([this](Obj::Project& project) { watch(project); }));
    m_connections.emplace_back(projects.projectRemoved.connect([this](const Obj::Project& project) {
        m_projectConnections.erase(&project);
        m_subjects.clear();
    }));
}

MaterialFilter::~MaterialFilter() = default;

std::optional<Gui::FilterFault> MaterialFilter::setExpression(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    vxUnits::FilterReading reading = vxUnits::readFilter(viewOf(utf8), {}, translatedNames());
    if (!reading) {
        const int begin = characters(utf8, reading.position);
        const int end = characters(utf8, reading.position + reading.length);
        return Gui::FilterFault{vxInspector::translated(reading.failure), begin, end - begin};
    }
    m_filter = *std::move(reading.filter);
    m_remark = std::move(reading.remark);
    if (m_filter.isEmpty())
        m_subjects.clear();
    return std::nullopt;
}

QString MaterialFilter::remark() const
{
    return m_remark ? vxInspector::translated(*m_remark) : QString();
}

bool MaterialFilter::matches(const Obj::ProjectObject& object)
{
    return m_filter.matches(subjectOf(object));
}

std::vector<Gui::FilterCompletion> MaterialFilter::completionsFor(const QString& text, int cursor) const
{
    const QByteArray utf8 = text.left(cursor).toUtf8();
    std::vector<Gui::FilterCompletion> completions;
    for (const vxUnits::Completion& one : vxUnits::completionsFor(viewOf(utf8), viewOf(utf8).size(), translatedNames()))
    {
        const int begin = characters(utf8, one.begin);
        const bool isValue = one.kind == vxUnits::CompletionKind::Unit || one.kind == vxUnits::CompletionKind::Word;
        using Next = Gui::FilterCompletion::Next;
        completions.push_back({begin, cursor - begin, QString::fromStdString(one.text),
                               QString::fromStdString(one.meaning), isValue ? Next::End : Next::Word});
    }
    return completions;
}

QString MaterialFilter::hint() const
{
    return QCoreApplication::translate("MaterialFilter", "Filter: label, or E > 100 GPa");
}

QString MaterialFilter::explanation() const
{
    return QCoreApplication::translate(
        "MaterialFilter", "Shows only materials whose labels have these words, or whose values satisfy conditions:\n"
                          "E > 100 GPa and rho < 3 g/cm3\n"
                          "steel and not has Creep\n"
                          "nu 0.25..0.35 or Yield type = Mises\n"
                          "Numbers without a unit are in SI.");
}

void MaterialFilter::watch(Obj::Project& project)
{
    auto& connections = m_projectConnections[&project];
    connections.clear();
    connections.emplace_back(project.objectChanged.connect(
        [this](const Obj::ProjectObject& object, const Obj::Property*) { m_subjects.erase(&object); }));
    connections.emplace_back(
        project.objectRemoved.connect([this](const Obj::ProjectObject& object) { m_subjects.erase(&object); }));
}

vxUnits::FilterSubject& MaterialFilter::subjectOf(const Obj::ProjectObject& object)
{
    auto found = m_subjects.find(&object);
    if (found == m_subjects.end())
        found = m_subjects.emplace(&object, vxUnits::FilterSubject(object.label.getValue())).first;
    vxUnits::FilterSubject& subject = found->second;
    if (m_filter.looksAtValues() && !subject.hasValues())
        if (const auto* const material = dynamic_cast<const Mat::MaterialObject*>(&object))
            subject.setValues(vxUnits::MaterialValues(*material->getCMaterial()));
    return subject;
}

void registerMaterialFilter(Gui::Contributions& contributions)
{
    contributions.setTreeFilter(std::make_unique<MaterialFilter>());
}

} // namespace desktop
