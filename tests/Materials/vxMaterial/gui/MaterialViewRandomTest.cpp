#include "EditorTesting.h"
#include "MessageBoxes.h"

#include "vxMaterial/model/MatDBManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace {

using vxtest::Editor;

/// The expected content of the editor after the actions so far.
struct Notes
{
    std::multiset<int> rows;
    std::set<int> checked;

    void show(const vxMat::MaterialBase& material)
    {
        rows.clear();
        checked.clear();
        for (const auto& [slot, property] : material.properties) {
            rows.insert(property->id);
            checked.insert(slot);
        }
    }
    void toggle(int id)
    {
        if (checked.erase(id) != 0) {
            rows.erase(id);
            return;
        }
        checked.insert(id);
        rows.insert(id);
    }
    void clear()
    {
        rows.clear();
        checked.clear();
    }
};

class RandomUser
{
public:
    explicit RandomUser(unsigned seed) : m_random(seed)
    {
        m_notes.show(m_editor.material());
        for (const auto& [id, property] : m_editor.project().database().propertyCatalogue)
            m_quantities.emplace_back(id, m_editor.item(QString::fromStdString(property->name)));
        for (const auto& [type, material] : m_editor.project().database().materials)
            m_materials.emplace_back(material.get(), m_editor.item(QString::fromStdString(material->name)));
    }

    void act()
    {
        switch (m_random() % 16) {
        case 0: {
            const auto& [material, item] = any(m_materials);
            m_editor.doubleClick(item);
            m_notes.show(*material);
            break;
        }
        case 1: {
            const auto& [material, item] = any(m_materials);
            m_editor.select(item);
            m_editor.click("btnAddMat");
            m_notes.show(*material);
            break;
        }
        case 2:
            if (m_random() % 4 == 0) {
                m_editor.click("btnClear");
                m_notes.clear();
            }
            break;
        case 3:
            apply();
            break;
        case 4:
        case 5:
            edit();
            break;
        case 6:
        case 7:
            toggle(&Editor::doubleClick);
            break;
        case 8:
        case 9:
        case 10:
            toggle(&Editor::tickBySpace);
            break;
        default:
            toggle(&Editor::tickByMouse);
            break;
        }
    }

    void check()
    {
        const std::vector<int> ids = m_editor.rowIds();
        ASSERT_EQ(std::multiset<int>(ids.begin(), ids.end()), m_notes.rows);
        std::set<int> checked;
        for (const auto& [id, item] : m_quantities)
            if (item->checkState() == Qt::Checked)
                checked.insert(id);
        ASSERT_EQ(checked, m_notes.checked);
    }

    int applied = 0;
    int refused = 0;

private:
    template <class List>
    const typename List::value_type& any(const List& list)
    {
        return list[m_random() % list.size()];
    }

    void toggle(void (Editor::*way)(QListWidgetItem*))
    {
        const auto& [id, item] = any(m_quantities);
        (m_editor.*way)(item);
        m_notes.toggle(id);
    }

    void edit()
    {
        if (m_editor.rowCount() == 0)
            return;
        const std::vector<const char*> texts{"0.25", "12", "1e5", "Mises", "0", "1, 2, 3", "stiff", "1e999"};
        const int row = static_cast<int>(m_random() % static_cast<unsigned>(m_editor.rowCount()));
        m_editor.typeValue(m_editor.cell(row, 0).toInt(), any(texts));
    }

    void apply()
    {
        const auto before = vxtest::contents(m_editor.material());
        const vxtest::MessageBoxes boxes;
        m_editor.click("btnApply");
        const auto after = vxtest::contents(m_editor.material());
        if (!boxes.shown().empty()) {
            ASSERT_EQ(boxes.shown().size(), 1U);
            ASSERT_EQ(after, before);
            ++refused;
            return;
        }
        std::set<int> appliedSlots;
        for (const auto& [slot, held] : after)
            appliedSlots.insert(slot);
        ASSERT_EQ(appliedSlots, std::set<int>(m_notes.rows.begin(), m_notes.rows.end()));
        // The editor shows the material: of two rows with one id, one remains.
        m_notes.show(m_editor.material());
        ++applied;
    }

    Editor m_editor;
    Notes m_notes;
    std::mt19937 m_random;
    std::vector<std::pair<int, QListWidgetItem*>> m_quantities;
    std::vector<std::pair<const vxMat::MaterialBase*, QListWidgetItem*>> m_materials;
};

TEST(MaterialViewRandom, StaysConsistentThroughThousandsOfClicks)
{
    RandomUser user(4711);
    for (int action = 0; action < 2500; ++action) {
        SCOPED_TRACE(action);
        user.act();
        user.check();
        if (HasFatalFailure())
            return;
    }
    // Both outcomes must occur often enough.
    EXPECT_GT(user.applied, 10);
    EXPECT_GT(user.refused, 10);
}

} // namespace
