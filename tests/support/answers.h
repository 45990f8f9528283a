#pragma once

#include <QStringList>
#include <QTest>

/// Checks a table of "question -> answer" lines, or of several such pairs a line with " ; " between them.
template <typename Answer>
void checkAnswers(const QString &table, Answer answer)
{
    const QString arrow = QStringLiteral(" -> ");
    QString pairs = table;
    pairs.replace(u'\n', QStringLiteral(" ; "));
    for (const QString &pair : pairs.split(QStringLiteral(" ; "), Qt::SkipEmptyParts)) {
        const QString question = pair.section(arrow, 0, 0);
        QCOMPARE(question + arrow + answer(question), pair);
    }
}
