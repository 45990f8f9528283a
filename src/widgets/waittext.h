#pragma once

#include <QString>

/// What the wait screen says while a list fills.
inline QString listWaitText()
{
    return QStringLiteral(
        "Por favor aguarde enquanto o software carrega os dados, este processo pode demorar dependendo "
        "do tamanho do banco de dados.");
}
