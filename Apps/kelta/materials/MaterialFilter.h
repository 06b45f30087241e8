#pragma once

#include "Gui/TreeFilter.h"
#include "vxUnits/Filter.h"

#include <boost/signals2/connection.hpp>

#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

namespace Gui {
class Contributions;
} // namespace Gui

namespace Obj {
class Project;
} // namespace Obj

namespace desktop {

/// The filter of the project explorer: finds materials by their labels and values, as vxUnits/Filter.h describes, and other
/// objects by their labels. Takes the names of quantities in English and in the user's language. Numbers without a unit are in
/// SI. Reads the values of a material once until it changes.
class MaterialFilter : public Gui::TreeFilter
{
public:
    MaterialFilter();
    ~MaterialFilter() override;

    std::optional<Gui::FilterFault> setExpression(const QString& text) override;
    QString remark() const override;
    bool matches(const Obj::ProjectObject& object) override;
    std::vector<Gui::FilterCompletion> completionsFor(const QString& text, int cursor) const override;
    QString hint() const override;
    QString explanation() const override;

private:
    void watch(Obj::Project& project);
    vxUnits::FilterSubject& subjectOf(const Obj::ProjectObject& object);

    vxUnits::Filter m_filter;
    std::optional<vxUnits::Message> m_remark;
    std::unordered_map<const Obj::ProjectObject*, vxUnits::FilterSubject> m_subjects;
    std::map<const Obj::Project*, std::vector<boost::signals2::scoped_connection>> m_projectConnections;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

/// Gives the field above the project explorer the filter of materials.
void registerMaterialFilter(Gui::Contributions& contributions);

} // namespace desktop
