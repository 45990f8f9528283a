#pragma once

#include "entries/entry.h"

/// A pending entry of five units of coffee that an entry screen accepts as it is.
inline EntryForm sampleEntry()
{
    using namespace Qt::StringLiterals;
    return {.status = u"Pendente"_s,
            .account = u"Caixa"_s,
            .contact = u"Ana"_s,
            .date = u"14/11/2026"_s,
            .due = u"10/12/2026"_s,
            .description = u"Aluguel"_s,
            .document = u"NF 7"_s,
            .notes = u"  "_s,
            .value = u"1234,5"_s,
            .unitCost = u"3,00"_s,
            .product = u"Café"_s,
            .quantity = u"5"_s,
            .currency = u"R$"_s};
}
