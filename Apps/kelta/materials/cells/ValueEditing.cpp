#include "ValueEditing.h"

#include "ValueHint.h"

#include "vxMaterial/gui/SheetTableView.h"

#include <QEvent>
#include <QLineEdit>

namespace desktop {

ValueEditing::ValueEditing(QLineEdit& editor, const QModelIndex& cell)
    : QObject(&editor), m_editor(editor), m_cell(cell), m_hint(new ValueHint(editor))
{
    editor.setAccessibleName(cell.sibling(cell.row(), MatGui::SheetTableView::Name).data().toString());
    editor.installEventFilter(this);
    connect(&editor, &QLineEdit::textChanged, this, &ValueEditing::read);
    read();
}

ValueEditing::~ValueEditing()
{
    delete m_hint;
}

ValueEditing* ValueEditing::of(const QObject& editor)
{
    return editor.findChild<ValueEditing*>(QString(), Qt::FindDirectChildrenOnly);
}

void ValueEditing::read()
{
    m_reading = readCell(m_cell, m_editor.text()).value_or(CellReading());
    m_editor.setAccessibleDescription(m_reading.remark);
    if (m_hint != nullptr)
        m_hint->say(m_reading.remark,
                    m_reading.isRead || m_reading.isBlank ? ValueHint::Tone::Neutral : ValueHint::Tone::Refused);
}

void ValueEditing::insist()
{
    if (m_hint != nullptr)
        m_hint->say(m_reading.remark, ValueHint::Tone::Insisting);
}

bool ValueEditing::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        if (m_hint != nullptr)
            m_hint->follow();
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

} // namespace desktop
