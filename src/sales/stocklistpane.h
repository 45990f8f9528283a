#pragma once

#include "sales/stocklists.h"

#include <QWidget>

#include <memory>

namespace Ui {
class StockListPane;
}
class ListView;

/// Names of the controls of one filtered list of the stock screen.
struct StockListNames
{
    QString period, status, product, contact; ///< filter boxes
    QString list, totals;
    QString contactLabel;
};

/// The sales or the purchases on the stock screen: filter boxes, list and totals line. A changed filter box
/// refills the list at once; when the list cannot be read, list and boxes stay as they were.
class StockListPane : public QWidget
{
    Q_OBJECT

public:
    StockListPane(const StockKind &kind, const StockListNames &names, QWidget *parent = nullptr);
    ~StockListPane() override;

    const StockKind &kind() const { return m_kind; }
    ListView &list();
    QString totals() const;
    QString filterText() const { return stocklists::filterText(m_kind, m_applied); }
    /// Reads the list with the filters shown, and offers the products and contacts that the entries name.
    void refresh();

private:
    StockFilter filter() const;
    bool reload();
    void filterChanged();

    std::unique_ptr<Ui::StockListPane> m_ui;
    const StockKind &m_kind;
    StockFilter m_applied;
};
