#pragma once

#include <QString>

/// The value that starts the program with the system. Addressed by the full path of a registry key, it is
/// kept as a desktop entry under $XDG_CONFIG_HOME/autostart.
namespace autostart {

inline constexpr QStringView keyPath =
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION\\RUN";
inline constexpr QStringView valueName = u"Corvel";

/// Writes a text value. An empty one disables the entry, which stays. Returns an empty text, or the message
/// to show: "Incorrect Format:" and the path for a path that names no known root, "Can't Open Key" and its
/// siblings else.
QString writeValue(const QString &fullKeyPath, const QString &name, const QString &data);
/// The text for an error code of the registry; an unknown one gives "Undefined Error Code:  " and the number.
QString errorText(int code);
/// Switches the start with the system on or off: writes the value and the setting `Iniciar`, which is saved
/// even when the value could not be written. Returns writeValue()'s message.
QString setEnabled(bool on);

} // namespace autostart
