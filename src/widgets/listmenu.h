#pragma once

#include <QObject>

class ListView;
class QMenu;

/// The menu of a list's headings: which columns are shown, and the list as a file for spreadsheets. Ctrl+S in
/// the list opens it, too.
class ListMenu : public QObject
{
    Q_OBJECT

public:
    explicit ListMenu(ListView &list);

    void open();

private:
    void popUp(const QPoint &place);
    void addColumns(QMenu &menu);
    void showColumn(int column, bool shown);
    void saveCsv();
    void saveXlsx();

    ListView &m_list;
};
