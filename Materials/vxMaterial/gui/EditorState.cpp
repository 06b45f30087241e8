#include "EditorState.h"

#include <QUndoCommand>

#include <utility>

namespace MatGui {

namespace {

/// The texts of a row by the members of its record.
constexpr std::pair<const char*, QString SheetRow::*> textMembers[] = {
    {"name", &SheetRow::name}, {"value", &SheetRow::value}, {"description", &SheetRow::description},
    {"key", &SheetRow::key},   {"unit", &SheetRow::unit},
};

/// A step of the undo stack. The editor already shows the later state when the step is pushed.
class EditStep final : public QUndoCommand
{
public:
    EditStep(const QString& text, EditorState before, EditorState after, std::function<void(const EditorState&)> show)
        : QUndoCommand(text), m_before(std::move(before)), m_after(std::move(after)), m_show(std::move(show))
    {}

    const EditorState& after() const { return m_after; }

    void undo() override { m_show(m_before); }
    void redo() override
    {
        if (std::exchange(m_isDone, true))
            m_show(m_after);
    }

private:
    EditorState m_before;
    EditorState m_after;
    std::function<void(const EditorState&)> m_show;
    bool m_isDone = false;
};

Json::Value toJson(const SheetRow& row)
{
    Json::Value record(Json::objectValue);
    record["id"] = row.id;
    for (const auto& [name, text] : textMembers)
        record[name] = (row.*text).toStdString();
    return record;
}

std::optional<SheetRow> toRow(const Json::Value& record)
{
    if (!record.isObject() || !record["id"].isInt())
        return std::nullopt;
    SheetRow row;
    row.id = record["id"].asInt();
    for (const auto& [name, text] : textMembers) {
        if (!record[name].isString())
            return std::nullopt;
        row.*text = QString::fromStdString(record[name].asString());
    }
    return row;
}

} // namespace

Json::Value toJson(const EditorState& state)
{
    Json::Value record(Json::objectValue);
    record["rows"] = Json::arrayValue;
    for (const SheetRow& row : state.rows)
        record["rows"].append(toJson(row));
    record["checked"] = Json::arrayValue;
    for (const int id : state.checked)
        record["checked"].append(id);
    if (!state.picked.isEmpty())
        record["picked"] = state.picked.toStdString();
    return record;
}

std::optional<EditorState> toEditorState(const Json::Value& record)
{
    if (!record.isObject() || !record["rows"].isArray() || !record["checked"].isArray())
        return std::nullopt;
    EditorState state;
    for (const Json::Value& element : record["rows"]) {
        const auto row = toRow(element);
        if (!row)
            return std::nullopt;
        state.rows.push_back(*row);
    }
    for (const Json::Value& id : record["checked"]) {
        if (!id.isInt())
            return std::nullopt;
        state.checked.insert(id.asInt());
    }
    if (record["picked"].isString())
        state.picked = QString::fromStdString(record["picked"].asString());
    return state;
}

Json::Value toJson(const EditorSteps& steps)
{
    Json::Value record(Json::objectValue);
    record["steps"] = Json::arrayValue;
    for (const EditorStep& step : steps.steps) {
        Json::Value element = toJson(step.state);
        element["text"] = step.text.toStdString();
        record["steps"].append(std::move(element));
    }
    record["done"] = steps.done;
    return record;
}

std::optional<EditorSteps> toEditorSteps(const Json::Value& record)
{
    if (!record.isObject() || !record["steps"].isArray() || !record["done"].isInt())
        return std::nullopt;
    EditorSteps steps;
    for (const Json::Value& element : record["steps"]) {
        auto state = toEditorState(element);
        if (!state || !element["text"].isString())
            return std::nullopt;
        steps.steps.push_back({QString::fromStdString(element["text"].asString()), std::move(*state)});
    }
    steps.done = record["done"].asInt();
    const bool isInside = steps.done >= 0 && static_cast<std::size_t>(steps.done) <= steps.steps.size();
    return isInside && !steps.steps.empty() ? std::optional(std::move(steps)) : std::nullopt;
}

EditorHistory::EditorHistory(std::function<void(const EditorState&)> show) : m_show(std::move(show)) {}

void EditorHistory::restart(EditorState state)
{
    m_last = std::move(state);
    m_stack.clear();
}

void EditorHistory::note(EditorState state, const QString& text)
{
    if (state == m_last)
        m_last.picked = std::move(state.picked);
    else
        push(std::move(state), text);
}

EditorSteps EditorHistory::steps() const
{
    EditorSteps all;
    for (int index = 0; index < m_stack.count(); ++index) {
        const auto& step = static_cast<const EditStep&>(*m_stack.command(index));
        all.steps.push_back({step.text(), step.after()});
    }
    all.done = m_stack.index();
    return all;
}

void EditorHistory::add(const EditorSteps& added)
{
    const int before = m_stack.index();
    for (const EditorStep& step : added.steps)
        push(step.state, step.text);
    m_show(m_last);
    m_stack.setIndex(before + added.done);
}

void EditorHistory::push(EditorState state, const QString& text)
{
    const auto show = [this](const EditorState& shown) {
        m_show(shown);
        m_last = shown;
    };
    m_stack.push(new EditStep(text, m_last, state, show));
    m_last = std::move(state);
}

} // namespace MatGui
