#pragma once

#include <QStringView>

/// The words of the column `estatus`.
namespace status {

inline constexpr QStringView pending = u"Pendente";
inline constexpr QStringView settled = u"Concluído";

}
