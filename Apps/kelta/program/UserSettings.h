#pragma once

#include <QString>

namespace desktop {

/// Chooses the place of the settings of a program with a user, before they are first read. Returns a warning for the
/// user if the settings cannot be stored or are damaged; an empty text otherwise. Settings that cannot be stored are
/// stored nowhere.
QString chooseUserSettings();

/// Chooses the place of the settings of a program without a user, which must not change the user's settings. If `folder`
/// is empty, the settings are stored nowhere.
void chooseOwnSettings(const QString& folder);

} // namespace desktop
