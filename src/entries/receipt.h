#pragma once

#include "entries/entry.h"
#include "lists/pagedocument.h"

#include <QStringList>

/// A receipt of a payment. Nothing of it is stored.
struct Receipt
{
    QString payee; ///< who is paid
    QString payer;
    QString reference; ///< what the payment is for
    QString amount;    ///< as typed: "R$ 1.234,50", "1234,5", or empty
    QString date;
};

namespace receipt {

/// Of an entry: the company is the one that pays, or that is paid.
Receipt of(const Side &side, const EntryForm &entry, QDate today);
/// The printed lines, under the caption of the screen.
QStringList lines(const QString &caption, const Receipt &receipt);
/// The page, in a font of fixed pitch, with what ends every report.
PageDocument document(const QString &caption, const Receipt &receipt);

} // namespace receipt
