#pragma once

#include "data/changes.h"
#include "lists/keyedlist.h"
#include "widgets/slicedwork.h"

#include <QPoint>

class ListView;

/// Fills a ListView from a query and keeps it true: reads in slices between which the window answers, orders
/// by the heading that the user clicks, and follows notices of changed rows. A load that is still running
/// gives way to the next one. When a load fails the list stays as it was.
class ListFeed : public QObject
{
    Q_OBJECT

public:
    /// `loadingTitle` heads the wait screen of a long load.
    ListFeed(ListView &view, std::vector<ListColumn> columns, std::unique_ptr<RowTotals> noTotals,
             QString loadingTitle);
    ~ListFeed() override;

    /// Reads the rows of `sql`, a `SELECT * FROM table …`. Short loads are done on return, the others go on
    /// in the background; loaded() or failed() tells when. Throws Error when the load fails at once.
    void load(const QString &sql);
    bool isLoading() const { return m_work.isRunning(); }
    /// Finishes a load that is running; for whoever needs all rows now.
    void finish() { m_work.finish(); }
    /// Follows the change, or reads the list again. Throws Error.
    void follow(const Change &change);

    /// What the rows add up to; of no rows before the first load.
    const RowTotals &totals() const { return m_list.totals(); }
    int rowCount() const { return m_list.rows().rowCount(); }
    qint64 key(int row) const;
    /// Of the file that the rows were read from; 0 before the first load. For openDatabase(serial).
    quint64 serial() const;

Q_SIGNALS:
    /// The rows or what they add up to are others.
    void loaded();
    /// A load that went on in the background failed.
    void failed(const Error &error);

private:
    struct Choice
    {
        QString sql;
        std::optional<HeadingSort> sort;
        std::pair<int, Qt::SortOrder> indicator{-1, Qt::AscendingOrder}; ///< of the heading that was clicked
    };

    auto suspendFinding();
    void showPart();
    void takeOver();
    void drop();
    void sortBy(int column, Qt::SortOrder order);
    void goBack();
    std::optional<qint64> selectedKey() const;

    ListView &m_view;
    QString m_loadingTitle;
    KeyedList m_list;
    Choice m_choice; ///< what is shown or being read
    Choice m_shown;
    std::shared_ptr<ListLoad> m_load;  ///< while it runs
    std::unique_ptr<KeyedRows> m_part; ///< what a running load has read so far, when it is shown
    std::optional<qint64> m_selected;  ///< key of the row that was selected when the load began
    QPoint m_scrolled;
    SlicedWork m_work;
};
