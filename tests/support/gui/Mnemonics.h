#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QStringList>

#include <map>

namespace vxtest {

/// Returns the mnemonic letter of a text; a null character if there is none.
inline QChar mnemonicOf(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i)
        if (text[i] == QLatin1Char('&')) {
            if (text[i + 1] != QLatin1Char('&'))
                return text[i + 1].toUpper();
            ++i;
        }
    return {};
}

/// Returns the pairs of entries of a menu bar, and of each of its menus, that have the same mnemonic.
inline QStringList mnemonicClashes(const QMenuBar& bar)
{
    QStringList clashes;
    const auto look = [&clashes](const QList<QAction*>& actions) {
        std::map<QChar, QString> users;
        for (const QAction* const action : actions) {
            const QChar letter = mnemonicOf(action->text());
            if (letter.isNull())
                continue;
            const auto [user, isFirst] = users.emplace(letter, action->text());
            if (!isFirst)
                clashes << user->second + QStringLiteral(" / ") + action->text();
        }
    };
    look(bar.actions());
    for (const QAction* const action : bar.actions())
        if (action->menu() != nullptr)
            look(action->menu()->actions());
    return clashes;
}

} // namespace vxtest
