#include "lists/storedtable.h"

void StoredTable::append(const QStringList &cells)
{
    std::vector<std::string> texts;
    for (const QString &cell : cells)
        texts.push_back(cell.toStdString());
    append(std::vector<std::string_view>(texts.begin(), texts.end()));
}
