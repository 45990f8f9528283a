#pragma once

#include <QStringList>

#include <string_view>

/// The words of the column `estatus`.
namespace status {

inline constexpr QStringView pending = u"Pendente";
/// The same as the store has it.
inline constexpr std::string_view pendingUtf8 = "Pendente";
inline constexpr QStringView settled = u"Concluído";
inline constexpr std::string_view settledUtf8 = "Concluído";

/// The words as a status box offers them.
inline QStringList words()
{
    return {pending.toString(), settled.toString()};
}

} // namespace status
