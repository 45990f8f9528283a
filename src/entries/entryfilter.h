#pragma once

#include "entries/side.h"

#include <QDate>
#include <QStringList>

#include <optional>

/// The choices of an entry list's filter boxes, as their texts; letter case is ignored. An "all" choice is
/// the box's own ("Todos os bancos"; for the status: "Pendentes e Concluídos").
struct EntryFilter
{
    QString basedOn; ///< "Data cadastro", or the due date
    QString status;
    QString account;
    QString centre;
    QString contact;
    QString period;
    /// When given, only entries that carry a product count: this one, or any ("Todos os produtos").
    std::optional<QString> product = {};
};

namespace entryfilter {

inline constexpr QStringView allAccounts = u"Todos os bancos";
inline constexpr QStringView allProducts = u"Todos os produtos";
/// The "based on" choice that filters by the day of entry.
inline constexpr QStringView byEntryDate = u"Data cadastro";

QStringList basedOnChoices();
QStringList statusChoices();
/// The choices in words, for the head of a report.
QString description(const EntryFilter &filter);
/// The list's query, in the program's SQL dialect.
QString query(const Side &side, const EntryFilter &filter, QDate today);

} // namespace entryfilter
