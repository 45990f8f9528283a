#pragma once

#include "data/error.h"

#include <QString>

#include <functional>

class QWidget;

/// The program's message boxes. All are modal to `parent`; while one is shown, a topmost parent steps back.
namespace messages {

void information(QWidget *parent, const QString &title, const QString &text);
void exclamation(QWidget *parent, const QString &title, const QString &text);
/// `reason`, if any, stands in smaller print below the text.
void critical(QWidget *parent, const QString &title, const QString &text, const QString &reason = {});
/// Yes/No with the question icon; Esc and closing the box are No.
bool question(QWidget *parent, const QString &title, const QString &text);
/// The question asked before rows of a list are deleted.
bool confirmRemoval(QWidget *parent);

inline constexpr QStringView openPrefix = u"Ocorreu o seguinte erro ao tentar abrir o banco de dados: ";
inline constexpr QStringView savePrefix = u"Ocorreu o seguinte erro ao tentar cadastrar os dados: ";
inline constexpr QStringView removePrefix = u"Ocorreu o seguinte erro ao tentar remover os dados: ";
inline constexpr QStringView generalPrefix = u"Ocorreu o seguinte erro: ";

/// The error behind `prefix`; one met while opening the database stands behind openPrefix instead.
void error(QWidget *parent, QStringView prefix, const Error &error);
/// Runs `work`; an Error it throws is shown and gives false.
bool guarded(QWidget *parent, QStringView prefix, const std::function<void()> &work);

} // namespace messages
