#pragma once

#include <QStringList>

/// The words of the column `estatus`.
namespace status {

inline constexpr QStringView pending = u"Pendente";
inline constexpr QStringView settled = u"Concluído";

/// The words as a status box offers them.
inline QStringList words()
{
    return {pending.toString(), settled.toString()};
}

} // namespace status
