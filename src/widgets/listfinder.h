#pragma once

#include "lists/findindex.h"
#include "lists/keyedrows.h"
#include "widgets/slicedwork.h"

#include <optional>

class ListView;
class QFrame;
class QLabel;
class QLineEdit;

/// Ctrl+F in a list: a field over its lower edge that narrows the list while one types. Esc gives the whole
/// list back. Whoever changes the rows suspends it meanwhile.
class ListFinder : public QObject
{
    Q_OBJECT

public:
    explicit ListFinder(ListView &list);
    ~ListFinder() override;

    void open();
    /// Shows all rows, as the list's owner knows them.
    void suspend();
    /// The rows are complete again and may be others.
    void resume();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void close();
    void readRows();
    void narrow();
    void widen();
    void place();
    std::optional<qint64> selectedKey() const;
    void select(qint64 key);

    ListView &m_list;
    QFrame *m_bar;
    QLineEdit *m_text;
    QLabel *m_count;
    std::shared_ptr<FindIndex> m_index; ///< once it is complete
    const KeyedRows *m_all = nullptr;   ///< what a narrowed list of fetched rows showed before
    std::unique_ptr<KeyedRows> m_found; ///< what it shows instead
    bool m_suspended = false;
    SlicedWork m_work;
};
