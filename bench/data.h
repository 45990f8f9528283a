#pragma once

#include <QString>

/// Program folders with made-up data, kept under the build folder until the benchmarks are built anew.
namespace benchdata {

/// The account, contact and centre that each select this many of the 100,000 payables of large().
inline constexpr int selectedRows = 1000;
inline constexpr QStringView account = u"Conta medida";
inline constexpr QStringView contact = u"Fornecedor medido";
inline constexpr QStringView centre = u"Centro medido";

/// 100,000 payables, 100,000 receivables, 20,000 movements, 20 accounts.
QString large();
/// The delivered, empty database.
QString empty();
/// As many payables and receivables together as `entries`, and a tenth as many movements; 20 accounts.
QString grown(qint64 entries);
/// A million payables of this month, otherwise empty.
QString manyPayables();
/// 200,000 payables spread over 50 centres, and as many receivables, all of them of one of 500 products.
QString centres();
/// A copy of a folder, to be written to; replaced when there is one.
QString copyOf(const QString &folder, const QString &name);

QString databaseIn(const QString &folder);
/// From now on the program's functions work on this folder, with settings of its own.
void use(const QString &folder);

} // namespace benchdata
